pragma ComponentBehavior: Bound

// A soft shadow for a rectangle that lies over it with the same size and radius. It is made of plain rectangles, so it
// costs no shader.
//
//     WDropShadowRect {
//         anchors.fill: card
//         radius: card.radius
//     }
//     WRectangle {
//         id: card
//     }
import QtQuick
import Corvane 1.0

Rectangle {
    id: root

    // How high the rectangle seems to float: 1 for a card, 2 for a popup, 4 for a dialog; 0 is no shadow.
    property real offsetFactor: 1
    // How far the shadow reaches out at the sides, pixels; it is shifted down by half of that.
    property real offset: Math.round(4 * offsetFactor)
    property var themeType: App.themeMode
    property string shadowColorSetName: "overlayFade-secondary-background-normal"
    property var shadowColorSet: themeType === undefined ? null : App.getColorSet(shadowColorSetName)

    // One layer of several: where all of them lie, they make the colour of the colour set.
    color: Qt.alpha(shadowColorSet.normal, 1 - Math.pow(1 - shadowColorSet.normal.a, 1 / (layers.count + 1)))
    radius: 8

    Repeater {
        id: layers
        model: Math.max(0, Math.min(Math.ceil(root.offset), 8))

        Rectangle {
            required property int index
            readonly property real reach: root.offset * Math.pow((index + 1) / layers.count, 2)

            x: -reach
            y: -reach + Math.round(root.offset / 2)
            width: root.width + 2 * reach
            height: root.height + 2 * reach
            radius: root.radius + reach
            color: root.color
        }
    }
}
