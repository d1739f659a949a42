import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: bar

    WTabBar {
        id: bar
        WTabButton { text: "Messages" }
        WTabButton { text: "Files" }
        WTabButton { text: "Disabled"; enabled: false }
        WTabButton { text: "Whiteboard" }
    }
    WTabBar {
        width: 240
        currentIndex: 1
        WTabButton { text: "Benachrichtigungen" }
        WTabButton { text: "Tastenkombinationen" }
        WTabButton { text: "Datenschutz" }
    }
    WTabBar {
        enabled: false
        WTabButton { text: "Both" }
        WTabButton { text: "Disabled" }
    }
}
