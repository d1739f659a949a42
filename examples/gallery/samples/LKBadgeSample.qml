import QtQuick

GallerySample {
    subject: badge

    LKBadge {
        id: badge
        text: "3"
    }
    LKBadge {
        text: "100"
    }
    LKBadge {
        text: "12"
        badgeType: LKBadge.Secondary
    }
    LKBadge {
        text: "New"
        badgeType: LKBadge.Secondary
    }
    LKBadge {}
    LKBadge {
        text: "7"
        enabled: false
    }
}
