pragma ComponentBehavior: Bound

// A button with an icon, a text and a badge, such as one that opens unread messages.
//
//     LKBadgeButton {
//         iconName: "chat-bold"
//         buttonText: "Messages"
//         badgeText: inbox.unread > 0 ? inbox.unread : ""
//         onTriggered: inbox.open()
//     }
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

WButton {
    id: control

    // The name of an icon; none without.
    property string iconName: ""
    property string buttonText: ""
    // A number or a short text.
    property string badgeText: ""
    property string iconColorSetName: textColorSetName
    // Pixels.
    property int iconHeight: 16
    property int iconWidth: 16
    // A wider text is elided, pixels.
    property int maxTextWidth: 200
    // A badge without a text is a dot.
    property bool badgeVisible: badgeText !== ""
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)
    property color iconColor: ThemeUtils.getColor(control, iconColorSet)

    horizontalPadding: buttonText === "" && !badgeVisible ? verticalPadding : 12
    text: buttonText
    isRectangle: false

    Accessible.description: badgeVisible ? badgeText : ""

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        RowLayout {
            id: row

            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width)
            spacing: control.spacing

            WSvgIcon {
                Layout.preferredWidth: control.iconWidth
                Layout.preferredHeight: control.iconHeight
                visible: svgName !== ""
                svgName: control.iconName
                svgColor: control.iconColor
            }
            Text {
                Layout.fillWidth: true
                Layout.preferredWidth: Math.min(Math.ceil(implicitWidth), control.maxTextWidth)
                visible: text !== ""
                text: control.text
                textFormat: Text.PlainText
                font: control.font
                color: control.textColor
                elide: control.elide
                horizontalAlignment: Text.AlignLeft
            }
            Loader {
                visible: active
                active: control.badgeVisible
                sourceComponent: LKBadge {
                    themeType: control.themeType
                    text: control.badgeText
                    controlsTarget: control
                    Accessible.ignored: true
                }
            }
        }
    }
}
