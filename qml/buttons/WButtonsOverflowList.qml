pragma ComponentBehavior: Bound

// The buttons that have no room elsewhere, as a list that opens below a "more" button. The keyboard moves in it with
// the arrows; Tab leaves it.
//
//     LKRoundButton {
//         buttonIcon: "more-horizontal-bold"
//         onClicked: overflow.visible ? overflow.close() : overflow.open()
//
//         WButtonsOverflowList {
//             id: overflow
//             model: ["Files", "Whiteboard"]
//             onClicked: index => tabs.show(index)
//         }
//     }
import QtQuick
import QtQuick.Templates as T
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

WToolTip {
    id: control

    // Whether the list is being hidden: from the moment that something closes it until it is gone.
    property bool aboutToHidePopup: false
    // Pixels; a row whose text needs more is higher.
    property int delegateHeight: 32
    // Between the list's edge and its rows, pixels.
    property int leftAndRightSpacing: 8
    // Of the rows, pixels; longer texts are elided.
    property int listWidth: 200
    // How far below the top of its item the list opens, pixels.
    property int moreButtonHeight: parent ? parent.height : 0
    property int topAndBottomSpacing: 8
    property string cancelColorSetName: "cancelicon-default-icon"
    property string iconColorSetName: "listitem-icon"
    property string listViewBackgroundColorSetName: "menulistbackground-primary-background"
    // Texts, or objects or rows with `text` and, if wanted, `iconName`, `enabled` and `tooltip`.
    property var model: []
    property int currentIndex: 0
    property int maximumVisibleRows: 10
    // Whether each row ends with a button to remove it.
    property bool cancelVisible: false
    property string cancelTooltip: qsTr("Remove")
    // There are no rows before the list is needed.
    property bool wasShown: false
    property string rowColorSetName: "listitem-background"
    property string rowTextColorSetName: "listitem-textprimary"

    // A row was chosen by mouse or keyboard; the list closes.
    signal clicked(int index)
    // Shift+Tab and Tab in the list, which closes.
    signal backtabPressed
    signal tabPressed
    // A row's button to remove it.
    signal cancelClicked(int index)

    y: isBeside ? Math.round(targetY - tip(height)) : shownArrowAnchor === WBalloon.Top ? moreButtonHeight : -height
    implicitWidth: listWidth + 2 * textHorizontalPadding + (isBeside ? arrowSize : 0)
    arrowAnchor: WBalloon.Top
    textHorizontalPadding: leftAndRightSpacing
    textVerticalPadding: topAndBottomSpacing
    backgroundColorSetName: listViewBackgroundColorSetName
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    onOpened: forceActiveFocus(Qt.PopupFocusReason)
    onAboutToShow: {
        contentItem.parent.Accessible.ignored = true; // the list is what is shown
        wasShown = true;
        list.moveTo(0, 1);
    }
    onAboutToHide: aboutToHidePopup = true
    onClosed: aboutToHidePopup = false

    contentItem: ListView {
        id: list

        readonly property real barRoom: bar.visible ? bar.width : 0
        readonly property real rowWidth: width - barRoom
        readonly property real rowHeight: currentItem ? currentItem.height : control.delegateHeight

        // The next row from `start` that can be chosen, in steps of `step`.
        function moveTo(start: int, step: int): void {
            const before = control.currentIndex;
            for (let i = Math.max(0, Math.min(count - 1, start)); i >= 0 && i < count; i += step) {
                control.currentIndex = i;
                if (currentItem?.enabled)
                    return;
            }
            control.currentIndex = before;
        }

        implicitHeight: Math.min(contentHeight, control.maximumVisibleRows * rowHeight)
        model: control.wasShown ? control.model : null
        currentIndex: control.currentIndex
        contentX: bar.mirrored ? -barRoom : 0 // a view keeps its rows at 0 there
        focus: true
        clip: interactive
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        highlightMoveDuration: 0

        LayoutMirroring.enabled: control.parent?.LayoutMirroring.enabled ?? false
        LayoutMirroring.childrenInherit: true

        Accessible.role: Accessible.PopupMenu

        T.ScrollBar.vertical: LKScrollBar {
            id: bar
        }

        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / rowHeight) - 1);
            event.accepted = true;
            switch (event.key) {
            case Qt.Key_Up:
                moveTo(currentIndex - 1, -1);
                break;
            case Qt.Key_Down:
                moveTo(currentIndex + 1, 1);
                break;
            case Qt.Key_PageUp:
                moveTo(currentIndex - page, -1);
                break;
            case Qt.Key_PageDown:
                moveTo(currentIndex + page, 1);
                break;
            case Qt.Key_Home:
                moveTo(0, 1);
                break;
            case Qt.Key_End:
                moveTo(count - 1, -1);
                break;
            case Qt.Key_Tab:
                control.close();
                control.tabPressed();
                break;
            case Qt.Key_Backtab:
                control.close();
                control.backtabPressed();
                break;
            default:
                event.accepted = false;
            }
        }

        delegate: WSvgButton {
            id: row

            required property int index
            required property var model
            readonly property var entry: model.modelData ?? model
            readonly property bool isCurrent: activeFocus && ListView.isCurrentItem

            width: list.rowWidth
            implicitHeight: Math.max(control.delegateHeight,
                                     Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
            horizontalPadding: 8
            rightPadding: cancel.active && !mirrored ? 28 : 8
            leftPadding: cancel.active && mirrored ? 28 : 8
            enabled: entry.enabled ?? true
            text: typeof entry === "string" ? entry : entry.text ?? ""
            iconName: entry.iconName ?? ""
            tooltip: entry.tooltip ?? ""
            horizontalAlignment: Text.AlignLeft
            isRectangle: true
            focusPolicy: Qt.NoFocus
            backgroundColorSetName: control.rowColorSetName
            borderColorSetName: ""
            textColorSetName: control.rowTextColorSetName
            iconColorSetName: control.iconColorSetName
            colour: isCurrent && !pressed ? backgroundColorSet.hovered : ThemeUtils.getColor(row, backgroundColorSet)
            font: FontConstants.bodySecondary

            Accessible.role: Accessible.MenuItem
            Accessible.onPressAction: row.click()

            onHoveredChanged: {
                if (hovered)
                    control.currentIndex = index;
            }
            onTriggered: {
                control.close();
                control.clicked(index);
            }

            Loader {
                id: cancel

                anchors.right: parent.right
                anchors.rightMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                active: control.cancelVisible
                sourceComponent: WSvgIconButton {
                    implicitHeight: 24
                    focusPolicy: Qt.NoFocus
                    iconName: "close-bold"
                    iconColorSetName: control.cancelColorSetName
                    tooltip: control.cancelTooltip
                    onTriggered: control.cancelClicked(row.index)
                }
            }
        }
    }
}
