// A flat square button with an icon, for tool bars.
//
//     LKToolButton {
//         iconName: "sliders"
//         Accessible.name: "Settings"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0

LKButtonBase {
    id: control

    // The name of an icon.
    property string iconName: ""
    // Looks hovered whether or not the cursor is over it, as while its menu is open.
    property bool hoverOverride: false
    property var themeType: App.themeMode

    LKRoundButtonData.eventData: LKEventData {
        enabled: control.enabled
        hovered: control.hovered || control.hoverOverride
        activeFocus: control.activeFocus
        checked: control.checked
        pressed: control.down
    }
    LKRoundButtonData.style: LKButtonStyle.Ghost
    LKRoundButtonData.size: LKButtonSize.S
    LKRoundButtonData.themeType: themeType

    implicitWidth: LKRoundButtonData.width
    implicitHeight: LKRoundButtonData.height
    padding: 0
    horizontalPadding: 0

    contentItem: ButtonContent {
        buttonData: control.LKRoundButtonData
        leftIcon: control.iconName
    }
    background: ButtonBackground {
        buttonData: control.LKRoundButtonData
        roundEnds: false
        radius: 4
    }
}
