// An area with round corners, and a scope for the focus, whose background runs from one colour to another. The colours
// may be translucent: they are laid on a third, so that the area itself is not.
//
//     WGradientRectangleRoundCorner {
//         cornerRadius: 12
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

FocusScope {
    id: root

    property var themeType: App.themeMode
    // The control whose state picks the colours; this item itself if null.
    property var controlsTarget: null
    property string gradientStartColourSetName: "theme-gradient-secondary-0-background"
    property string gradientEndColourSetName: "theme-gradient-secondary-1-background"
    // What the gradient is laid on; with an empty name, nothing.
    property string gradientPrimary0BackgroundColorSetName: "theme-gradient-primary-0-background"
    // Pixels.
    property real cornerRadius: 8
    property var gradientStartColourSet: themeType === undefined ? null : App.getColorSet(gradientStartColourSetName)
    property var gradientEndColourSet: themeType === undefined ? null : App.getColorSet(gradientEndColourSetName)
    property var gradientPrimary0BackgroundColorSet: themeType === undefined
                                                     ? null : App.getColorSet(gradientPrimary0BackgroundColorSetName)
    // Gradient.Vertical, from the top, or Gradient.Horizontal, from the side where a line of text begins.
    property int orientation: Gradient.Vertical
    readonly property color baseColor: ThemeUtils.getColor(controlsTarget ?? root, gradientPrimary0BackgroundColorSet)
    readonly property color startColor: Qt.tint(baseColor, ThemeUtils.getColor(controlsTarget ?? root,
                                                                               gradientStartColourSet))
    readonly property color endColor: Qt.tint(baseColor, ThemeUtils.getColor(controlsTarget ?? root,
                                                                             gradientEndColourSet))
    readonly property bool isReversed: orientation === Gradient.Horizontal && LayoutMirroring.enabled

    Rectangle {
        anchors.fill: parent
        radius: root.cornerRadius
        gradient: Gradient {
            orientation: root.orientation
            GradientStop { position: 0; color: root.isReversed ? root.endColor : root.startColor }
            GradientStop { position: 1; color: root.isReversed ? root.startColor : root.endColor }
        }
    }
}
