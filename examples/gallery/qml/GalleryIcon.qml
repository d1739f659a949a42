// An icon of the resources in a colour.
import QtQuick

Image {
    property string name: ""
    property color color: "transparent"

    width: 24
    height: 24
    sourceSize: Qt.size(width, height)
    source: name === "" ? "" : "image://svg/%1/%2".arg(color).arg(name)
}
