import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: slider

    WSlider {
        id: slider
        value: 0.4
    }
    WSlider {
        to: 100
        value: 70
        enabled: false
    }
    WSlider {
        handleWidth: 20
        barThickness: 8
        value: 1
    }
    WSlider {
        orientation: Qt.Vertical
        height: 120
        value: 0.25
    }
}
