// A tab of a WTabBar, as wide as its text needs; the current one is underlined.
//
//     WTabBar {
//         WTabButton { text: "Messages" }
//         WTabButton { text: "Files" }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.TabButton {
    id: control

    readonly property alias backgroundItem: area
    readonly property alias underlineItem: line
    readonly property alias textItem: label
    property string backgroundColorSetName: "tab-inactive-background"
    property string textColorSetName: "tab-inactive-text"
    property string underlineColorSetName: "tab-active-text"
    property string focusColorSetName: "global-focus-outline"
    // Shown when the cursor or the keyboard's focus rests on the tab; its accessible name where it has no text.
    property string tooltip: ""
    // Of the corners, pixels.
    property real radius: 4
    property var themeType: App.themeMode
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property var underlineColorSet: themeType === undefined ? null : App.getColorSet(underlineColorSetName)
    // The background tells nothing of the current tab: the line does.
    readonly property var uncheckedState: ({ enabled: enabled, pressed: pressed, hovered: hovered })

    width: implicitWidth
    // Whole pixels of the screen: the tabs stand one beside the other.
    implicitWidth: Math.ceil((implicitContentWidth + leftPadding + rightPadding) * Screen.devicePixelRatio)
                   / Screen.devicePixelRatio
    implicitHeight: Math.max(40, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: 12
    verticalPadding: 4
    font: FontConstants.subheaderSecondary
    hoverEnabled: true
    // The current tab stands for all of them when Tab moves the focus.
    focusPolicy: checked || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

    Accessible.name: text === "" ? tooltip : text
    Accessible.selectable: true
    Accessible.selected: checked
    Accessible.onPressAction: {
        if (!checked)
            toggle();
        click();
    }

    contentItem: Text {
        id: label

        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: ThemeUtils.getColor(control, control.textColorSet)
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        id: area

        radius: control.radius
        color: ThemeUtils.getColor(control.uncheckedState, control.backgroundColorSet)

        Rectangle {
            id: line

            x: control.leftPadding
            y: parent.height - height
            width: control.availableWidth
            height: Math.round(2 * Screen.devicePixelRatio) / Screen.devicePixelRatio
            radius: height / 2
            visible: control.checked
            color: ThemeUtils.getColor({ enabled: control.enabled }, control.underlineColorSet)
        }
    }

    FocusRing {
        radius: control.radius
        offset: -2
        colorSetName: control.focusColorSetName
    }
    ToolTipTrigger {
        text: control.tooltip
    }
}
