import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: item

    WMenuItem {
        id: item
        text: "Plain"
    }
    WMenuItem {
        text: "With an icon"
        indicatorSvgName: "copy"
    }
    WMenuItem {
        text: "Checked"
        checkable: true
        checked: true
    }
    WMenuItem {
        text: "With an arrow"
        hasArrow: true
    }
    WMenuItem {
        text: "Disabled"
        indicatorSvgName: "trash"
        enabled: false
    }
    WMenuItem {
        width: 160
        text: "Too long for its width"
        indicatorSvgName: "file"
        hasArrow: true
    }
}
