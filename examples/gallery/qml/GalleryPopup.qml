// The frame of the gallery's popups: a balloon around the content, whose arrow points at what opened the popup.
import QtQuick
import Corvane 1.0
import Gallery 1.0
import LumakitQml 1.0

Item {
    id: root

    property int padding: 12
    property string backgroundColorSetName: "popover-primary-background"
    property string borderColorSetName: "menulistbackground-primary-border"
    readonly property bool arrowIsVertical: balloon.arrowAnchor === WBalloon.Top || balloon.arrowAnchor === WBalloon.Bottom
    readonly property real arrowAtLeft: balloon.arrowAnchor === WBalloon.Left ? balloon.arrowSize : 0
    readonly property real arrowAtTop: balloon.arrowAnchor === WBalloon.Top ? balloon.arrowSize : 0
    default property alias content: body.data

    // The window has whole pixels.
    width: Math.ceil(body.childrenRect.width + 2 * padding) + (arrowIsVertical ? 0 : balloon.arrowSize)
    height: Math.ceil(body.childrenRect.height + 2 * padding) + (arrowIsVertical ? balloon.arrowSize : 0)

    LayoutMirroring.enabled: Gallery.mirrored
    LayoutMirroring.childrenInherit: true

    Keys.onEscapePressed: Popups.hide()

    WQmlPopupController {
        id: controller

        arrowSize: 10
    }
    WBalloon {
        id: balloon

        anchors.fill: parent
        arrowAnchor: controller.arrowAnchor
        arrowAlignment: controller.arrowAlignment
        arrowOffset: controller.arrowOffset
        arrowSize: controller.arrowSize
        radius: 8
        borderWidth: 2
        backgroundColor: Gallery.colorSet(root.backgroundColorSetName, App.themeMode).normal
        borderColor: Gallery.colorSet(root.borderColorSetName, App.themeMode).normal
    }
    Item {
        id: body

        x: root.padding + root.arrowAtLeft
        y: root.padding + root.arrowAtTop
        width: childrenRect.width
        height: childrenRect.height
    }
}
