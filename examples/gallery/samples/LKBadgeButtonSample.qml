import QtQuick

GallerySample {
    subject: button

    LKBadgeButton {
        id: button
        iconName: "chat-bold"
        buttonText: "Messages"
        badgeText: "3"
    }
    LKBadgeButton {
        iconName: "bell-bold"
        buttonText: "Capped"
        badgeText: "1500"
    }
    LKBadgeButton {
        iconName: "bell-bold"
        buttonText: "A dot"
        badgeVisible: true
    }
    LKBadgeButton {
        iconName: "chat-bold"
        buttonText: "No badge"
    }
    LKBadgeButton {
        iconName: "bell-bold"
        tooltip: "New notifications"
        badgeText: "7"
    }
    LKBadgeButton {
        iconName: "bell-bold"
        tooltip: "No notifications"
    }
    LKBadgeButton {
        iconName: "chat-bold"
        buttonText: "Disabled"
        badgeText: "3"
        enabled: false
    }
    LKBadgeButton {
        iconName: "users-bold"
        buttonText: "Benachrichtigungseinstellungen"
        badgeText: "12"
        maxTextWidth: 120
    }
    LKBadgeButton {
        width: 140
        iconName: "users-bold"
        buttonText: "Too long for its width"
        badgeText: "12"
    }
    LKBadgeButton {
        iconName: "calendar-bold"
        buttonText: "Primary"
        badgeText: "2"
        backgroundColorSetName: "button-primary-background"
        borderColorSetName: ""
        textColorSetName: "button-primary-text"
    }
}
