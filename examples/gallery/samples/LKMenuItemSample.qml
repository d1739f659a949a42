import QtQuick

GallerySample {
    subject: entry

    LKMenuItem {
        id: entry
        width: 200
        text: "Rename"
        indicatorSvgName: "pen"
    }
    LKMenuItem {
        width: 200
        text: "Checked"
        checkable: true
        checked: true
    }
    LKMenuItem {
        width: 200
        text: "Disabled"
        indicatorSvgName: "trash"
        enabled: false
    }
    LKMenuItem {
        width: 120
        text: "Too long for its width"
    }
}
