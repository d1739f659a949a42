import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: typing

    WSvgSequenceAnimated {
        id: typing
        imagePrefixName: "typing-"
        frameCount: 4
    }
    WSvgSequenceAnimated {
        imagePrefixName: "typing-"
        frameCount: 4
        currentFrame: 3
        paused: true
        svgColorSetName: "hyperlink-accent-text"
    }
    WSvgSequenceAnimated {
        width: 40
        height: 40
        imagePrefixName: "typing-"
        frameCount: 4
        currentFrame: 2
        running: false
    }
}
