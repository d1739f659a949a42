pragma ComponentBehavior: Bound

// An entry of a menu: a text, with an icon or a tick before it and, for a submenu, an arrow behind it.
//
//     WMenu {
//         WMenuItem { text: "Copy"; indicatorSvgName: "copy"; onTriggered: editor.copy() }
//         WMenuItem { text: "Wrap lines"; checkable: true }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.MenuItem {
    id: control

    property string indicatorColorSetName: "listitem-icon"
    // The icon before the text; a checked entry shows the tick in its place.
    property string indicatorSvgName: icon.name
    property string textColorSetName: "listitem-textprimary"
    // What is painted behind the content.
    property Rectangle itemBackGround: Rectangle {
        radius: 4
        color: ThemeUtils.getColor(control.look, control.backgroundColorSet)
    }
    // Whether there is room before the text for an icon or a tick. The texts of a menu stand below each other anyway.
    property bool hasIndicator: checkable || indicatorSvgName !== ""
    property bool hasArrow: subMenu !== null
    property int itemLeftRightPadding: 12
    property var themeType: App.themeMode
    property var indicatorColorSet: themeType === undefined ? null : App.getColorSet(indicatorColorSetName)
    property string checkIndicatorSvgName: "check-bold"
    property string backgroundColorSetName: "listitem-background"
    property string focusColorSetName: "global-focus-outline"
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    // The state that picks the colours. In a menu the cursor and the keys move the same highlight; a tick says enough
    // about what is checked.
    readonly property var look: ({ enabled: enabled, pressed: down, hovered: menu ? highlighted : hovered })
    readonly property string shownIndicatorSvgName: checked ? checkIndicatorSvgName : indicatorSvgName
    readonly property real indicatorRoom: menu ? textPadding : implicitTextPadding
    readonly property real arrowRoom: hasArrow ? 16 + spacing : 0

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(32, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: itemLeftRightPadding
    verticalPadding: 4
    spacing: 8
    implicitTextPadding: hasIndicator ? 16 + spacing : 0
    font: FontConstants.bodySecondary
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    // Return and Enter click as Space does; a key that is held down does so once.
    Keys.onPressed: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isReturn || event.key === Qt.Key_Space && event.isAutoRepeat;
        if (isReturn && !event.isAutoRepeat)
            click();
    }
    Keys.onReleased: event => event.accepted = event.key === Qt.Key_Space && event.isAutoRepeat

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: click()

    contentItem: Text {
        leftPadding: control.mirrored ? control.arrowRoom : control.indicatorRoom
        rightPadding: control.mirrored ? control.indicatorRoom : control.arrowRoom
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: ThemeUtils.getColor(control.look, control.textColorSet)
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
    indicator: Loader {
        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: Math.round((control.height - height) / 2)
        active: control.hasIndicator && control.shownIndicatorSvgName !== ""
        sourceComponent: WSvgIcon {
            width: 16
            height: 16
            svgName: control.shownIndicatorSvgName
            svgColor: ThemeUtils.getColor(control.look, control.indicatorColorSet)
        }
    }
    arrow: Loader {
        x: control.mirrored ? control.leftPadding : control.width - width - control.rightPadding
        y: Math.round((control.height - height) / 2)
        active: control.hasArrow
        sourceComponent: WSvgIcon {
            width: 16
            height: 16
            svgName: control.mirrored ? "chevron-left-bold" : "chevron-right-bold"
            svgColor: ThemeUtils.getColor(control.look, control.indicatorColorSet)
        }
    }
    background: itemBackGround

    FocusRing {
        radius: control.itemBackGround.radius
        offset: -2
        colorSetName: control.focusColorSetName
    }
}
