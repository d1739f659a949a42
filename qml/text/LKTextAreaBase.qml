pragma ComponentBehavior: Bound

// A field for many lines of text, in a frame, with a context menu: what LKTextArea is made of.
//
//     LKTextAreaBase {
//         height: 96
//         placeholderText: "Description"
//     }
import QtQuick
import QtQuick.Templates as T

WTextArea {
    id: control

    // The control whose state picks the colours; this area itself if null.
    property Item controlsTarget: null
    // What the right button, the menu key and Shift+F10 open: a menu, made anew each time. Null opens nothing.
    property Component contextMenu: Component {
        LKTextFieldBase.EditMenu {
            editor: control
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

    stateItem: controlsTarget ?? control

    onReleased: event => {
        if (event.button !== Qt.RightButton)
            return;
        forceActiveFocus(Qt.MouseFocusReason);
        openContextMenu(event.x, event.y);
    }

    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Menu && (event.key !== Qt.Key_F10 || event.modifiers !== Qt.ShiftModifier))
            return;
        openContextMenu(cursorRectangle.x, cursorRectangle.y + cursorRectangle.height);
        event.accepted = true;
    }
}
