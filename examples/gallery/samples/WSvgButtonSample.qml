import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: button

    WSvgButton {
        id: button
        iconName: "microphone"
        text: "Mute"
    }
    WSvgButton {
        iconName: "arrow-right-bold"
        text: "Next"
        alignment: Qt.AlignRight
    }
    WSvgButton {
        iconName: "plus-bold"
        tooltip: "Add"
    }
    WSvgButton {
        text: "No icon"
    }
    WSvgButton {
        iconName: "video"
        text: "Checked"
        checkable: true
        checked: true
    }
    WSvgButton {
        iconName: "trash"
        text: "Disabled"
        enabled: false
    }
    WSvgButton {
        width: 120
        iconName: "folder"
        text: "Too long for its width"
    }
    WSvgButton {
        width: 160
        iconName: "list"
        text: "At the start"
        isRectangle: true
        horizontalAlignment: Text.AlignLeft
    }
}
