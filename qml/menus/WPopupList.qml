pragma ComponentBehavior: Bound

// A list in a balloon, for what is chosen from a popup: as high as its rows, up to a maximum from which it scrolls,
// with a header above it or beside it.
//
//     WPopupList {
//         model: devices
//         delegateSource: "DeviceRow.qml"
//         setupItemConnections: row => row.clicked.connect(() => use(row.deviceId))
//         hasHeader: true
//         headerText: "Microphone"
//     }
import QtQml.Models
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

FocusScope {
    id: root

    // The file of a row, a view's delegate: it gets the model's roles. The list sets its size.
    property url delegateSource: ""
    property bool hasHeader: false
    // Whether there is a header at the list's left, at its right in a mirrored layout.
    property bool hasSideHeader: false
    property var model: null
    property var themeType: App.themeMode
    // A function that gets each new row, to connect to its signals.
    property var setupItemConnections: null
    // Pixels and rows.
    property int maxVisibleItems: 8
    property real rowHeight: 32
    property real headerHeight: 40
    // What is painted behind the list. Where it has an arrow, the list stands clear of it.
    readonly property alias balloon: balloonItem
    readonly property alias listView: list
    // Plain, shown by the default header.
    property string headerText: ""
    property Component header: titleHeader
    property Component sideHeader: null
    property real sideHeaderWidth: 40
    property real listWidth: 240
    // Between the balloon's edge and its content, pixels.
    property real padding: 8
    property string backgroundColorSetName: "menulistbackground-primary-background"
    property string borderColorSetName: "menulistbackground-primary-border"
    property string headerTextColorSetName: "listitem-textsecondary"
    property int borderWidth: 1
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    readonly property int visibleItems: Math.min(list.count, maxVisibleItems)

    // Enter, Return or Space on a row that does not take the key itself.
    signal activated(int index)

    function makeDelegate(): Component {
        if (delegateSource.toString() === "")
            return null;
        const component = Qt.createComponent(delegateSource);
        if (component.status !== Component.Error)
            return component;
        console.warn(component.errorString());
        return null;
    }

    function setUp(row: Item): void {
        row.width = Qt.binding(() => list.width);
        row.height = Qt.binding(() => root.rowHeight);
        if (setupItemConnections)
            setupItemConnections.call(root, row);
    }

    implicitWidth: listWidth + 2 * padding + (hasSideHeader ? sideHeaderWidth : 0)
                   + (content.arrowLeft + content.arrowRight)
    implicitHeight: visibleItems * rowHeight + 2 * padding + (hasHeader ? headerHeight : 0)
                    + (content.arrowTop + content.arrowBottom)

    onVisibleChanged: visible ? FocusReturn.remember(root) : FocusReturn.giveBack(root)

    Accessible.role: Accessible.List
    Accessible.name: headerText

    WToolTip.Balloon {
        id: balloonItem

        anchors.fill: parent
        arrowAnchor: WBalloon.None
        arrowSize: 8
        lineWidth: root.borderWidth
        lineColor: ThemeUtils.getColor(root, root.borderColorSet)
        fillColor: ThemeUtils.getColor(root, root.backgroundColorSet)
    }
    Item {
        id: content

        readonly property int arrowTop: balloonItem.arrowAnchor === WBalloon.Top ? balloonItem.arrowSize : 0
        readonly property int arrowBottom: balloonItem.arrowAnchor === WBalloon.Bottom ? balloonItem.arrowSize : 0
        readonly property int arrowLeft: balloonItem.arrowAnchor === WBalloon.Left ? balloonItem.arrowSize : 0
        readonly property int arrowRight: balloonItem.arrowAnchor === WBalloon.Right ? balloonItem.arrowSize : 0

        x: root.padding + arrowLeft
        y: root.padding + arrowTop
        width: root.width - 2 * root.padding - arrowLeft - arrowRight
        height: root.height - 2 * root.padding - arrowTop - arrowBottom

        Loader {
            id: sideHeaderLoader

            anchors.left: parent.left
            width: active ? root.sideHeaderWidth : 0
            height: parent.height
            active: root.hasSideHeader
            sourceComponent: root.sideHeader
        }
        Loader {
            id: headerLoader

            anchors.left: sideHeaderLoader.right
            anchors.right: parent.right
            height: active ? root.headerHeight : 0
            active: root.hasHeader
            sourceComponent: root.header
        }
        ListView {
            id: list

            anchors.left: sideHeaderLoader.right
            anchors.right: parent.right
            anchors.top: headerLoader.bottom
            anchors.bottom: parent.bottom
            focus: true
            clip: interactive
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            keyNavigationEnabled: true
            activeFocusOnTab: true
            model: DelegateModel {
                model: root.model
                delegate: root.makeDelegate()

                onCreatedItem: (index, item) => root.setUp(item as Item)
            }

            Keys.onPressed: event => {
                const page = Math.max(1, root.visibleItems - 1);
                event.accepted = count > 0;
                switch (event.key) {
                case Qt.Key_Home:
                    currentIndex = 0;
                    break;
                case Qt.Key_End:
                    currentIndex = count - 1;
                    break;
                case Qt.Key_PageUp:
                    currentIndex = Math.max(0, currentIndex - page);
                    break;
                case Qt.Key_PageDown:
                    currentIndex = Math.min(count - 1, currentIndex + page);
                    break;
                case Qt.Key_Enter:
                case Qt.Key_Return:
                case Qt.Key_Space:
                    if (currentIndex >= 0 && !event.isAutoRepeat)
                        root.activated(currentIndex);
                    break;
                default:
                    event.accepted = false;
                }
            }
        }
    }
    Component {
        id: titleHeader

        WText {
            leftPadding: 8
            rightPadding: 8
            text: root.headerText
            textColorSetName: root.headerTextColorSetName
            font: FontConstants.highlightSecondary
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
    }
}
