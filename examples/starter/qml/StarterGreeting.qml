// An icon and the controller's text, in the middle of whatever it is put into.
import QtQuick
import Corvane 1.0
import Starter 1.0

Column {
    id: root

    readonly property color textColor: App.themeMode === "" ? "transparent" : App.getColorSet("label-primary-text").normal

    anchors.centerIn: parent
    spacing: 12

    GreetingController {
        id: controller
    }

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        source: "image://svg/%1/%2".arg(root.textColor).arg("smile")
        sourceSize: Qt.size(48, 48)
    }
    Text {
        color: root.textColor
        font.pixelSize: 26 * App.fontScaleFactor
        text: controller.text
        textFormat: Text.PlainText
    }
}
