import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: area

    WGradientRectangle {
        id: area
        width: 160
        height: 96
        radius: 8
    }
    WGradientRectangle {
        width: 160
        height: 96
        orientation: Gradient.Horizontal
        gradientStartColourSetName: "button-join-animated-gradient-background-normal-0"
        gradientEndColourSetName: "button-join-animated-gradient-background-normal-1"
    }
    WGradientRectangle {
        width: 160
        height: 96
        radius: 48
        gradientStartColourSetName: "overlayFade-primary-background-normal"
        gradientEndColourSetName: ""
    }
}
