import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: progress

    WCircularProgressBar {
        id: progress
        currentValue: 40
    }
    WCircularProgressBar {
        currentValue: 0
    }
    WCircularProgressBar {
        currentValue: 100
    }
    WCircularProgressBar {
        width: 64
        height: 64
        lineWidth: 8
        currentValue: 0.7
        maximumValue: 1
        barColorSetName: "badge-success-indicator"
    }
    WCircularProgressBar {
        width: 20
        height: 20
        lineWidth: 2
        currentValue: 25
    }
    WCircularProgressBar {
        currentValue: 60
        enabled: false
    }
}
