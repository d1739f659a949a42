pragma ComponentBehavior: Bound

// The window: a greeting, which arrives as a component of its own, and two links.
import QtQuick
import Corvane 1.0
import LumakitQml 1.0

WRectangle {
    implicitWidth: 480
    implicitHeight: 280
    backgroundColorSetName: "panel-primary-background"

    Item {
        objectName: "greeting"
        anchors.fill: parent
        anchors.bottomMargin: 64
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        spacing: 32

        Repeater {
            model: [
                { label: () => App.isDarkTheme ? "Light theme" : "Dark theme", action: () => App.toggleTheme() },
                { label: () => "About", action: () => App.showAbout() }
            ]

            Text {
                id: link

                required property var modelData

                activeFocusOnTab: true
                color: App.themeMode === "" ? "transparent" : App.getColorSet("hyperlink-accent-text").normal
                font.underline: activeFocus
                text: modelData.label()
                textFormat: Text.PlainText

                Accessible.role: Accessible.Link
                Accessible.name: text
                Accessible.onPressAction: modelData.action()
                Keys.onReturnPressed: modelData.action()

                TapHandler {
                    onTapped: link.modelData.action()
                }
            }
        }
    }
}
