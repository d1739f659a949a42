// A menu for what it is opened on: a WMenu whose entries show their keys. A menu in it is a submenu.
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

WMenu {
    delegate: LKContextMenuItem {}
}
