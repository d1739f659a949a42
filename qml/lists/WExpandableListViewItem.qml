// A row of a WExpandableListView: it has the focus, a background by its state, and the arrow keys lead from it to other
// items. What it leaves to the list goes to the rows above and below.
//
//     WExpandableListViewItem {
//         id: row
//         nextSibVisualFocusItem: visualFocusItem === row ? callButton : null
//         prevSibVisualFocusItem: visualFocusItem === row ? null : row
//
//         LKRoundButton {
//             id: callButton
//             focusPolicy: Qt.NoFocus
//         }
//     }
import QtQuick
import LumakitQml.Private 1.0

WRectangle {
    id: root

    enum DelegateType { Row, Session }

    // What the row is.
    property int delegateType: WExpandableListViewItem.Row
    // The roles of the row's data.
    property var delegateModel: null
    // The row's place among all rows that are shown; -1 outside of a list.
    property int rowIndex: -1
    // The part of the row, or the row itself, that has the focus or gets it with the row.
    property Item visualFocusItem: root
    // What Left leads to from the first part of the row.
    property Item parentVisualFocusItem: null
    // What Up and Down lead to.
    property Item prevRowVisualFocusItem: null
    property Item nextRowVisualFocusItem: null
    // What Left and Right lead to within the row, the other way round in a mirrored layout.
    property Item prevSibVisualFocusItem: null
    property Item nextSibVisualFocusItem: null
    // What Shift+Tab and Tab lead to.
    property Item prevVisualFocusItem: prevSibVisualFocusItem
    property Item nextVisualFocusItem: nextSibVisualFocusItem
    // The WExpandableListView that the row is in.
    property var listView: null
    // The session that the row belongs to.
    property string sessionName: ""
    property string focusColorSetName: "global-focus-outline"
    // The row is the chosen one.
    property bool checked: false
    readonly property alias hovered: hoverHandler.hovered
    readonly property alias pressed: mouseArea.pressed

    // By mouse, Space, Enter, Return or a screen reader.
    signal triggered

    // Gives the focus to an item, by the keyboard; false without one.
    function focusOn(item: Item): bool {
        if (!item)
            return false;
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === root)
                visualFocusItem = item;
        }
        item.forceActiveFocus(Qt.TabFocusReason);
        return true;
    }

    function focusBack(): bool {
        return focusOn(prevSibVisualFocusItem ?? parentVisualFocusItem);
    }

    function focusForth(): bool {
        return focusOn(nextSibVisualFocusItem);
    }

    function trigger(): void {
        if (listView && rowIndex >= 0)
            listView.currentIndex = rowIndex;
        triggered();
    }

    // A key that is held does not trigger again.
    function triggerOnce(event: KeyEvent): void {
        if (!event.isAutoRepeat)
            trigger();
    }

    implicitHeight: 40
    radius: 4
    activeFocusOnTab: !listView
    backgroundColorSetName: "listitem-background"

    onActiveFocusChanged: {
        if (activeFocus && visualFocusItem && visualFocusItem !== root)
            visualFocusItem.forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onUpPressed: event => event.accepted = focusOn(prevRowVisualFocusItem)
    Keys.onDownPressed: event => event.accepted = focusOn(nextRowVisualFocusItem)
    Keys.onLeftPressed: event => event.accepted = LayoutMirroring.enabled ? focusForth() : focusBack()
    Keys.onRightPressed: event => event.accepted = LayoutMirroring.enabled ? focusBack() : focusForth()
    Keys.onTabPressed: event => event.accepted = focusOn(nextVisualFocusItem)
    Keys.onBacktabPressed: event => event.accepted = focusOn(prevVisualFocusItem)
    Keys.onSpacePressed: event => triggerOnce(event)
    Keys.onEnterPressed: event => triggerOnce(event)
    Keys.onReturnPressed: event => triggerOnce(event)

    Accessible.role: Accessible.ListItem
    Accessible.name: sessionName
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: checked
    Accessible.onPressAction: {
        if (enabled)
            trigger();
    }

    HoverHandler {
        id: hoverHandler
    }
    MouseArea {
        id: mouseArea

        anchors.fill: parent
        onClicked: {
            root.visualFocusItem = root;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.trigger();
        }
    }
    FocusRing {
        target: root
        radius: root.radius
        offset: -2
        colorSetName: root.focusColorSetName
    }
}
