import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: bar

    WPillTabBar {
        id: bar
        model: ["All", "Direct", "Spaces", "Unread"]
        currentIndex: 1
    }
    WPillTabBar {
        model: [
            { text: "Chat", iconName: "chat-bold" },
            { text: "Calls", iconName: "phone-bold", enabled: false },
            { iconName: "star-bold", tooltip: "Favourites" }
        ]
        backgroundColorSetName: "panel-secondary-background"
        borderColorSetName: "separator-primary"
    }
    WPillTabBar {
        width: 320
        model: ["Nachrichten", "Besprechungen", "Anrufe", "Benachrichtigungen"]
        currentIndex: 2
        moreTooltip: "More"
    }
    WPillTabBar {
        tabWidth: 96
        model: ["Fixed", "Widths", "Are elided where needed"]
    }
    WPillTabBar {
        enabled: false
        model: ["Disabled", "Too"]
    }
}
