// An area over a flickable that scrolls it as a desktop does: by lines, at once, without a flick. Presses go through it
// to what is below. For a view it also knows where the keys lead.
//
//     ListView {
//         id: list
//
//         WScrollHelper {
//             parent: list
//             anchors.fill: parent
//             flickable: list
//         }
//     }
import QtQuick

MouseArea {
    id: root

    property Flickable flickable: null
    // By the wheel or by touch, until shortly after the last movement.
    readonly property bool isScrolling: restTimer.running || (flickable?.moving ?? false)
    // Whether the wheel scrolls.
    property bool isInteractive: flickable?.interactive ?? false
    // Whether the flickable has a function maxYExtent() that gives the place of its content at the lower end, as a
    // negative number of pixels: for views that know it better than by the height of their content.
    property bool canCallMaxYExtent: false
    // What a line of the wheel is, pixels.
    property real lineHeight: 24
    readonly property real linesPerNotch: Application.styleHints.wheelScrollLines

    // The largest contentY.
    function lowest(view: var): real {
        const extent = canCallMaxYExtent ? -view.maxYExtent()
                                         : view.originY + view.contentHeight + view.bottomMargin - view.height;
        return Math.max(view.originY - view.topMargin, extent);
    }

    // A flickable that goes only sideways does so by every wheel.
    function goesUpright(): bool {
        return flickable !== null && lowest(flickable) > flickable.originY - flickable.topMargin;
    }

    // Scrolls by pixels, as far as there is something to see; false at the end.
    function scrollBy(x: real, y: real): bool {
        if (!flickable)
            return false;
        const left = flickable.originX - flickable.leftMargin;
        const right = flickable.originX + flickable.contentWidth + flickable.rightMargin - flickable.width;
        const newX = Math.max(left, Math.min(right, flickable.contentX + x));
        const newY = Math.max(flickable.originY - flickable.topMargin,
                              Math.min(lowest(flickable), flickable.contentY + y));
        if (newX === flickable.contentX && newY === flickable.contentY)
            return false;
        flickable.cancelFlick();
        flickable.contentX = newX;
        flickable.contentY = newY;
        restTimer.restart();
        return true;
    }

    // Where a key leads from the current index of a ListView or GridView; -1 for a key that moves nothing.
    function indexForKey(view: var, key: int): int {
        const isGrid = view instanceof GridView;
        const isAcross = isGrid || view.orientation === ListView.Horizontal;
        const columns = isGrid ? Math.max(1, Math.floor(view.width / view.cellWidth)) : 1;
        const rowHeight = isGrid ? view.cellHeight : (view.currentItem?.height ?? view.height) + view.spacing;
        const page = Math.max(1, Math.floor(view.height / Math.max(1, rowHeight))) * columns;
        const next = view.effectiveLayoutDirection === Qt.RightToLeft ? -1 : 1;
        const steps = {
            [Qt.Key_Up]: isGrid || !isAcross ? -columns : 0,
            [Qt.Key_Down]: isGrid || !isAcross ? columns : 0,
            [Qt.Key_Left]: isAcross ? -next : 0,
            [Qt.Key_Right]: isAcross ? next : 0,
            [Qt.Key_PageUp]: -page,
            [Qt.Key_PageDown]: page,
            [Qt.Key_Home]: -view.count,
            [Qt.Key_End]: view.count
        };
        const step = steps[key] ?? 0;
        if (step === 0 || view.count === 0)
            return -1;
        const wanted = view.currentIndex + step;
        // Up and Down keep the column.
        if (Math.abs(step) === columns && (wanted < 0 || wanted >= view.count))
            return view.currentIndex;
        return Math.max(0, Math.min(view.count - 1, wanted));
    }

    // Makes a row of a view the current one and shows it, with the focus if that is in the view.
    function moveTo(view: var, index: int): void {
        view.currentIndex = index;
        view.positionViewAtIndex(index, ListView.Contain);
        if (!view.activeFocus || !view.currentItem)
            return;
        // The view has passed the focus on, but not said that it was the keyboard.
        view.currentItem.focus = false;
        view.currentItem.forceActiveFocus(Qt.TabFocusReason);
    }

    acceptedButtons: Qt.NoButton

    onWheel: wheel => {
        const notch = linesPerNotch * lineHeight / 120;
        const x = -wheel.pixelDelta.x || -wheel.angleDelta.x * notch;
        const y = -wheel.pixelDelta.y || -wheel.angleDelta.y * notch;
        wheel.accepted = isInteractive && (goesUpright() ? scrollBy(x, y) : scrollBy(x || y, 0));
    }

    Timer {
        id: restTimer

        interval: 200
    }
}
