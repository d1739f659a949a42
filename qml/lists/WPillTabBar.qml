pragma ComponentBehavior: Bound

// A row of round tabs. Those that do not fit are in a list behind a "more" button; the current tab is always in sight.
// Left, Right, Home and End move the focus, Space, Enter and Return choose.
//
//     WPillTabBar {
//         width: 320
//         model: ["All", "Direct", "Spaces"]
//         moreTooltip: "More filters"
//         onClicked: index => messages.filter = index
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

Item {
    id: root

    // The list of the tabs that do not fit was closed without a choice since it was last opened.
    property bool overflowListWasClosed: false
    // Pixels; a tab whose text needs more is higher.
    property int tabHeight: 32
    // Before and behind a tab's text, pixels.
    property int tabPadding: 12
    // Of all tabs, pixels; 0 or less makes each as wide as its text needs.
    property int tabWidth: 0
    // Around the tabs, pixels.
    property int containerPadding: 4
    readonly property alias tabView: row
    // The "more" button; null while all tabs fit.
    readonly property T.Button overflowButton: more.item as T.Button
    // The list behind that button, once it has been opened.
    property WButtonsOverflowList overflowList: null
    property var themeType: App.themeMode
    property string backgroundColorSetName: ""
    property string borderColorSetName: ""
    // Of the tabs' icons and of the "more" button.
    property string iconColorSetName: "tab-inactive-text"
    // Texts, or objects with `text` and, if wanted, `iconName`, `enabled` and `tooltip`.
    property var model: []
    property int currentIndex: 0
    property string moreTooltip: qsTr("More")
    property string moreIconName: "more-horizontal-bold"
    property string tabBackgroundColorSetName: "tab-inactive-background"
    property string tabTextColorSetName: "tab-inactive-text"
    property string currentTabBackgroundColorSetName: "tab-active-background"
    property string currentTabTextColorSetName: "tab-active-text"
    property string focusColorSetName: "global-focus-outline"
    // Between tabs, pixels.
    property int spacing: 4
    property int borderWidth: 1
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property font font: FontConstants.subheaderSecondary
    readonly property int count: model?.length ?? 0
    readonly property var widths: Array.from({ length: count }, (_, index) => widthOf(index))
    // Of a tab that is alone, but for the "more" button; its text is elided.
    readonly property real maximumWidth: Math.max(lineHeight, width - 2 * containerPadding
                                                              - (more.active ? lineHeight + spacing : 0))
    readonly property int lineHeight: Math.max(tabHeight, Math.ceil(metrics.height) + 8)
    // The indexes of the tabs in sight, and of those in the list.
    readonly property var shown: fitting()
    readonly property var hidden: Array.from(widths.keys()).filter(index => !shown.includes(index))

    readonly property bool hasFocusInside: stops().includes(Window.activeFocusItem)

    // A tab was chosen, also the current one again.
    signal clicked(int index)
    // Escape in the bar; not in the list, which it closes.
    signal escapePressed
    // The focus is about to go to the list, and comes back when that closes.
    signal shouldSaveFocusState

    function entry(index: int): var {
        const value = model?.[index];
        return typeof value === "string" ? { text: value } : value ?? {};
    }

    function widthOf(index: int): real {
        if (tabWidth > 0)
            return tabWidth;
        const icon = entry(index).iconName ? 16 : 0;
        const text = entry(index).text ?? "";
        const gap = icon > 0 && text !== "" ? 6 : 0;
        return Math.max(lineHeight, Math.ceil(advance(text, metrics.height)) + icon + gap + 2 * tabPadding);
    }

    // The font's height only tells bindings when its widths have changed.
    function advance(text: string, fontHeight: real): real {
        return fontHeight > 0 ? metrics.advanceWidth(text) : 0;
    }

    function totalWidth(): real {
        return widths.reduce((sum, tab) => sum + tab, Math.max(0, count - 1) * spacing) + 2 * containerPadding;
    }

    // The first tabs that have room, and the current one.
    function fitting(): var {
        const all = Array.from(widths.keys());
        if (totalWidth() <= width)
            return all;
        const hasCurrent = currentIndex >= 0 && currentIndex < count;
        let room = width - 2 * containerPadding - lineHeight - (hasCurrent ? widths[currentIndex] + spacing : 0);
        return all.filter(index => {
            if (index === currentIndex)
                return true;
            room -= widths[index] + spacing;
            return room >= 0;
        });
    }

    function choose(index: int): void {
        currentIndex = index;
        clicked(index);
    }

    function toggleList(): void {
        if (overflowList?.visible) {
            overflowList.close();
            return;
        }
        if (!overflowList)
            overflowList = listComponent.createObject(overflowButton) as WButtonsOverflowList;
        shouldSaveFocusState();
        overflowListWasClosed = false;
        overflowList.open();
    }

    // The tabs and the "more" button, as far as they take the focus.
    function stops(): var {
        const items = Array.from({ length: tabs.count }, (_, index) => tabs.itemAt(index));
        return items.concat(overflowButton ?? []).filter(item => item?.enabled);
    }

    function updatePlaces(): void {
        while (places.count < shown.length)
            places.append({});
        if (places.count > shown.length)
            places.remove(shown.length, places.count - shown.length);
    }

    implicitWidth: Math.ceil(totalWidth())
    implicitHeight: lineHeight + 2 * containerPadding

    onShownChanged: updatePlaces()
    Component.onCompleted: updatePlaces()

    Keys.onEscapePressed: escapePressed()
    Keys.onPressed: event => {
        const items = stops();
        const current = items.findIndex(item => item.activeFocus);
        const next = LayoutMirroring.enabled ? -1 : 1;
        const wanted = {
            [Qt.Key_Left]: current - next,
            [Qt.Key_Right]: current + next,
            [Qt.Key_Home]: 0,
            [Qt.Key_End]: items.length - 1
        }[event.key];
        event.accepted = wanted !== undefined;
        if (event.accepted)
            items[Math.max(0, Math.min(items.length - 1, wanted))]?.forceActiveFocus(Qt.TabFocusReason);
    }

    Accessible.role: Accessible.PageTabList

    // One row for each tab in sight, so that a tab more or less leaves the others as they are.
    ListModel {
        id: places
    }
    FontMetrics {
        id: metrics

        font: root.font
    }
    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: ThemeUtils.getColor(root, root.backgroundColorSet)
        border.width: root.borderColorSetName === "" ? 0 : root.borderWidth
        border.color: ThemeUtils.getColor(root, root.borderColorSet)
    }
    Row {
        id: row

        LayoutMirroring.enabled: root.LayoutMirroring.enabled
        anchors.left: parent.left
        anchors.leftMargin: root.containerPadding
        y: root.containerPadding
        spacing: root.spacing

        Repeater {
            id: tabs

            model: places

            WSvgButton {
                id: tab

                required property int index
                readonly property int place: root.shown[index] ?? -1
                readonly property var entry: root.entry(place)

                width: Math.min(root.widths[place] ?? 0, root.maximumWidth)
                height: root.lineHeight
                horizontalPadding: root.tabPadding
                enabled: entry.enabled ?? true
                text: entry.text ?? ""
                iconName: entry.iconName ?? ""
                tooltip: entry.tooltip ?? ""
                checked: place === root.currentIndex
                font: root.font
                // The current tab stands for all when Tab moves the focus into the bar.
                focusPolicy: activeFocus || !root.hasFocusInside && (checked || root.currentIndex < 0 && index === 0)
                    ? Qt.StrongFocus : Qt.ClickFocus
                backgroundColorSetName: checked ? root.currentTabBackgroundColorSetName
                                                : root.tabBackgroundColorSetName
                borderColorSetName: ""
                textColorSetName: checked ? root.currentTabTextColorSetName : root.tabTextColorSetName
                iconColorSetName: checked ? textColorSetName : root.iconColorSetName
                focusColorSetName: root.focusColorSetName

                onTriggered: root.choose(place)

                Accessible.role: Accessible.PageTab
                Accessible.onPressAction: tab.click()
                Accessible.selectable: true
                Accessible.selected: checked
            }
        }
        Loader {
            id: more

            active: root.hidden.length > 0
            sourceComponent: WSvgIconButton {
                width: root.lineHeight
                height: root.lineHeight
                focusPolicy: activeFocus ? Qt.StrongFocus : Qt.ClickFocus
                iconName: root.moreIconName
                iconColorSetName: root.iconColorSetName
                backgroundColorSetName: root.tabBackgroundColorSetName
                borderColorSetName: ""
                focusColorSetName: root.focusColorSetName
                tooltip: root.moreTooltip
                checked: root.overflowList?.visible ?? false

                onTriggered: root.toggleList()
            }
        }
    }
    Component {
        id: listComponent

        WButtonsOverflowList {
            // Whether the keyboard opened it, and gets to see where the focus goes.
            property bool isByKeyboard: false
            readonly property int focusReason: isByKeyboard ? Qt.TabFocusReason : Qt.OtherFocusReason

            model: root.hidden.map(index => root.entry(index))

            onAboutToShow: isByKeyboard = root.overflowButton.visualFocus
            onClosed: {
                const focused = root.Window.activeFocusItem;
                root.overflowListWasClosed = true;
                if (!focused || focused === root.Window.contentItem)
                    root.overflowButton?.forceActiveFocus(focusReason);
            }
            onClicked: index => {
                root.overflowListWasClosed = false;
                root.choose(root.hidden[index]);
                root.stops().find(item => item.checked)?.forceActiveFocus(focusReason);
            }
            // Shift+Tab leads to the button, as Escape does.
            onTabPressed: root.overflowButton.nextItemInFocusChain()?.forceActiveFocus(Qt.TabFocusReason)
        }
    }
}
