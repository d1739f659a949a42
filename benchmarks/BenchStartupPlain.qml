pragma ComponentBehavior: Bound

// The same picture as BenchStartup.qml from the items of Qt Quick alone.
import QtQuick

Rectangle {
    id: root

    // Icons make Qt look through its plugins for image formats, which the components have no need of.
    property bool hasIcons: false

    width: 800
    height: 480
    color: "white"

    Column {
        Repeater {
            model: 10

            Row {
                id: row

                required property int index

                height: 48
                spacing: 16

                Rectangle {
                    width: 80
                    height: 32
                    radius: 16
                    color: "black"

                    Text {
                        anchors.centerIn: parent
                        color: "white"
                        text: "Join " + row.index
                        textFormat: Text.PlainText
                    }
                }
                Text {
                    text: "Name " + row.index
                    textFormat: Text.PlainText
                }
                Image {
                    width: 24
                    height: 24
                    source: root.hasIcons ? "qrc:/Resources/video-bold.svg" : ""
                    sourceSize: Qt.size(width, height)
                }
                Rectangle {
                    width: 200
                    height: 32
                    radius: 4
                    border.width: 1
                    border.color: "gray"

                    TextInput {
                        anchors.fill: parent
                        anchors.margins: 8
                        text: "Text " + row.index
                    }
                }
                Item {
                    width: 120
                    height: 32

                    Rectangle {
                        y: 6
                        width: 20
                        height: 20
                        radius: 4
                        border.width: 1
                        border.color: "gray"
                    }
                    Text {
                        x: 28
                        anchors.verticalCenter: parent.verticalCenter
                        text: "Choice " + row.index
                        textFormat: Text.PlainText
                    }
                }
            }
        }
    }
}
