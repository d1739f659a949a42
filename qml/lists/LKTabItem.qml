pragma ComponentBehavior: Bound

// A tab of an LKTabBar: a text between icons, with a badge; the current one is filled.
//
//     LKTabBar {
//         LKTabItem { text: "Chat"; leftIconName: "chat"; badgeText: "3" }
//         LKTabItem { middleIconName: "settings"; tooltip: "Settings" }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.TabButton {
    id: control

    property var themeType: App.themeMode
    // Names of icons, none without: at the tab's edges, and the one that a tab without a text is.
    property string leftIconName: ""
    property string middleIconName: ""
    property string rightIconName: ""
    // As the text of LKBadge; no badge without.
    property string badgeText: ""
    // Shown when the cursor or the keyboard's focus rests on the tab; its accessible name where it has no text.
    property string tooltip: ""
    property string backgroundColorSetName: checked ? "tab-active-background" : "tab-inactive-background"
    property string textColorSetName: checked ? "tab-active-text" : "tab-inactive-text"
    property string focusColorSetName: "global-focus-outline"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    // That the tab is the current one, the choice of the colour sets says.
    readonly property var look: ({ enabled: enabled, pressed: pressed, hovered: hovered })
    readonly property color textColor: ThemeUtils.getColor(look, textColorSet)
    // Pixels.
    property int iconSize: 16

    component Icon: Loader {
        id: icon

        property string name: ""
        property color color
        property int size: 16

        anchors.verticalCenter: parent?.verticalCenter
        active: name !== ""
        visible: active
        sourceComponent: WSvgIcon {
            width: icon.size
            height: icon.size
            svgName: icon.name
            svgColor: icon.color
        }
    }

    width: implicitWidth
    // Whole pixels of the screen: the tabs stand one beside the other.
    implicitWidth: Math.max(implicitHeight, Math.ceil((implicitContentWidth + leftPadding + rightPadding)
                                                      * Screen.devicePixelRatio) / Screen.devicePixelRatio)
    implicitHeight: Math.max(32, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: text === "" && badgeText === "" ? 8 : 12
    verticalPadding: 4
    spacing: 6
    font: FontConstants.subheaderSecondary
    hoverEnabled: true
    // The current tab stands for all of them when Tab moves the focus.
    focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

    Accessible.role: Accessible.PageTab
    Accessible.name: text === "" ? tooltip : text
    Accessible.description: badgeText
    Accessible.selectable: true
    Accessible.selected: checked
    Accessible.onPressAction: click()

    contentItem: Item {
        id: content

        // What stands beside the text, each with a space.
        readonly property real others: [control.leftIconName, control.middleIconName, control.rightIconName]
            .filter(name => name !== "").length * (control.iconSize + control.spacing)
            + (badge.active ? badge.implicitWidth + control.spacing : 0)

        implicitWidth: control.text === "" ? Math.max(0, others - control.spacing)
                                           : others + Math.ceil(label.implicitWidth)
        implicitHeight: Math.max(label.implicitHeight, control.iconSize)

        Row {
            id: row

            x: Math.round((parent.width - width) / 2)
            height: parent.height
            spacing: control.spacing

            Icon {
                name: control.leftIconName
                color: control.textColor
                size: control.iconSize
            }
            Icon {
                name: control.middleIconName
                color: control.textColor
                size: control.iconSize
            }
            Text {
                id: label

                width: Math.max(0, Math.min(Math.ceil(implicitWidth), control.availableWidth - content.others))
                height: parent.height
                visible: text !== ""
                text: control.text
                textFormat: Text.PlainText
                font: control.font
                color: control.textColor
                elide: Text.ElideRight
                verticalAlignment: Text.AlignVCenter
            }
            Loader {
                id: badge

                anchors.verticalCenter: parent.verticalCenter
                active: control.badgeText !== ""
                visible: active
                sourceComponent: LKBadge {
                    text: control.badgeText
                    Accessible.ignored: true
                }
            }
            Icon {
                name: control.rightIconName
                color: control.textColor
                size: control.iconSize
            }
        }
    }
    background: Rectangle {
        radius: height / 2
        color: ThemeUtils.getColor(control.look, control.backgroundColorSet)
    }

    FocusRing {
        radius: control.height / 2
        offset: 1
        colorSetName: control.focusColorSetName
    }
    ToolTipTrigger {
        text: control.tooltip
    }
}
