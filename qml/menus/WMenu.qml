pragma ComponentBehavior: Bound

// A menu, as wide as its widest entry needs. A menu in it is a submenu; one that is higher than the window scrolls.
//
//     WMenu {
//         id: menu
//         WMenuItem { text: "Rename"; onTriggered: page.rename() }
//         WMenuSeparator {}
//         WMenu {
//             title: "Move to"
//             WMenuItem { text: "Archive" }
//         }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

T.Menu {
    id: control

    // Entries that need more are elided.
    property real maximumWidth: 400
    property real minimumWidth: 160
    // Pixels between the menu's edge and its entries.
    property int menuPaddings: 4
    property string backgroundColorSetName: "menulistbackground-primary-background"
    property string backgroundBolderColorSetName: "menulistbackground-primary-border"
    property real backgroundRadius: 8
    property int borderWidth: 1
    property var themeType: App.themeMode
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var backgroundBolderColorSet: themeType === undefined ? null : App.getColorSet(backgroundBolderColorSetName)

    function widestEntry(): real {
        let widest = 0;
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth);
        return widest;
    }

    // Highlights the first entry that takes the focus, from `start` in steps of `step`.
    function highlightFrom(start: int, step: int): void {
        for (let i = start; i >= 0 && i < count; i += step) {
            const entry = itemAt(i);
            if (entry.visible && entry.enabled && entry.focusPolicy !== Qt.NoFocus) {
                currentIndex = i;
                return;
            }
        }
    }

    // A popup does not inherit the direction of what it is declared in.
    function takeDirection(): void {
        const popupItem = contentItem.parent;
        popupItem.LayoutMirroring.enabled = parent.LayoutMirroring.enabled;
        popupItem.LayoutMirroring.childrenInherit = true;
    }

    x: mirrored && parent ? parent.width - width : 0
    implicitWidth: Math.max(minimumWidth, Math.min(maximumWidth, Math.ceil(widestEntry()) + leftPadding + rightPadding))
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: menuPaddings + borderWidth
    margins: 4
    overlap: 4
    delegate: WMenuItem {}

    onAboutToShow: {
        takeDirection();
        contentItem.parent.Accessible.name = Qt.binding(() => title);
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        model: control.contentModel
        currentIndex: control.currentIndex
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        focus: true
        keyNavigationEnabled: false // the menu does it

        Keys.onPressed: event => {
            if (event.key === Qt.Key_Home || event.key === Qt.Key_PageUp)
                control.highlightFrom(0, 1);
            else if (event.key === Qt.Key_End || event.key === Qt.Key_PageDown)
                control.highlightFrom(control.count - 1, -1);
            else
                return;
            event.accepted = true;
        }
    }
    background: Rectangle {
        radius: control.backgroundRadius
        color: ThemeUtils.getColor(control, control.backgroundColorSet)
        border.width: control.borderWidth
        border.color: ThemeUtils.getColor(control, control.backgroundBolderColorSet)
    }
}
