// A small popup: a balloon around a sentence and a button.
import QtQuick
import Corvane 1.0
import LumakitQml 1.0

Item {
    width: 240
    height: 120

    WQmlPopupController {
        id: controller

        arrowSize: 10
    }
    WBalloon {
        anchors.fill: parent
        arrowAnchor: controller.arrowAnchor
        arrowAlignment: controller.arrowAlignment
        arrowOffset: controller.arrowOffset
        arrowSize: controller.arrowSize
        radius: 8
        borderWidth: 1
        backgroundColor: App.themeMode === "" ? "transparent" : App.getColorSet("popover-primary-background").normal
        borderColor: App.themeMode === "" ? "transparent" : App.getColorSet("menulistbackground-primary-border").normal
    }
    WLabel {
        x: 16
        y: 24
        text: "You are muted."
    }
    LKPillButton {
        x: 16
        y: 72
        text: "Unmute"
    }
}
