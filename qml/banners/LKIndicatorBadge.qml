// A small sign on an icon or in a row that tells a state by its colour and shape.
//
//     LKIndicatorBadge {
//         indicatorType: LKIndicatorBadge.Warning
//         isSelected: row.checked
//     }
import QtQuick

WSvgIcon {
    // Error is also the name of Image.Error and has its value, so that it does not matter which of them is meant.
    enum IndicatorType { Notification, Caution, Warning, Error, Recording, Success }

    // Whether what the sign stands on is shown as chosen.
    property bool isSelected: false
    property int indicatorType: LKIndicatorBadge.Notification

    function iconOf(type: int): string {
        switch (type) {
        case LKIndicatorBadge.Caution: return "info-filled";
        case LKIndicatorBadge.Error: return "error-filled";
        case LKIndicatorBadge.Recording: return "record-filled";
        case LKIndicatorBadge.Success: return "success-filled";
        case LKIndicatorBadge.Warning: return "warning-filled";
        default: return "bell-filled";
        }
    }

    function colorSetOf(type: int): string {
        switch (type) {
        case LKIndicatorBadge.Caution: return "badge-caution-indicator";
        case LKIndicatorBadge.Error: return "badge-error-indicator";
        case LKIndicatorBadge.Recording: return "badge-recording-indicator";
        case LKIndicatorBadge.Success: return "badge-success-indicator";
        case LKIndicatorBadge.Warning: return "badge-warning-indicator";
        default: return "badge-notification-indicator";
        }
    }

    width: 16
    height: 16
    svgName: iconOf(indicatorType)
    svgColorSetName: colorSetOf(indicatorType)
    svgColor: !svgColorSet?.isValid ? "transparent"
            : !enabled ? svgColorSet.disabled : isSelected ? svgColorSet.checked : svgColorSet.normal

    Accessible.role: Accessible.Indicator
}
