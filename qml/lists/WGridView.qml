// A grid of cells, which the wheel scrolls by lines and the keyboard moves in by the arrows, Home, End, PageUp and
// PageDown.
//
//     WGridView {
//         cellWidth: 96
//         cellHeight: 96
//         model: pictures
//         delegate: PictureCell {}
//     }
import QtQuick
import QtQuick.Templates as T
import LumakitQml.Private 1.0

GridView {
    id: root

    // By wheel, touch or scroll bar.
    readonly property bool isScrolling: helper.isScrolling || bar.pressed
    readonly property alias scrollBar: bar
    // The ring in the current cell; "" for delegates that show the focus themselves.
    property string focusColorSetName: "global-focus-outline"

    implicitWidth: 3 * cellWidth + bar.width
    implicitHeight: Math.min(contentHeight, 3 * cellHeight)
    keyNavigationEnabled: true
    activeFocusOnTab: count > 0 || activeFocus // it stays one until the focus goes
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    highlightMoveDuration: 0
    T.ScrollBar.vertical: bar

    Keys.onPressed: event => {
        const index = keyNavigationEnabled ? helper.indexForKey(root, event.key) : -1;
        event.accepted = index >= 0;
        if (event.accepted)
            helper.moveTo(root, index);
    }

    Accessible.role: Accessible.List

    LKScrollBar {
        id: bar
    }
    WScrollHelper {
        id: helper

        parent: root
        anchors.fill: parent
        flickable: root
    }
    FocusRing {
        target: root.currentItem
        radius: 4
        offset: -2
        colorSetName: root.focusColorSetName
    }
}
