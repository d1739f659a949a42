// A button that is one of the known icons; checked it is active, where its type has an active look.
//
//     LKIconButton {
//         buttonType: LKButtonType.Favorite
//         checkable: true
//         Accessible.name: "Favourite"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0

LKButtonBase {
    id: control

    property var themeType: App.themeMode
    // An LKButtonType.
    property int buttonType: LKButtonType.None
    // An LKButtonSize.
    property int buttonSize: LKButtonSize.S

    LKIconButtonData.eventData: eventData
    LKIconButtonData.type: buttonType
    LKIconButtonData.buttonSize: buttonSize
    LKIconButtonData.themeType: themeType

    implicitWidth: 2 * LKIconButtonData.radius
    implicitHeight: 2 * LKIconButtonData.radius
    padding: 0
    horizontalPadding: 0

    contentItem: ButtonContent {
        buttonData: control.LKIconButtonData
        leftIcon: control.LKIconButtonData.iconData.icon
    }
    background: ButtonBackground {
        buttonData: control.LKIconButtonData
    }
}
