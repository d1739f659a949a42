// A text in a colour of a colour set. It is plain: markup in it is shown as it stands.
//
//     WText {
//         text: "Share screen"
//         textColorSetName: "label-secondary-text"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

Text {
    id: root

    property var themeType: App.themeMode
    // The control whose state picks the colour; this text itself if null.
    property var controlsTarget: null
    // An area over the text whose hover and press pick the colour, for texts that can be clicked.
    property MouseArea textMouseArea: null
    property string textColorSetName: "label-primary-text"
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    readonly property bool empty: text === ""
    // Shown when the cursor rests on the text.
    property string toolTipText: ""

    function areaState(): var {
        return { enabled: enabled, pressed: textMouseArea.pressed, hovered: textMouseArea.containsMouse };
    }

    color: ThemeUtils.getColor(controlsTarget ?? (textMouseArea ? areaState() : root), textColorSet)
    font: FontConstants.bodySecondary
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft

    onToolTipTextChanged: ToolTips.set(root, toolTipText)

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
