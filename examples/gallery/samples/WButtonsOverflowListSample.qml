import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    subject: more
    height: 248

    Item {
        width: 240
        height: 32

        WSvgIconButton {
            id: more
            anchors.horizontalCenter: parent.horizontalCenter
            iconName: "more-horizontal-bold"
            tooltip: "More"
            onTriggered: overflow.open()

            WButtonsOverflowList {
                id: overflow
                visible: sample.opensPopups
                model: [
                    { text: "Files", iconName: "file" },
                    { text: "Whiteboard", iconName: "whiteboard" },
                    { text: "Polls", iconName: "list", enabled: false },
                    { text: "A name that is far too long for the list", iconName: "star" }
                ]
            }
        }
    }
    Item {
        width: 240
        height: 32

        WSvgIconButton {
            anchors.horizontalCenter: parent.horizontalCenter
            iconName: "more-horizontal-bold"
            tooltip: "More people"

            WButtonsOverflowList {
                visible: sample.opensPopups
                cancelVisible: true
                model: ["Anna", "Ben", "Christine"]
            }
        }
    }
}
