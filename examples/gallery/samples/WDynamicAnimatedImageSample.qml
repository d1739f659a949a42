import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: movie

    // On its way; the gallery has "orbit", "wave" and "pulse".
    WDynamicAnimatedImage {
        id: movie
        width: 128
        height: 96
        source: "orbit"
    }
    // Cannot be had.
    WDynamicAnimatedImage {
        width: 128
        height: 96
        source: "no such movie"
    }
}
