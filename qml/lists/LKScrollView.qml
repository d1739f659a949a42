// A view of content that may be larger than itself, with scroll bars where it is. The wheel scrolls it, and so do
// the keys that its content leaves: the arrows, Home, End, PageUp and PageDown.
//
//     LKScrollView {
//         contentWidth: availableWidth
//         WText {
//             width: parent.width
//             text: licence
//             wrapMode: Text.Wrap
//         }
//     }
import QtQuick
import QtQuick.Templates as T
import LumakitQml.Private 1.0

T.ScrollView {
    id: control

    // Whether the scroll bars have a button at each end.
    property bool arrowVisible: false
    property string focusColorSetName: "global-focus-outline"
    // What an arrow key scrolls by, pixels.
    property real lineHeight: 24
    // Kept free for the vertical bar, so that nothing moves when it appears.
    readonly property real verticalRoom: vertical.policy === T.ScrollBar.AlwaysOff ? 0 : vertical.implicitWidth
    readonly property alias verticalBar: vertical
    readonly property alias horizontalBar: horizontal
    // A child would be content.
    readonly property FocusRing focusRing: FocusRing {
        target: control
        offset: -2
        colorSetName: control.focusColorSetName
    }

    function scrollVertically(pixels: real): void {
        vertical.scrollBy(pixels / availableHeight * vertical.size);
    }

    function scrollHorizontally(pixels: real): void {
        horizontal.scrollBy(pixels / availableWidth * horizontal.size);
    }

    // In this order: a contentWidth that depends on the paddings comes after them.
    implicitWidth: leftPadding + rightPadding + Math.max(0, contentWidth)
    implicitHeight: Math.max(0, contentHeight) + topPadding
    leftPadding: mirrored ? verticalRoom : 0
    rightPadding: mirrored ? 0 : verticalRoom
    bottomPadding: contentWidth > availableWidth ? horizontal.implicitHeight : 0
    activeFocusOnTab: vertical.visible || horizontal.visible

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up:
            scrollVertically(-lineHeight);
            break;
        case Qt.Key_Down:
            scrollVertically(lineHeight);
            break;
        case Qt.Key_PageUp:
            scrollVertically(lineHeight - availableHeight);
            break;
        case Qt.Key_PageDown:
            scrollVertically(availableHeight - lineHeight);
            break;
        case Qt.Key_Home:
            scrollVertically(-contentHeight);
            break;
        case Qt.Key_End:
            scrollVertically(contentHeight);
            break;
        case Qt.Key_Left:
            scrollHorizontally(-lineHeight);
            break;
        case Qt.Key_Right:
            scrollHorizontally(lineHeight);
            break;
        default:
            event.accepted = false;
        }
    }

    T.ScrollBar.vertical: LKScrollBar {
        id: vertical

        parent: control
        x: control.mirrored ? 0 : control.width - width
        y: control.topPadding
        height: control.availableHeight
        arrowVisible: control.arrowVisible
    }
    T.ScrollBar.horizontal: LKScrollBar {
        id: horizontal

        parent: control
        x: control.leftPadding
        y: control.height - height
        width: control.availableWidth
        arrowVisible: control.arrowVisible
    }
}
