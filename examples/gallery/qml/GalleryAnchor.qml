// A round button that is dragged or moved with the arrow keys inside its parent, and that shows whether its popup is open.
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import Gallery 1.0
import "ThemeUtils.js" as ThemeUtils

T.Button {
    id: control

    property bool open: false
    readonly property string variant: open ? "primary" : "secondary"

    signal moved()

    function moveBy(dx: real, dy: real): void {
        x = Math.max(0, Math.min(parent.width - width, x + dx));
        y = Math.max(0, Math.min(parent.height - height, y + dy));
        moved();
    }

    implicitWidth: 48
    implicitHeight: 48
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.name: "Anchor of the popup"

    Keys.onLeftPressed: moveBy(-16, 0)
    Keys.onRightPressed: moveBy(16, 0)
    Keys.onUpPressed: moveBy(0, -16)
    Keys.onDownPressed: moveBy(0, 16)

    DragHandler {
        xAxis.minimum: 0
        xAxis.maximum: control.parent.width - control.width
        yAxis.minimum: 0
        yAxis.maximum: control.parent.height - control.height
        onActiveChanged: {
            if (active)
                control.moved();
            else
                control.clicked(); // dropped: opens at once
        }
    }

    contentItem: Item {
        GalleryIcon {
            anchors.centerIn: parent
            name: "drag"
            color: ThemeUtils.getColor(control, Gallery.colorSet("button-" + control.variant + "-text", App.themeMode))
        }
    }
    background: Rectangle {
        radius: height / 2
        color: ThemeUtils.getColor(control, Gallery.colorSet("button-" + control.variant + "-background", App.themeMode))
        border.width: 1
        border.color: ThemeUtils.getColor(control, Gallery.colorSet("button-" + control.variant + "-border", App.themeMode))

        Rectangle {
            anchors.fill: parent
            anchors.margins: -4
            visible: control.visualFocus
            radius: height / 2
            color: "transparent"
            border.width: 2
            border.color: Gallery.colorSet("global-focus-outline", App.themeMode).normal
        }
    }
}
