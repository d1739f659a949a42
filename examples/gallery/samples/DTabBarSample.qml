import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: bar

    DTabBar {
        id: bar
        DTabButton { text: "Messages" }
        DTabButton { text: "Files" }
        DTabButton { text: "Disabled"; enabled: false }
        DTabButton { text: "Whiteboard" }
    }
    DTabBar {
        width: 240
        currentIndex: 1
        DTabButton { text: "Benachrichtigungen" }
        DTabButton { text: "Tastenkombinationen" }
        DTabButton { text: "Datenschutz" }
    }
    DTabBar {
        enabled: false
        DTabButton { text: "Both" }
        DTabButton { text: "Disabled" }
    }
}
