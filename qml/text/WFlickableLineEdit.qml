pragma ComponentBehavior: Bound

// A line of text to edit, in a frame, that can be flicked sideways where it is longer than the frame; the cursor stays
// in sight.
//
//     WFlickableLineEdit {
//         lineEdit.placeholderText: "Title"
//         lineEdit.onAccepted: meeting.rename(lineEdit.text)
//     }
import QtQuick
import LumakitQml.Private 1.0

Flickable {
    id: root

    readonly property alias lineEdit: edit

    function showCursor(): void {
        const cursor = edit.cursorRectangle;
        const left = cursor.x - edit.padding;
        const right = cursor.x + cursor.width + edit.padding - width;
        contentX = Math.max(0, Math.min(left, Math.max(right, contentX), contentWidth - width));
    }

    implicitWidth: 200
    implicitHeight: edit.implicitHeight
    contentWidth: edit.width
    contentHeight: height
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.HorizontalFlick
    interactive: contentWidth > width

    onWidthChanged: showCursor()
    onContentWidthChanged: showCursor()

    WLineEdit {
        id: edit
        width: Math.max(root.width, Math.ceil(contentWidth) + 2 * padding)
        height: root.height
        focusColorSetName: "transparent"

        onCursorRectangleChanged: root.showCursor()

        background: null
    }
    Rectangle {
        parent: root
        z: -1
        anchors.fill: parent
        radius: edit.radius
        color: edit.stateColor(edit.backgroundColorSet)
        border.width: edit.borderColorSetName === "" ? 0 : edit.borderWidth
        border.color: edit.stateColor(edit.borderColorSet)
    }
    // The frame once more, over the text that is flicked under it.
    Loader {
        parent: root
        anchors.fill: parent
        active: root.interactive
        sourceComponent: Rectangle {
            radius: edit.radius
            color: "transparent"
            border.width: edit.borderColorSetName === "" ? 0 : edit.borderWidth
            border.color: edit.stateColor(edit.borderColorSet)
        }
    }
    FocusRing {
        target: edit
        around: root
        radius: edit.radius
        offset: -2
    }
}
