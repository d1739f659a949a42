pragma ComponentBehavior: Bound

// A choice of one from a list that drops down. The arrows and letters choose also while it is closed; Space, Return, F4
// and Alt with an arrow open it.
//
//     WComboBox {
//         model: ["Front camera", "Back camera"]
//         onActivated: index => video.useCamera(index)
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.ComboBox {
    id: control

    property string backgroundBorderColorSetName: "combobox-border"
    property string backgroundColorSetName: "combobox-background"
    // A row of the list under the cursor or the keyboard's selection, and at rest.
    property color delegateItemHighlightColor: delegateItemColorSet.hovered
    property color delegateItemNormalColor: delegateItemColorSet.normal
    // The text of the chosen row.
    property string textSelectedColorSetName: "listitem-textprimary"
    property string textColorSetName: "combobox-text"
    // Radii and padding in pixels.
    property real backgroundBorderRadius: 4
    property real popupRadius: 8
    property real popupItemRadius: 4
    property int popupPadding: 4
    property color popupBackgroundColor: popupBackgroundColorSet.normal
    // Whether a tick marks the chosen row.
    property bool tickEnabled: true
    // Pixels; a longer list scrolls.
    property real popupMaxHeight: 320
    // Shown while nothing is chosen.
    property string placeholderText: ""
    // Shown when the cursor or the keyboard's focus rests on the control; its accessible name.
    property string tooltip: ""
    property int borderWidth: 1
    property string placeholderColorSetName: "combobox-placeholder-text"
    property string iconColorSetName: "combobox-icon"
    property string tickColorSetName: "listitem-tick"
    property string popupBackgroundColorSetName: "menulistbackground-primary-background"
    property string popupBorderColorSetName: "menulistbackground-primary-border"
    property string delegateItemColorSetName: "listitem-background"
    property string focusColorSetName: "global-focus-outline"
    property var themeType: App.themeMode
    property var backgroundBorderColorSet: themeType === undefined ? null
                                                                   : App.getColorSet(backgroundBorderColorSetName)
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var textSelectedColorSet: themeType === undefined ? null : App.getColorSet(textSelectedColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property var placeholderColorSet: themeType === undefined ? null : App.getColorSet(placeholderColorSetName)
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)
    property var tickColorSet: themeType === undefined ? null : App.getColorSet(tickColorSetName)
    property var popupBackgroundColorSet: themeType === undefined ? null : App.getColorSet(popupBackgroundColorSetName)
    property var popupBorderColorSet: themeType === undefined ? null : App.getColorSet(popupBorderColorSetName)
    property var delegateItemColorSet: themeType === undefined ? null : App.getColorSet(delegateItemColorSetName)
    // How far PageUp and PageDown go.
    property int pageRows: 8
    readonly property bool isPlaceholderVisible: !editable && displayText === ""

    // Moves the keyboard's selection in the open list.
    function highlight(rows: int): void {
        for (let i = 0; i < Math.abs(rows); ++i) {
            if (rows < 0)
                decrementCurrentIndex();
            else
                incrementCurrentIndex();
        }
    }

    // As the user would: with activated(), and without undoing a binding of the index.
    function choose(index: int): void {
        const wanted = Math.max(0, Math.min(count - 1, index));
        if (count === 0 || wanted === currentIndex)
            return;
        const setter = indexSetter.createObject(control, { "value": wanted }) as PropertyAction;
        setter.start();
        setter.destroy();
        activated(wanted);
    }

    implicitWidth: Math.max(160, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(32, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    leftPadding: mirrored ? 32 : 12
    rightPadding: mirrored ? 12 : 32
    verticalPadding: 4
    font: FontConstants.bodySecondary
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    onEnabledChanged: {
        if (!enabled)
            popup.close();
    }

    Keys.onPressed: event => {
        const isOpener = event.key === Qt.Key_F4
            || event.modifiers & Qt.AltModifier && (event.key === Qt.Key_Up || event.key === Qt.Key_Down);
        const isPager = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
        const page = event.key === Qt.Key_PageUp ? -pageRows : pageRows;
        event.accepted = true;
        if (isOpener && !popup.visible)
            popup.open();
        else if (isPager && !popup.visible)
            choose(currentIndex + page);
        else if (isPager)
            highlight(page);
        else
            event.accepted = false;
    }
    // Of these two keys the release closes the list.
    Keys.onReleased: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isReturn && !event.isAutoRepeat && !editable && !popup.visible;
        if (event.accepted)
            popup.open();
    }

    Accessible.name: tooltip === "" ? displayText : tooltip
    // No platform knows it as the value of a combo box.
    Accessible.description: Accessible.name === displayText ? "" : displayText
    Accessible.onPressAction: {
        if (enabled)
            popup.visible = !popup.visible;
    }

    indicator: WSvgIcon {
        x: control.mirrored ? 12 : control.width - width - 12
        y: Math.round((control.height - height) / 2)
        width: 16
        height: 16
        svgName: "chevron-down-bold"
        svgColor: ThemeUtils.getColor(control, control.iconColorSet)
    }
    contentItem: (editable ? fieldContent : textContent).createObject(control) as Item
    background: Rectangle {
        radius: control.backgroundBorderRadius
        color: ThemeUtils.getColor(control, control.backgroundColorSet)
        border.width: control.borderWidth
        border.color: ThemeUtils.getColor(control, control.backgroundBorderColorSet)
    }
    delegate: T.ItemDelegate {
        id: row

        required property int index
        required property var model
        readonly property bool isChosen: control.currentIndex === index
        readonly property var entry: model.modelData ?? model

        width: list.width - list.barRoom
        implicitHeight: Math.max(32, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
        leftPadding: mirrored && control.tickEnabled ? 32 : 8
        rightPadding: !mirrored && control.tickEnabled ? 32 : 8
        verticalPadding: 4
        text: control.textRole === "" ? control.textAt(index) : entry[control.textRole] ?? ""
        font: control.font
        highlighted: control.highlightedIndex === index
        hoverEnabled: true

        Accessible.role: Accessible.ListItem
        Accessible.name: text
        Accessible.selectable: true
        Accessible.selected: isChosen
        Accessible.onPressAction: click()

        contentItem: Text {
            text: row.text
            textFormat: Text.PlainText
            font: row.font
            color: ThemeUtils.getColor(control, row.isChosen ? control.textSelectedColorSet : control.textColorSet)
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
        }
        background: Rectangle {
            radius: control.popupItemRadius
            color: row.highlighted ? control.delegateItemHighlightColor : control.delegateItemNormalColor
        }

        Loader {
            x: row.mirrored ? 8 : row.width - width - 8
            y: Math.round((row.height - height) / 2)
            active: control.tickEnabled && row.isChosen
            sourceComponent: WSvgIcon {
                width: 16
                height: 16
                svgName: "check-bold"
                svgColor: ThemeUtils.getColor(control, control.tickColorSet)
            }
        }
    }
    popup: T.Popup {
        // Below or above the control, whichever is more; with less than that the list covers the control.
        property real room: 96

        y: control.height + 4
        width: control.width
        implicitHeight: Math.min(control.popupMaxHeight, room, contentHeight + topPadding + bottomPadding)
        contentHeight: list.contentHeight

        padding: control.popupPadding
        margins: 4

        onAboutToShow: {
            contentItem.parent.Accessible.ignored = true; // the list is what is shown
            const above = control.mapToItem(null, 0, 0).y;
            const below = control.Window.height - above - control.height;
            room = Math.max(96, Math.max(above, below) - 8);
        }

        contentItem: ListView {
            id: list

            readonly property real barRoom: bar.visible ? bar.width : 0

            model: control.delegateModel
            currentIndex: control.highlightedIndex
            contentX: bar.mirrored ? -barRoom : 0 // a view keeps its rows at 0 there
            clip: interactive
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0

            LayoutMirroring.enabled: control.mirrored
            LayoutMirroring.childrenInherit: true

            Accessible.role: Accessible.List

            T.ScrollBar.vertical: LKScrollBar {
                id: bar
            }
        }
        background: Rectangle {
            radius: control.popupRadius
            color: control.popupBackgroundColor
            border.width: control.borderWidth
            border.color: ThemeUtils.getColor(control, control.popupBorderColorSet)
        }
    }

    Component {
        id: indexSetter

        PropertyAction {
            target: control
            property: "currentIndex"
        }
    }
    Component {
        id: textContent

        Text {
            text: control.isPlaceholderVisible ? control.placeholderText : control.displayText
            textFormat: Text.PlainText
            font: control.font
            color: ThemeUtils.getColor(control, control.isPlaceholderVisible ? control.placeholderColorSet
                                                                             : control.textColorSet)
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
        }
    }
    Component {
        id: fieldContent

        T.TextField {
            text: control.editText
            readOnly: control.down
            autoScroll: true
            selectByMouse: control.selectTextByMouse
            inputMethodHints: control.inputMethodHints
            validator: control.validator
            font: control.font
            color: ThemeUtils.getColor(control, control.textColorSet)
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter

            Accessible.name: control.Accessible.name
        }
    }
    FocusRing {
        radius: control.backgroundBorderRadius
        colorSetName: control.focusColorSetName
    }
    ToolTipTrigger {
        text: control.tooltip
    }
}
