import QtQuick
import Corvane 1.0
import LumakitQml 1.0

GallerySample {
    subject: cursor

    WFrame {
        width: 240
        height: 40
        radius: 4
        backgroundColorSetName: "textinput-background"
        borderColorSetName: "textinput-border"

        TextInput {
            id: input

            property var themeType: App.themeMode

            anchors.fill: parent
            anchors.margins: 8
            verticalAlignment: TextInput.AlignVCenter
            text: "A text with a cursor"
            font: FontConstants.bodySecondary
            color: (themeType === undefined ? null : App.getColorSet("textinput-text")).normal
            cursorVisible: true
            cursorDelegate: WCursorItem {}
        }
    }
    WCursorItem {
        id: cursor
        height: 40
    }
}
