import QtQuick
import "qrc:/Qml"

GallerySample {
    subject: slider

    LKSlider {
        id: slider
        value: 0.4
        accessibleText: "Volume"
    }
    LKSlider {
        to: 100
        value: 70
        enabled: false
        accessibleText: "Disabled"
    }
    LKSlider {
        rightToLeft: true
        value: 0.2
        accessibleText: "From the right"
    }
    LKSlider {
        handleWidth: 20
        barThickness: 8
        value: 1
        accessibleText: "Brightness"
    }
    LKSlider {
        orientation: Qt.Vertical
        height: 120
        value: 0.25
        accessibleText: "Height"
    }
}
