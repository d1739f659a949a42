// A menu, as wide as its widest entry needs. A menu in it is a submenu; one that is higher than the window scrolls. The
// arrows move round it, Home, End, PageUp and PageDown to its ends, and the first letters of an entry to that.
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
import LumakitQml.Private 1.0
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
    property var backgroundBolderColorSet: themeType === undefined ? null
                                                                   : App.getColorSet(backgroundBolderColorSetName)
    readonly property TypeAhead typeAhead: TypeAhead {}
    readonly property real screenRatio: contentItem?.Screen.devicePixelRatio ?? 1

    // What is typed: the letters that follow each other within a second; for the library's other lists too.
    component TypeAhead: Timer {
        property string typed: ""

        // The first of the texts, from the current one on, that begins with what has been typed; the next one where
        // the same letter is typed again; -1 if none does.
        function find(letter: string, texts: var, current: int): int {
            typed = typed === letter ? letter : typed + letter;
            restart();
            const start = typed === letter ? current + 1 : Math.max(0, current);
            const wanted = typed.toLocaleLowerCase();
            for (let i = 0; i < texts.length; ++i) {
                const index = (start + i) % texts.length;
                if (texts[index].toLocaleLowerCase().startsWith(wanted))
                    return index;
            }
            return -1;
        }

        // Whether the key continues or begins a word; Space triggers the entry.
        function accepts(event: KeyEvent): bool {
            const modifiers = event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier);
            return modifiers === Qt.NoModifier && /^[^\x00-\x20\x7f]/.test(event.text);
        }

        interval: 1000

        onTriggered: typed = ""
    }

    function widestEntry(): real {
        let widest = 0;
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth);
        return widest;
    }

    // The texts of the entries, empty where one cannot be chosen.
    function texts(): list<string> {
        const all = [];
        for (let i = 0; i < count; ++i)
            all.push(takesFocus(itemAt(i)) ? (itemAt(i) as T.MenuItem)?.text ?? "" : "");
        return all;
    }

    function takesFocus(entry: Item): bool {
        return entry.visible && entry.enabled && (entry as T.Control)?.focusPolicy !== Qt.NoFocus;
    }

    // Gives the focus to the first entry that takes it, from `start`, at least -1, in steps of `step`, round the ends.
    function moveFrom(start: int, step: int): void {
        for (let i = 0; i < count; ++i) {
            const entry = itemAt((start + i * step + count) % count);
            if (takesFocus(entry)) {
                entry.forceActiveFocus(Qt.TabFocusReason);
                return;
            }
        }
    }

    function moveToTyped(letter: string): void {
        const index = typeAhead.find(letter, texts(), currentIndex);
        if (index >= 0)
            moveFrom(index, 1);
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
    // With the border in whole pixels of the screen, so that the entries begin at one.
    padding: menuPaddings + Math.round(borderWidth * screenRatio) / screenRatio
    margins: 4
    overlap: 4
    delegate: WMenuItem {}

    onAboutToShow: {
        FocusReturn.remember(contentItem.parent);
        takeDirection();
        contentItem.parent.Accessible.name = Qt.binding(() => title);
    }
    onAboutToHide: FocusReturn.giveBack(contentItem.parent)

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
            event.accepted = true;
            switch (event.key) {
            case Qt.Key_Down:
                control.moveFrom(control.currentIndex + 1, 1);
                break;
            case Qt.Key_Up:
                control.moveFrom(Math.max(0, control.currentIndex) - 1, -1);
                break;
            case Qt.Key_Home:
            case Qt.Key_PageUp:
                control.moveFrom(0, 1);
                break;
            case Qt.Key_End:
            case Qt.Key_PageDown:
                control.moveFrom(-1, -1);
                break;
            default:
                event.accepted = control.typeAhead.accepts(event);
                if (event.accepted)
                    control.moveToTyped(event.text);
            }
        }
    }
    background: Rectangle {
        radius: control.backgroundRadius
        color: ThemeUtils.getColor(control, control.backgroundColorSet)
        border.width: control.borderWidth
        border.color: ThemeUtils.getColor(control, control.backgroundBolderColorSet)
    }
}
