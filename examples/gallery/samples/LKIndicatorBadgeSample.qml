import QtQuick

GallerySample {
    subject: badge

    LKIndicatorBadge {
        id: badge
    }
    LKIndicatorBadge {
        indicatorType: LKIndicatorBadge.Caution
    }
    LKIndicatorBadge {
        indicatorType: LKIndicatorBadge.Error
    }
    LKIndicatorBadge {
        indicatorType: LKIndicatorBadge.Recording
    }
    LKIndicatorBadge {
        indicatorType: LKIndicatorBadge.Success
    }
    LKIndicatorBadge {
        indicatorType: LKIndicatorBadge.Warning
    }
    LKIndicatorBadge {
        isSelected: true
    }
    LKIndicatorBadge {
        enabled: false
    }
}
