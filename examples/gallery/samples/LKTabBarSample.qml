import QtQuick

GallerySample {
    subject: bar

    LKTabBar {
        id: bar

        LKTabItem {
            text: "Chat"
            leftIconName: "chat"
            badgeText: "3"
        }
        LKTabItem {
            text: "Files"
        }
        LKTabItem {
            middleIconName: "settings"
            tooltip: "Settings"
        }
    }
    LKTabBar {
        width: 200
        currentIndex: 1

        LKTabItem {
            text: "Conversations"
        }
        LKTabItem {
            text: "Files"
        }
        LKTabItem {
            text: "Reached by scrolling"
        }
    }
}
