// A text to edit, without a frame, that scrolls where it is longer than its place; the cursor stays in sight.
//
//     WFlickableTextEdit {
//         width: 240
//         height: 96
//         accessibleText: "Notes"
//     }
import QtQuick
import LumakitQml.Private 1.0

Flickable {
    id: root

    // The area over the text that takes the right button: for a menu.
    property alias mouseArea: area
    readonly property alias textEdit: edit
    // The edit's accessible name.
    property string accessibleText: ""

    function showCursor(): void {
        const top = edit.cursorRectangle.y - edit.padding;
        const bottom = edit.cursorRectangle.y + edit.cursorRectangle.height + edit.padding;
        if (top < contentY)
            contentY = top;
        else if (bottom > contentY + height)
            contentY = Math.max(0, bottom - height);
    }

    // Moves the cursor by a page: 1 down, -1 up.
    function movePage(direction: int, select: bool): void {
        const cursor = edit.cursorRectangle;
        const step = Math.max(cursor.height, height - cursor.height);
        const position = edit.positionAt(cursor.x, cursor.y + direction * step);
        if (select)
            edit.moveCursorSelection(position);
        else
            edit.cursorPosition = position;
    }

    implicitWidth: 200
    implicitHeight: edit.implicitHeight
    contentWidth: width
    contentHeight: edit.height
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick
    interactive: contentHeight > height

    onHeightChanged: showCursor()

    WTextEdit {
        id: edit
        width: root.width
        height: Math.max(implicitHeight, root.height)
        padding: 4
        focusColorSetName: "transparent"

        onCursorRectangleChanged: root.showCursor()

        Keys.onPressed: event => {
            const direction = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0;
            event.accepted = direction !== 0;
            if (event.accepted)
                root.movePage(direction, (event.modifiers & Qt.ShiftModifier) !== 0);
        }

        Accessible.name: root.accessibleText === "" && readOnly ? text : root.accessibleText

        MouseArea {
            id: area
            anchors.fill: parent
            acceptedButtons: Qt.RightButton
            cursorShape: Qt.IBeamCursor
        }
    }
    FocusRing {
        target: edit
        around: root
        radius: 4
        offset: -2
    }
}
