// A number in a round badge, such as that of unread messages. What is above the maximum is capped: "99+".
//
//     LKBadge {
//         text: conversation.unread
//         visible: conversation.unread > 0
//     }
import QtQuick
import LumakitQml 1.0

WRectangle {
    id: root

    enum BadgeType { Primary, Secondary }

    // A number, or a short text, which is shown as it stands; a dot without it.
    property string text: ""
    // The largest number that is shown; 0 for no limit.
    property int maxNumber: 99
    // What is shown.
    readonly property string labelText: isCapped ? maxNumber + "+" : text
    property int badgeType: LKBadge.Primary
    property string textColorSetName: badgeType === LKBadge.Secondary ? "badge-secondary-text" : "badge-text"
    property font font: FontConstants.tagLabelSecondary
    readonly property bool isCapped: maxNumber > 0 && /^\s*\d+\s*$/.test(text) && Number(text) > maxNumber

    implicitHeight: text === "" ? 8 : Math.max(16, 4 * Math.ceil((label.implicitHeight + 2) / 4))
    implicitWidth: text === "" ? 8 : Math.max(implicitHeight, 4 * Math.ceil((label.implicitWidth + 10) / 4))
    radius: Math.min(width, height) / 2
    backgroundColorSetName: badgeType === LKBadge.Secondary ? "badge-secondary-background" : "badge-background"

    Accessible.role: Accessible.StaticText
    Accessible.name: labelText
    Accessible.ignored: Accessible.name === ""

    WText {
        id: label

        anchors.centerIn: parent
        width: Math.min(Math.ceil(implicitWidth), root.width)
        text: root.labelText
        controlsTarget: root
        textColorSetName: root.textColorSetName
        font: root.font
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }
}
