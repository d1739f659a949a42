import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: item

    WItem {
        id: item
        implicitWidth: 240
        implicitHeight: 40

        WText {
            anchors.verticalCenter: parent.verticalCenter
            text: "A text in an item"
        }
    }
}
