import QtQuick

GallerySample {
    subject: tab

    LKTabItem {
        id: tab
        text: "Chat"
        leftIconName: "chat"
        badgeText: "3"
        checked: true
    }
    LKTabItem {
        text: "Files"
        rightIconName: "chevron-down-bold"
    }
    LKTabItem {
        middleIconName: "settings"
        tooltip: "Settings"
    }
    LKTabItem {
        text: "Disabled"
        leftIconName: "users"
        enabled: false
    }
    LKTabItem {
        width: 140
        text: "Too long for its width"
        leftIconName: "file"
        badgeText: "120"
    }
}
