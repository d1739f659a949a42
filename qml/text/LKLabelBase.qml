// A text that inherits font and direction as controls do, in a colour of a colour set. It is plain: markup in it is
// shown as it stands.
//
//     LKLabelBase {
//         text: "Microphone"
//         textColorSetName: "label-secondary-text"
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

T.Label {
    id: control

    property string textColorSetName: "label-primary-text"
    property var themeType: App.themeMode
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)

    color: ThemeUtils.getColor(control, textColorSet)
    font: FontConstants.bodySecondary
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
