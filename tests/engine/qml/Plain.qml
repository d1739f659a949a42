// A view without a controller.
import QtQuick

Rectangle {
    width: 200
    height: 100
    color: "seagreen"

    Item {
        objectName: "focusable"
        focus: true
    }
}
