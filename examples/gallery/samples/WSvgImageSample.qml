import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: image

    // The pictures have their own colours; what stands under them is for those that are dark.
    WRectangle {
        width: 64
        height: 64
        radius: 8
        backgroundColorSetName: "label-common-white-text"

        WSvgImage {
            id: image
            anchors.centerIn: parent
            width: 48
            height: 48
            svgName: "logo"
        }
    }
    WRectangle {
        width: 64
        height: 64
        radius: 8
        backgroundColorSetName: "label-common-white-text"

        WSvgImage {
            anchors.centerIn: parent
            svgName: "globe"
        }
    }
}
