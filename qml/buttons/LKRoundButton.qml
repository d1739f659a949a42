// A round button with an icon.
//
//     LKRoundButton {
//         buttonIcon: "microphone-bold"
//         buttonStyle: LKButtonStyle.Secondary
//         Accessible.name: "Mute"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0

LKButtonBase {
    id: control

    property var themeType: App.themeMode
    // The name of an icon.
    property string buttonIcon: ""
    // An LKButtonStyle and an LKButtonSize.
    property int buttonStyle: LKButtonStyle.Primary
    property int buttonSize: LKButtonSize.M

    LKRoundButtonData.eventData: eventData
    LKRoundButtonData.style: buttonStyle
    LKRoundButtonData.size: buttonSize
    LKRoundButtonData.themeType: themeType

    implicitWidth: LKRoundButtonData.width
    implicitHeight: LKRoundButtonData.height
    padding: 0
    horizontalPadding: 0

    contentItem: ButtonContent {
        buttonData: control.LKRoundButtonData
        leftIcon: control.buttonIcon
    }
    background: ButtonBackground {
        buttonData: control.LKRoundButtonData
    }
}
