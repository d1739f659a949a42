// A menu for what it is opened on: a WMenu whose entries are also reached by typing their first letters. A menu in it
// is a submenu.
//
//     LKContextMenu {
//         id: menu
//         LKContextMenuItem { text: "Copy"; shortcutText: "Ctrl+C"; onTriggered: editor.copy() }
//         LKContextMenu {
//             title: "Move to"
//             LKContextMenuItem { text: "Archive" }
//         }
//     }
//     TapHandler {
//         acceptedButtons: Qt.RightButton
//         onTapped: menu.popup()
//     }
import QtQuick

WMenu {
    id: control

    readonly property TypeAhead typeAhead: TypeAhead {}
    readonly property Connections letters: Connections {
        target: control.contentItem.Keys

        function onPressed(event: KeyEvent): void {
            if (event.accepted || !control.typeAhead.accepts(event))
                return;
            event.accepted = true;
            const index = control.typeAhead.find(event.text, control.texts(), control.currentIndex);
            if (index >= 0)
                control.currentIndex = index;
        }
    }

    // What is typed: the letters that follow each other within a second; for the library's other menus too.
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

    // The texts of the entries, empty where one cannot be chosen.
    function texts(): list<string> {
        const all = [];
        for (let i = 0; i < count; ++i) {
            const entry = itemAt(i) as WMenuItem;
            all.push(entry?.enabled && entry.visible ? entry.text : "");
        }
        return all;
    }

    delegate: LKContextMenuItem {}
}
