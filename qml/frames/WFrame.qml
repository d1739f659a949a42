// A rectangle with a border from a colour set.
//
//     WFrame {
//         backgroundColorSetName: "panel-primary-background"
//         borderColorSetName: "separator-primary"
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

WRectangle {
    id: root

    property int borderWidth: 1
    property string borderColorSetName: ""
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)

    border.width: borderWidth
    border.color: ThemeUtils.getColor(controlsTarget ?? root, borderColorSet)
}
