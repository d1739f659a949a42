// A text that inherits font and direction as controls do, in a colour of a colour set. It is plain: markup in it is
// shown as it stands.
//
//     WLabel {
//         text: "Camera"
//         textColorSetName: "label-secondary-text"
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.Label {
    id: control

    // The control whose state picks the colour; this label itself if null.
    property var controlsTarget: null
    property string textColorSetName: "label-primary-text"
    // Shown when the cursor rests on the label; its accessible name where it has no text.
    property string toolTipText: ""
    property var themeType: App.themeMode
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)

    color: ThemeUtils.getColor(controlsTarget ?? control, textColorSet)
    font: FontConstants.bodySecondary
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft

    onToolTipTextChanged: ToolTips.set(control, toolTipText)

    Accessible.role: Accessible.StaticText
    Accessible.name: text === "" ? toolTipText : text
}
