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
    // The menu that the right button, the menu key and Shift+F10 open; null opens none.
    property Component contextMenu: Component {
        LKTextFieldBase.EditMenu {}
    }

    // The menu, once it has been opened.
    property T.Menu menu: null
    // Where the selection was at a press of the right button, which may clear it: the menu is for what was selected.
    property point pressedSelection

    function openContextMenu(x: real, y: real): void {
        if (!menu)
            menu = contextMenu?.createObject(control) as T.Menu;
        if (menu?.count > 0)
            menu.popup(control, x, y);
    }

    stateItem: controlsTarget

    onContextMenuChanged: {
        menu?.destroy();
        menu = null;
    }
    onPressed: event => {
        if (event.button === Qt.RightButton)
            pressedSelection = Qt.point(selectionStart, selectionEnd);
    }
    onReleased: event => {
        if (event.button !== Qt.RightButton)
            return;
        if (pressedSelection.x < pressedSelection.y)
            select(pressedSelection.x, pressedSelection.y);
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
