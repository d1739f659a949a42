// A field for one line of text, in a frame, with a context menu: what LKTextField is made of.
//
//     LKTextFieldBase {
//         placeholderText: "Meeting number"
//         onAccepted: meeting.join(text)
//     }
import QtQuick
import QtQuick.Templates as T
import LumakitQml 1.0

WTextField {
    id: control

    // The menu that the right button, the menu key and Shift+F10 open; null opens none.
    property Component contextMenu: Component {
        EditMenu {}
    }
    // The menu, once it has been opened.
    property T.Menu menu: null

    // Cut, copy, paste and select all, for the library's text fields and areas.
    component EditMenu: LKContextMenu {
        id: menu

        // The field or area that it is opened on.
        readonly property var editor: parent
        readonly property bool canEdit: editor?.readOnly === false
        readonly property bool isSecret: (editor?.echoMode ?? TextInput.Normal) !== TextInput.Normal
        readonly property bool canCopy: (editor?.selectedText ?? "") !== "" && !isSecret

        LKContextMenuItem {
            text: qsTr("Cut")
            shortcutText: Utils.getKeySequence(Qt.ControlModifier, Qt.Key_X)
            enabled: menu.canCopy && menu.canEdit
            onTriggered: menu.editor.cut()
        }
        LKContextMenuItem {
            text: qsTr("Copy")
            shortcutText: Utils.getKeySequence(Qt.ControlModifier, Qt.Key_C)
            enabled: menu.canCopy
            onTriggered: menu.editor.copy()
        }
        LKContextMenuItem {
            text: qsTr("Paste")
            shortcutText: Utils.getKeySequence(Qt.ControlModifier, Qt.Key_V)
            enabled: menu.canEdit && menu.editor.canPaste
            onTriggered: menu.editor.paste()
        }
        LKContextMenuItem {
            text: qsTr("Select all")
            shortcutText: Utils.getKeySequence(Qt.ControlModifier, Qt.Key_A)
            enabled: (menu.editor?.length ?? 0) > 0
            onTriggered: menu.editor.selectAll()
        }
    }

    function openContextMenu(x: real, y: real): void {
        if (!menu)
            menu = contextMenu?.createObject(control) as T.Menu;
        if (menu?.count > 0)
            menu.popup(control, x, y);
    }

    onContextMenuChanged: {
        menu?.destroy();
        menu = null;
    }
    onReleased: event => {
        if (event.button !== Qt.RightButton)
            return;
        forceActiveFocus(Qt.MouseFocusReason);
        openContextMenu(event.x, event.y);
    }

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier;
        if (event.accepted)
            openContextMenu(cursorRectangle.x, cursorRectangle.y + cursorRectangle.height);
    }
}
