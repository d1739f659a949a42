import QtQuick
import Corvane 1.0
import LumakitQml 1.0

GallerySample {
    subject: picture

    WDynamicImage {
        id: picture
        width: 96
        height: 64
        image: "image://svg/" + App.getColorSet("tab-orange").normal + "/logo"
        asynchronous: false
    }
    WDynamicImage {
        width: 96
        height: 64
        image: "image://svg/" + App.getColorSet("tab-orange").normal + "/globe"
        asynchronous: false
        fillMode: Image.PreserveAspectCrop
    }
}
