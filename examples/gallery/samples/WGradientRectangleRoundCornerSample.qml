import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: area

    WGradientRectangleRoundCorner {
        id: area
        width: 160
        height: 96
        cornerRadius: 8
    }
    WGradientRectangleRoundCorner {
        width: 160
        height: 96
        orientation: Gradient.Horizontal
        gradientStartColourSetName: "button-join-animated-gradient-background-normal-0"
        gradientEndColourSetName: "button-join-animated-gradient-background-normal-1"
    }
    WGradientRectangleRoundCorner {
        width: 160
        height: 96
        cornerRadius: 48
        gradientStartColourSetName: "overlayFade-primary-background-normal"
        gradientEndColourSetName: ""
    }
}
