// A check box with a text beside it that wraps, elides or runs on.
//
//     LKCheckBox {
//         width: 240
//         text: "Mute me when I join"
//         accessibleText: "Mute me when I join a meeting"
//         onToggled: settings.joinsMuted = checked
//     }
import QtQuick

WCheckBox {
    id: control

    // How a text that is wider than the check box wraps: a Text.WrapMode. With Text.NoWrap it is elided.
    property int autoWrapMode: Text.Wrap
    // The accessible name where the text alone does not say enough.
    property string accessibleText: ""

    Accessible.name: accessibleText !== "" ? accessibleText : text !== "" ? text : tooltip

    contentItem: Text {
        leftPadding: control.mirrored ? 0 : control.checkboxSize + control.spacing
        rightPadding: control.mirrored ? control.checkboxSize + control.spacing : 0
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: control.textColors.color
        wrapMode: control.autoWrapMode
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
}
