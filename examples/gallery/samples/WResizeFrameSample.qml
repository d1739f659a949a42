import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: resizeFrame
    height: 160

    WFrame {
        width: 320
        height: 120
        radius: 4
        backgroundColorSetName: "panel-secondary-background"
        borderColorSetName: "separator-primary"

        WText {
            anchors.fill: parent
            anchors.margins: 16
            text: "An edge or a corner of this frame resizes the window."
            wrapMode: Text.Wrap
        }
        WResizeFrame {
            id: resizeFrame
            anchors.fill: parent
            minWidth: 320
            minHeight: 240
        }
    }
}
