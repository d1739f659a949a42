// An area, and a scope for the focus, whose background runs from one colour to another.
//
//     WGradientRectangle {
//         gradientStartColourSetName: "theme-gradient-secondary-0-background"
//         gradientEndColourSetName: "theme-gradient-secondary-1-background"
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

FocusScope {
    id: root

    property var themeType: App.themeMode
    // The control whose state picks the colours; this item itself if null.
    property var controlsTarget: null
    property string gradientStartColourSetName: "theme-gradient-primary-0-background"
    property string gradientEndColourSetName: "theme-gradient-primary-1-background"
    // The corners' radius, pixels.
    property real radius: 0
    property var gradientStartColourSet: themeType === undefined ? null : App.getColorSet(gradientStartColourSetName)
    property var gradientEndColourSet: themeType === undefined ? null : App.getColorSet(gradientEndColourSetName)
    // Gradient.Vertical, from the top, or Gradient.Horizontal, from the side where a line of text begins.
    property int orientation: Gradient.Vertical
    readonly property color startColor: ThemeUtils.getColor(controlsTarget ?? root, gradientStartColourSet)
    readonly property color endColor: ThemeUtils.getColor(controlsTarget ?? root, gradientEndColourSet)
    readonly property bool isReversed: orientation === Gradient.Horizontal && LayoutMirroring.enabled

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        gradient: Gradient {
            orientation: root.orientation
            GradientStop { position: 0; color: root.isReversed ? root.endColor : root.startColor }
            GradientStop { position: 1; color: root.isReversed ? root.startColor : root.endColor }
        }
    }
}
