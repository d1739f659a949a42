pragma ComponentBehavior: Bound

// Panes side by side, or one above the other, with handles to divide the room between them: by the mouse or, with the
// focus on a handle, by the arrow keys, Page Up and Down, Home and End.
//
//     WSplitView {
//         WPane { SplitView.preferredWidth: 240; SplitView.minimumWidth: 160 }
//         WPane { SplitView.fillWidth: true }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.SplitView {
    id: control

    // The lines between the panes.
    property string separatorColorSetName: "separator-primary"
    // The grips in their middle.
    property string handleColorSetName: "scrollbar-thumb-background"
    // What a screen reader calls the handles, all but the first with their number.
    property string handleAccessibleName: ""
    // How far an arrow key moves a handle, pixels; Page Up and Down move it four times as far.
    property int step: 16
    property var themeType: App.themeMode
    property var separatorColorSet: themeType === undefined ? null : App.getColorSet(separatorColorSetName)
    property var handleColorSet: themeType === undefined ? null : App.getColorSet(handleColorSetName)

    // Moves a handle by that many pixels, as far as the panes' smallest and largest sizes allow. Like a drag it sizes a
    // pane beside the handle; the pane that fills the view gives or takes.
    function moveHandle(handle: Item, distance: real) {
        const isHorizontal = orientation === Qt.Horizontal;
        const extent = isHorizontal ? "width" : "height";
        const suffix = isHorizontal ? "Width" : "Height";
        const panes = [];
        for (let i = 0; i < count; ++i) {
            if (itemAt(i).visible)
                panes.push(itemAt(i));
        }
        const after = panes.findIndex(pane => isHorizontal ? pane.x > handle.x : pane.y > handle.y);
        if (after < 1)
            return;
        const filling = panes.findIndex(pane => pane.T.SplitView["fill" + suffix]);
        const fill = filling < 0 ? panes.length - 1 : filling;
        const pane = panes[fill < after ? after : after - 1];
        const limits = pane.T.SplitView;
        const room = panes[fill][extent] - panes[fill].T.SplitView["minimum" + suffix];
        const largest = Math.min(limits["maximum" + suffix], pane[extent] + Math.max(0, room));
        const wanted = pane[extent] + (fill < after ? -distance : distance);
        limits["preferred" + suffix] = Math.max(limits["minimum" + suffix], Math.min(wanted, largest));
    }

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)

    handle: Item {
        id: handle

        readonly property bool isHorizontal: control.orientation === Qt.Horizontal
        readonly property bool hovered: T.SplitHandle.hovered
        readonly property bool pressed: T.SplitHandle.pressed
        readonly property color lineColor: ThemeUtils.getColor(control, control.separatorColorSet)
        // Whole pixels of the screen: the line's thickness, and where the line and the grip stand across.
        readonly property real thickness: Math.max(1, Math.round(Screen.devicePixelRatio)) / Screen.devicePixelRatio
        readonly property real gripOffset: Math.round(2 * Screen.devicePixelRatio) / Screen.devicePixelRatio
        readonly property real lineOffset: Math.ceil((gripOffset + (4 - thickness) / 2) * Screen.devicePixelRatio - 0.5)
                                           / Screen.devicePixelRatio

        // From 1.
        function number(): int {
            let panesBefore = 0;
            for (let i = 0; i < control.count; ++i) {
                const pane = control.itemAt(i);
                if (pane.visible && (isHorizontal ? pane.x < x : pane.y < y))
                    ++panesBefore;
            }
            return panesBefore;
        }

        function handleKey(event: KeyEvent) {
            const back = isHorizontal ? Qt.Key_Left : Qt.Key_Up;
            const forth = isHorizontal ? Qt.Key_Right : Qt.Key_Down;
            const end = isHorizontal ? control.width : control.height;
            event.accepted = true;
            switch (event.key) {
            case back:
                control.moveHandle(handle, -control.step);
                break;
            case forth:
                control.moveHandle(handle, control.step);
                break;
            case Qt.Key_PageUp:
                control.moveHandle(handle, -4 * control.step);
                break;
            case Qt.Key_PageDown:
                control.moveHandle(handle, 4 * control.step);
                break;
            case Qt.Key_Home:
                control.moveHandle(handle, -end);
                break;
            case Qt.Key_End:
                control.moveHandle(handle, end);
                break;
            default:
                event.accepted = false;
            }
        }

        implicitWidth: isHorizontal ? 8 : control.width
        implicitHeight: isHorizontal ? control.height : 8
        activeFocusOnTab: true

        Keys.onPressed: event => handleKey(event)

        Accessible.role: Accessible.Splitter
        Accessible.name: control.handleAccessibleName === "" || number() < 2
                         ? control.handleAccessibleName : control.handleAccessibleName + " " + number()
        Accessible.focusable: true
        Accessible.onIncreaseAction: control.moveHandle(handle, control.step)
        Accessible.onDecreaseAction: control.moveHandle(handle, -control.step)

        Rectangle {
            x: handle.isHorizontal ? handle.lineOffset : 0
            y: handle.isHorizontal ? 0 : handle.lineOffset
            width: handle.isHorizontal ? handle.thickness : grip.x - 4
            height: handle.isHorizontal ? grip.y - 4 : handle.thickness
            color: handle.lineColor
        }
        Rectangle {
            x: handle.isHorizontal ? handle.lineOffset : grip.x + grip.width + 4
            y: handle.isHorizontal ? grip.y + grip.height + 4 : handle.lineOffset
            width: handle.isHorizontal ? handle.thickness : handle.width - x
            height: handle.isHorizontal ? handle.height - y : handle.thickness
            color: handle.lineColor
        }
        Rectangle {
            id: grip
            x: handle.isHorizontal ? handle.gripOffset : Math.round((handle.width - width) / 2)
            y: handle.isHorizontal ? Math.round((handle.height - height) / 2) : handle.gripOffset
            width: handle.isHorizontal ? 4 : 24
            height: handle.isHorizontal ? 24 : 4
            radius: 2
            color: ThemeUtils.getColor(handle, control.handleColorSet)
        }
        FocusRing {
            around: grip
            radius: 2
            offset: 0
        }
    }
}
