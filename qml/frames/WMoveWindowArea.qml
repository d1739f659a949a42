// An area that its window is moved by, such as the title bar of a window without a frame. Clicks and double clicks stay
// free for other uses.
//
//     WMoveWindowArea {
//         anchors.fill: titleBar
//     }
import QtQuick

MouseArea {
    id: root

    // Where the mouse was pressed, in the area's own coordinates; moving keeps this point under the cursor.
    property point clickPos
    readonly property var targetWindow: Window.window
    // A press that may become a drag.
    property bool isPending: false
    // The desktop does not move the window, so this area does.
    property bool isManual: false

    function drag(dx: real, dy: real) {
        if (isPending && Math.max(Math.abs(dx), Math.abs(dy)) >= Application.styleHints.startDragDistance) {
            isPending = false;
            isManual = !targetWindow.startSystemMove() && targetWindow.visibility === Window.Windowed;
        }
        if (isManual) {
            targetWindow.setGeometry(Math.round(targetWindow.x + dx), Math.round(targetWindow.y + dy),
                                     targetWindow.width, targetWindow.height);
        }
    }

    preventStealing: true

    onPressed: mouse => {
        clickPos = Qt.point(mouse.x, mouse.y);
        isManual = false;
        isPending = targetWindow.visibility !== Window.FullScreen;
    }
    onPositionChanged: mouse => drag(mouse.x - clickPos.x, mouse.y - clickPos.y)
}
