import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: area

    WFrame {
        width: 320
        height: 40
        radius: 4
        backgroundColorSetName: "globalHeader-container-background"
        borderColorSetName: "separator-primary"

        WText {
            anchors.verticalCenter: parent.verticalCenter
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: 12
            text: "Drag this bar to move the window"
            elide: Text.ElideRight
        }
        WMoveWindowArea {
            id: area
            anchors.fill: parent
        }
    }
}
