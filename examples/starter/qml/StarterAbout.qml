// A dialog of its root item's size.
import QtQuick
import Corvane 1.0
import LumakitQml 1.0

WRectangle {
    width: 320
    height: 120
    backgroundColorSetName: "panel-primary-background"

    Text {
        anchors.centerIn: parent
        color: App.themeMode === "" ? "transparent" : App.getColorSet("label-primary-text").normal
        text: "The smallest host of LumakitQml."
        textFormat: Text.PlainText
    }
}
