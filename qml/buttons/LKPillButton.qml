// A button with round ends, a text and up to two icons.
//
//     LKPillButton {
//         text: "Join"
//         leftIcon: "video-bold"
//         buttonStyle: LKButtonStyle.Join
//         buttonSize: LKButtonSize.L
//         onClicked: meeting.join()
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0

LKButtonBase {
    id: control

    property var themeType: App.themeMode
    // Names of icons; none without.
    property string leftIcon: ""
    property string rightIcon: ""
    // An LKButtonStyle and an LKButtonSize.
    property int buttonStyle: LKButtonStyle.Primary
    property int buttonSize: LKButtonSize.M

    LKPillButtonData.eventData: eventData
    LKPillButtonData.style: buttonStyle
    LKPillButtonData.size: buttonSize
    LKPillButtonData.themeType: themeType

    implicitHeight: Math.max(LKPillButtonData.height, implicitContentHeight + topPadding + bottomPadding)
    verticalPadding: 2
    leftPadding: LKPillButtonData.leftPadding
    rightPadding: LKPillButtonData.rightPadding

    contentItem: ButtonContent {
        buttonData: control.LKPillButtonData
        text: control.text
        leftIcon: control.leftIcon
        rightIcon: control.rightIcon
    }
    background: ButtonBackground {
        buttonData: control.LKPillButtonData
    }
}
