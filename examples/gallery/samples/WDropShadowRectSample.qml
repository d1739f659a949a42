import QtQuick
import LumakitQml 1.0

GallerySample {
    padding: 32
    spacing: 32
    subject: shadow

    component Card: WFrame {
        width: parent.width
        height: parent.height
        radius: 8
        backgroundColorSetName: "modal-primary-background"
        borderColorSetName: "modal-primary-border"
    }

    Item {
        width: 128
        height: 96

        WDropShadowRect {
            id: shadow
            anchors.fill: parent
        }
        Card {}
    }
    Item {
        width: 128
        height: 96

        WDropShadowRect {
            anchors.fill: parent
            offsetFactor: 2
        }
        Card {}
    }
    Item {
        width: 128
        height: 96

        WDropShadowRect {
            anchors.fill: parent
            offsetFactor: 4
        }
        Card {}
    }
}
