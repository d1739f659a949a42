import QtQuick

GallerySample {
    subject: entry

    LKContextMenuItem {
        id: entry
        width: 240
        text: "Copy"
        indicatorSvgName: "copy"
        shortcutText: "Ctrl+C"
    }
    LKContextMenuItem {
        width: 240
        text: "Wrap lines"
        checkable: true
        checked: true
    }
    LKContextMenuItem {
        width: 240
        text: "Paste"
        indicatorSvgName: "paste"
        shortcutText: "Ctrl+V"
        enabled: false
    }
    LKContextMenuItem {
        width: 160
        text: "Too long for its width"
        shortcutText: "Ctrl+L"
    }
}
