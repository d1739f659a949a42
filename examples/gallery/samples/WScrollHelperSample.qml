pragma ComponentBehavior: Bound

import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: helper

    WFrame {
        width: 240
        height: 160
        radius: 4
        borderColorSetName: "separator-primary"

        Flickable {
            id: page
            anchors.fill: parent
            anchors.margins: 8
            contentHeight: column.height
            boundsBehavior: Flickable.StopAtBounds
            clip: true

            Column {
                id: column
                width: page.width
                spacing: 8

                Repeater {
                    model: 20

                    WText {
                        required property int index
                        width: column.width
                        text: "Line " + (index + 1) + ", scrolled by the wheel"
                        elide: Text.ElideRight
                    }
                }
            }
        }
        WScrollHelper {
            id: helper
            anchors.fill: parent
            flickable: page
        }
    }
}
