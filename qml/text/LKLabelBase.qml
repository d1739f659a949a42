// A text that inherits font and direction as controls do, in a colour of a colour set. It is plain: markup in it is
// shown as it stands.
//
//     LKLabelBase {
//         text: "Microphone"
//         textColorSetName: "label-secondary-text"
//     }
import QtQuick
import LumakitQml 1.0
import LumakitQml.Private 1.0

LabelTemplate {
    id: control

    property alias textColorSetName: control.textColors.colorSetName
    property alias themeType: control.textColors.themeType
    property alias textColorSet: control.textColors.colorSet

    textColors.colorSetName: "label-primary-text"
    font: FontConstants.bodySecondary
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight
}
