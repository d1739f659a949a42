// A rectangle that takes its colour from a colour set, by its own state or that of another item.
//
//     WRectangle {
//         backgroundColorSetName: "panel-primary-background"
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

Rectangle {
    id: root

    // What the colours depend on: a new theme asks for the colour set anew.
    property var themeType: App.themeMode
    // The control whose state (enabled, pressed, hovered, focus, checked) picks the colour; this item itself if null.
    property var controlsTarget: null
    // The name of the colour-set token; without one the rectangle is transparent.
    property string backgroundColorSetName: ""
    // The comparison keeps the dependency on the theme: a read without a use is compiled away.
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)

    color: ThemeUtils.getColor(controlsTarget ?? root, backgroundColorSet)
}
