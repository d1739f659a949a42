pragma ComponentBehavior: Bound

// A list of entries to choose from, in a balloon with an arrow, for popups. It is as wide as its widest entry needs.
// The arrows move round it, Home, End, PageUp and PageDown in it, and so do the first letters of an entry.
//
//     LKMenu {
//         model: [
//             { text: "Speaker", iconName: "speaker", checked: true },
//             { isSeparator: true },
//             { text: "Headset", enabled: false }
//         ]
//         arrowAnchor: WBalloon.Top
//         onSelectItem: index => use(index)
//     }
import QtQml.Models
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.Pane {
    id: control

    property var themeType: App.themeMode
    // Texts, or rows with the roles or properties text, iconName, checked, enabled and isSeparator, of which all but
    // the text may be missing. The model decides what is checked.
    property var model: null
    // The edge that the arrow stands on and where along it, as of WBalloon.
    property int arrowAnchor: WBalloon.None
    property int arrowAlignment: WBalloon.CenterAlignment
    // Of more entries the others are reached by scrolling.
    property int maxListItemSize: 8
    readonly property int modelCount: rows.count
    property alias currentIndex: list.currentIndex
    readonly property alias listView: list
    // Pixels. Entries that need more are elided.
    property real maximumWidth: 400
    property real minimumWidth: 160
    property int arrowSize: 8
    property int radius: 8
    property int borderWidth: 1
    property string backgroundColorSetName: "menulistbackground-primary-background"
    property string borderColorSetName: "menulistbackground-primary-border"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    // The width of the widest entry there has been.
    property real widestEntry: 0
    // Between the menu's edge and its entries.
    readonly property real inset: 4 + Math.round(borderWidth * Screen.devicePixelRatio) / Screen.devicePixelRatio

    // By mouse, Space, Enter, Return or a screen reader.
    signal selectItem(int index)

    function entryAt(index: int): var {
        const row = rows.items.get(index).model;
        return row.modelData ?? row;
    }

    function textOf(entry: var): string {
        return typeof entry === "string" ? entry : entry.text ?? "";
    }

    function canBeChosen(entry: var): bool {
        return !entry.isSeparator && (entry.enabled ?? true);
    }

    // The texts of the entries, empty where one cannot be chosen.
    function texts(): list<string> {
        const all = [];
        for (let i = 0; i < modelCount; ++i) {
            const entry = entryAt(i);
            all.push(canBeChosen(entry) ? textOf(entry) : "");
        }
        return all;
    }

    // Makes the first entry that can be chosen the current one, from `start`, at least -1, in steps of `step`, round
    // the ends.
    function moveFrom(start: int, step: int): void {
        for (let i = 0; i < modelCount; ++i) {
            const index = (start + i * step + modelCount) % modelCount;
            if (canBeChosen(entryAt(index))) {
                list.currentIndex = index;
                if (list.activeFocus)
                    list.currentItem.forceActiveFocus(Qt.TabFocusReason);
                return;
            }
        }
    }

    function moveToTyped(letter: string): void {
        const index = typeAhead.find(letter, texts(), currentIndex);
        if (index >= 0)
            moveFrom(index, 1);
    }

    function measure(): void {
        widestEntry = 0;
        for (let i = 0; i < list.count; ++i)
            widestEntry = Math.max(widestEntry, list.itemAtIndex(i)?.implicitWidth ?? 0);
    }

    // Whole pixels, of the screen too: with a fraction the border would be thicker at the end.
    function roundedUp(length: real): real {
        const grid = Number.isInteger(Screen.devicePixelRatio) ? 1 : 4;
        return Math.ceil(length / grid) * grid;
    }

    implicitWidth: roundedUp(Math.max(minimumWidth, Math.min(maximumWidth, Math.ceil(widestEntry) + scrollBar.width))
                             + leftPadding + rightPadding)
    implicitHeight: roundedUp(implicitContentHeight + topPadding + bottomPadding)
    topPadding: inset + (arrowAnchor === WBalloon.Top ? arrowSize : 0)
    bottomPadding: inset + (arrowAnchor === WBalloon.Bottom ? arrowSize : 0)
    leftPadding: inset + (arrowAnchor === WBalloon.Left ? arrowSize : 0)
    rightPadding: inset + (arrowAnchor === WBalloon.Right ? arrowSize : 0)
    font: FontConstants.bodySecondary
    focusPolicy: Qt.NoFocus

    onFontChanged: Qt.callLater(measure)
    onModelChanged: Qt.callLater(measure)
    onVisibleChanged: visible ? FocusReturn.remember(control) : FocusReturn.giveBack(control)

    Keys.onPressed: event => {
        const page = Math.max(1, maxListItemSize - 1);
        const current = currentIndex;
        event.accepted = modelCount > 0;
        switch (event.key) {
        case Qt.Key_Down:
            moveFrom(current + 1, 1);
            break;
        case Qt.Key_Up:
            moveFrom(Math.max(0, current) - 1, -1);
            break;
        case Qt.Key_Home:
            moveFrom(0, 1);
            break;
        case Qt.Key_End:
            moveFrom(-1, -1);
            break;
        case Qt.Key_PageUp:
            moveFrom(Math.max(0, current - page), 1);
            break;
        case Qt.Key_PageDown:
            moveFrom(Math.min(modelCount - 1, current + page), -1);
            break;
        default:
            event.accepted = typeAhead.accepts(event);
            if (event.accepted)
                moveToTyped(event.text);
        }
    }

    Accessible.role: Accessible.PopupMenu

    contentItem: ListView {
        id: list

        readonly property real rowHeight: Math.max(32, Math.ceil(metrics.height) + 8)

        implicitHeight: Math.min(contentHeight, control.maxListItemSize * rowHeight)
        currentIndex: -1
        contentX: control.mirrored ? -scrollBar.width : 0 // a view keeps its rows at 0 there
        focus: true
        activeFocusOnTab: true
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: false
        T.ScrollBar.vertical: scrollBar.item as T.ScrollBar
        model: rows

        onActiveFocusChanged: {
            if (activeFocus && currentIndex < 0)
                control.moveFrom(0, 1);
        }

        Loader {
            id: scrollBar

            parent: list
            anchors.right: parent.right
            height: list.height
            active: list.interactive
            sourceComponent: LKScrollBar {
                orientation: Qt.Vertical
            }
        }
    }
    background: WToolTip.Balloon {
        arrowAnchor: control.arrowAnchor
        arrowAlignment: control.arrowAlignment
        arrowSize: control.arrowSize
        radius: control.radius
        lineWidth: control.borderWidth
        lineColor: ThemeUtils.getColor(control, control.borderColorSet)
        fillColor: ThemeUtils.getColor(control, control.backgroundColorSet)
    }

    DelegateModel {
        id: rows

        model: control.model
        delegate: FocusScope {
            id: row

            required property int index
            required property var model
            readonly property var entry: model.modelData ?? model

            width: Math.max(0, list.width - scrollBar.width)
            implicitWidth: content.implicitWidth
            implicitHeight: content.implicitHeight

            onImplicitWidthChanged: control.widestEntry = Math.max(control.widestEntry, implicitWidth)

            Loader {
                id: content

                width: parent.width
                focus: true
                sourceComponent: row.entry.isSeparator ? separator : item
            }
            Component {
                id: separator

                LKMenuSeparator {}
            }
            Component {
                id: item

                LKMenuItem {
                    focus: true
                    implicitHeight: list.rowHeight
                    text: control.textOf(row.entry)
                    font: control.font
                    indicatorSvgName: row.entry.iconName ?? ""
                    checkable: row.entry.checked !== undefined
                    checked: row.entry.checked ?? false
                    enabled: row.entry.enabled ?? true
                    onToggled: checked = Qt.binding(() => row.entry.checked ?? false)
                    onSelectItem: {
                        list.currentIndex = row.index;
                        control.selectItem(row.index);
                    }
                }
            }
        }
    }
    FontMetrics {
        id: metrics

        font: control.font
    }
    WMenu.TypeAhead {
        id: typeAhead
    }
}
