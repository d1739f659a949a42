import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: shadow

    Item {
        width: 160
        height: 96

        WDropShadow {
            id: shadow
            anchors.fill: card
            source: card
        }
        WFrame {
            id: card
            anchors.fill: parent
            radius: 8
            backgroundColorSetName: "modal-primary-background"
            borderColorSetName: "modal-primary-border"
        }
    }
    Item {
        width: 96
        height: 96

        WDropShadow {
            anchors.fill: icon
            source: icon
            radius: 4
            samples: 9
        }
        WSvgIcon {
            id: icon
            anchors.centerIn: parent
            width: 64
            height: 64
            svgName: "search"
        }
    }
}
