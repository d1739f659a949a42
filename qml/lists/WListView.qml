pragma ComponentBehavior: Bound

// A list with a scroll bar beside it, which the wheel scrolls by lines and the keyboard moves in by the arrows, Home,
// End, PageUp and PageDown. An empty model shows an empty state.
//
//     WListView {
//         listView.model: contacts
//         listView.delegate: ContactRow {
//             width: ListView.view.width
//         }
//         emptyStateHeader: "No contacts yet"
//     }
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import LumakitQml.Private 1.0

RowLayout {
    id: root

    // What an empty model shows. The image is the name of an icon of the host, its size in pixels.
    property string emptyStateHeader: ""
    property string emptyStateImage: ""
    property string emptyStateSubtitle: ""
    property int emptyStateImageSize: 120
    readonly property alias listView: list
    readonly property alias scrollBar: bar
    // Whether the list scrolls; otherwise it wants the height of all its rows, and they have the whole width.
    property bool scrollable: true
    // By wheel, touch or scroll bar.
    readonly property bool isScrolling: helper.isScrolling || bar.pressed
    // The width beside the scroll bar, which the rows have, pixels.
    readonly property real widthNoScroll: list.width
    property int emptyStateBorderWidth: 0
    property alias currentIndex: list.currentIndex
    // The colour of an image that is an icon; without it the image has its own colours.
    property string emptyStateImageColorSetName: ""
    property string emptyStateBorderColorSetName: "separator-primary"
    // The ring in the current row; "" for delegates that show the focus themselves.
    property string focusColorSetName: "global-focus-outline"
    // The height that a list that scrolls does not want to exceed, pixels.
    property real maximumImplicitHeight: 320

    // Makes a row the current one and shows it.
    function moveTo(index: int): void {
        helper.moveTo(list, index);
    }

    spacing: 0

    // The list has the name.
    Accessible.ignored: true

    ListView {
        id: list

        readonly property bool isEmpty: count === 0 && (model ?? null) !== null

        implicitWidth: Math.max(240, emptyState.implicitWidth)
        implicitHeight: emptyState.active ? emptyState.implicitHeight
                      : root.scrollable ? Math.min(contentHeight, root.maximumImplicitHeight) : contentHeight
        Layout.fillWidth: true
        Layout.fillHeight: true
        interactive: root.scrollable
        keyNavigationEnabled: true
        activeFocusOnTab: count > 0 || activeFocus // it stays one until the focus goes
        boundsBehavior: Flickable.StopAtBounds
        clip: root.scrollable
        highlightMoveDuration: 0
        T.ScrollBar.vertical: bar

        Keys.onPressed: event => {
            const index = keyNavigationEnabled ? helper.indexForKey(list, event.key) : -1;
            event.accepted = index >= 0;
            if (event.accepted)
                root.moveTo(index);
        }

        Accessible.role: Accessible.List
        Accessible.name: root.Accessible.name

        WScrollHelper {
            id: helper

            parent: list
            anchors.fill: parent
            flickable: list
        }
        Loader {
            id: emptyState

            parent: list
            anchors.fill: parent
            active: list.isEmpty && (root.emptyStateHeader !== "" || root.emptyStateImage !== ""
                                     || root.emptyStateSubtitle !== "")
            sourceComponent: WEmptyState {
                title: root.emptyStateHeader
                subtitle: root.emptyStateSubtitle
                svgImageName: root.emptyStateImage
                svgImageSize: root.emptyStateImageSize
                svgColorSetName: root.emptyStateImageColorSetName
                borderWidth: root.emptyStateBorderWidth
                borderColorSetName: root.emptyStateBorderColorSetName
            }
        }
        FocusRing {
            target: list.currentItem
            radius: 4
            offset: -2
            colorSetName: root.focusColorSetName
        }
    }
    LKScrollBar {
        id: bar

        Layout.fillHeight: true
        // Its room stays free, so that nothing moves when it appears.
        visible: root.scrollable && policy !== T.ScrollBar.AlwaysOff
        opacity: policy === T.ScrollBar.AlwaysOn || size < 1 ? 1 : 0
    }
}
