import QtQuick
import Corvane 1.0
import LumakitQml 1.0

GallerySample {
    subject: cover

    WCoverImage {
        id: cover
        width: 240
        height: 80
        image: "image://svg/" + App.getColorSet("tab-violet").normal + "/logo"
        asynchronous: false
    }
    WCoverImage {
        width: 80
        height: 120
        image: "image://svg/" + App.getColorSet("tab-gold").normal + "/logo"
        asynchronous: false
    }
    WCoverImage {
        width: 120
        height: 80
    }
}
