import QtQuick
import "qrc:/Qml"

GallerySample {
    subject: slider

    LKSlider {
        id: slider
        value: 0.4
    }
    LKSlider {
        to: 100
        value: 70
        enabled: false
    }
    LKSlider {
        rightToLeft: true
        value: 0.2
    }
    LKSlider {
        handleWidth: 20
        barThickness: 8
        value: 1
    }
    LKSlider {
        orientation: Qt.Vertical
        height: 120
        value: 0.25
    }
}
