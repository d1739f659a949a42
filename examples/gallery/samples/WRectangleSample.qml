import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: rectangle

    WRectangle {
        id: rectangle
        width: 120
        height: 64
        backgroundColorSetName: "button-primary-background"
    }
    WRectangle {
        width: 120
        height: 64
        radius: 8
        backgroundColorSetName: "panel-secondary-background"
    }
    WRectangle {
        width: 120
        height: 64
        radius: 8
        enabled: false
        backgroundColorSetName: "button-primary-background"
    }
}
