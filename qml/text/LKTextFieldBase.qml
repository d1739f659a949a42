pragma ComponentBehavior: Bound

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

    // What the right button, the menu key and Shift+F10 open: a menu, made anew each time. Null opens nothing.
    property Component contextMenu: Component {
        EditMenu {
            editor: control
        }
    }

    // Cut, copy, paste and select all, for the library's text fields and areas.
    component EditMenu: LKContextMenu {
        id: menu

        property var editor: null
        readonly property bool canEdit: !editor.readOnly
        readonly property bool canCopy: editor.selectedText !== "" && (editor.echoMode ?? TextInput.Normal) === TextInput.Normal

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
            enabled: menu.editor.canPaste && menu.canEdit
            onTriggered: menu.editor.paste()
        }
        LKContextMenuItem {
            text: qsTr("Select all")
            shortcutText: Utils.getKeySequence(Qt.ControlModifier, Qt.Key_A)
            enabled: menu.editor.length > 0
            onTriggered: menu.editor.selectAll()
        }
    }

    function openContextMenu(x: real, y: real): void {
        const menu = contextMenu?.createObject(control) as T.Menu;
        if (!menu)
            return;
        menu.closed.connect(() => menu.destroy());
        if (menu.count > 0)
            menu.popup(control, x, y);
        else
            menu.destroy();
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
