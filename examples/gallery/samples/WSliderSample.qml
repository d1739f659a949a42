import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: slider

    WSlider {
        id: slider
        value: 0.4
        Accessible.name: "Volume"
    }
    WSlider {
        to: 100
        value: 70
        enabled: false
        Accessible.name: "Disabled"
    }
    WSlider {
        handleWidth: 20
        barThickness: 8
        value: 1
        Accessible.name: "Brightness"
    }
    WSlider {
        orientation: Qt.Vertical
        height: 120
        value: 0.25
        Accessible.name: "Height"
    }
}
