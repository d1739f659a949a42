pragma ComponentBehavior: Bound

// The edges and corners of a window without a frame of the desktop's, to resize it by. It lies over the window's
// content and takes clicks only at its edges; a window that is maximized or full screen keeps its size.
//
//     WResizeFrame {
//         anchors.fill: parent
//         minWidth: 320
//         minHeight: 240
//     }
import QtQuick

Item {
    id: root

    // The edges and corners by name, as values of Qt.Edges.
    readonly property var enumDirection: ({
            None: 0,
            Top: Qt.TopEdge,
            Bottom: Qt.BottomEdge,
            Left: Qt.LeftEdge,
            Right: Qt.RightEdge,
            TopLeft: Qt.TopEdge | Qt.LeftEdge,
            TopRight: Qt.TopEdge | Qt.RightEdge,
            BottomLeft: Qt.BottomEdge | Qt.LeftEdge,
            BottomRight: Qt.BottomEdge | Qt.RightEdge
        })
    // The limits of the window's size, pixels: its own, unless they are set. They become its own as a resizing begins.
    property int minHeight: targetWindow?.minimumHeight ?? 0
    property int maxHeight: targetWindow?.maximumHeight ?? 0
    property int minWidth: targetWindow?.minimumWidth ?? 0
    property int maxWidth: targetWindow?.maximumWidth ?? 0
    // When the last resizing began, milliseconds since 1970; 0 before the first.
    property real startTime: 0
    // How far inside the window's edge it can be taken, pixels; at the corners three times as far.
    property int thickness: 4
    readonly property var targetWindow: Window.window

    component Handle: MouseArea {
        id: handle

        required property int edges
        readonly property int across: edges & (Qt.LeftEdge | Qt.RightEdge)
        readonly property int along: edges & (Qt.TopEdge | Qt.BottomEdge)
        readonly property int corner: 3 * root.thickness
        // Where a resizing without the desktop's help began.
        property bool isManual: false
        property rect startGeometry
        property point startPosition

        function start(position: point) {
            const window = root.targetWindow;
            window.minimumWidth = root.minWidth;
            window.maximumWidth = root.maxWidth;
            window.minimumHeight = root.minHeight;
            window.maximumHeight = root.maxHeight;
            root.startTime = Date.now();
            startGeometry = Qt.rect(window.x, window.y, window.width, window.height);
            startPosition = mapToGlobal(position);
            isManual = !window.startSystemResize(edges);
        }

        function resize(position: point) {
            const global = mapToGlobal(position);
            const dx = (across === Qt.LeftEdge ? -1 : across === 0 ? 0 : 1) * (global.x - startPosition.x);
            const dy = (along === Qt.TopEdge ? -1 : along === 0 ? 0 : 1) * (global.y - startPosition.y);
            const start = startGeometry;
            const width = Math.round(Math.max(root.minWidth, Math.min(start.width + dx, root.maxWidth)));
            const height = Math.round(Math.max(root.minHeight, Math.min(start.height + dy, root.maxHeight)));
            root.targetWindow.setGeometry(across === Qt.LeftEdge ? start.x + start.width - width : start.x,
                                          along === Qt.TopEdge ? start.y + start.height - height : start.y,
                                          width, height);
        }

        x: across === Qt.RightEdge ? root.width - width : across === Qt.LeftEdge ? 0 : corner
        y: along === Qt.BottomEdge ? root.height - height : along === Qt.TopEdge ? 0 : corner
        width: across === 0 ? root.width - 2 * corner : along === 0 ? root.thickness : corner
        height: along === 0 ? root.height - 2 * corner : across === 0 ? root.thickness : corner
        enabled: root.targetWindow?.visibility === Window.Windowed
                 && (across !== 0 && root.minWidth < root.maxWidth || along !== 0 && root.minHeight < root.maxHeight)
        preventStealing: true
        cursorShape: across === 0 ? Qt.SizeVerCursor
                     : along === 0 ? Qt.SizeHorCursor
                     : edges === root.enumDirection.TopLeft || edges === root.enumDirection.BottomRight
                       ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor

        onPressed: mouse => start(Qt.point(mouse.x, mouse.y))
        onPositionChanged: mouse => {
            if (isManual)
                resize(Qt.point(mouse.x, mouse.y));
        }
    }

    Handle { edges: root.enumDirection.Top }
    Handle { edges: root.enumDirection.Bottom }
    Handle { edges: root.enumDirection.Left }
    Handle { edges: root.enumDirection.Right }
    Handle { edges: root.enumDirection.TopLeft }
    Handle { edges: root.enumDirection.TopRight }
    Handle { edges: root.enumDirection.BottomLeft }
    Handle { edges: root.enumDirection.BottomRight }
}
