import QtQuick
import Corvane 1.0
import LumakitQml 1.0

GallerySample {
    id: sample

    readonly property string picture: "image://svg/" + App.getColorSet("tab-mint").normal + "/logo"

    subject: image

    WImage {
        id: image
        width: 64
        height: 64
        source: sample.picture
        sourceSize: Qt.size(width, height)
    }
    WImage {
        width: 96
        height: 64
        source: sample.picture
        sourceSize: Qt.size(height, height)
        fillMode: Image.PreserveAspectFit
    }
    WImage {
        width: 64
        height: 32
        source: sample.picture
        sourceSize: Qt.size(width, width)
        fillMode: Image.PreserveAspectCrop
    }
}
