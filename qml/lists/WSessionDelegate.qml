// The head of a session: it expands and collapses the session's rows, by the mouse, by Space, Enter and Return, or by
// Right and Left.
//
//     WSessionDelegate {
//         listView: view
//         sessionName: "Today"
//     }
import QtQuick
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

WExpandableListViewItem {
    id: root

    // The one session that is expanded, in a list that expands only one.
    property string expandedSessionName: listView?.expandedSessionName ?? ""
    // By session, whether it is expanded, in a list of any number; one that is not named is.
    property var expandedStatusList: listView?.expandedStatusList ?? ({})
    property bool expanded: (listView?.isMultiCollapsed ?? true) ? (expandedStatusList[sessionName] ?? true)
                                                                 : expandedSessionName === sessionName
    property string textColorSetName: "listitem-textsecondary"
    property string iconColorSetName: "listitem-icon"

    // The user asked for the other state.
    signal toggled

    function toggle(): void {
        listView?.setExpanded(sessionName, !expanded);
        toggled();
    }

    implicitHeight: Math.max(32, Math.ceil(label.implicitHeight) + 8)
    delegateType: WExpandableListViewItem.Session

    onTriggered: toggle()

    Keys.onPressed: event => {
        const opening = LayoutMirroring.enabled ? Qt.Key_Left : Qt.Key_Right;
        const closing = LayoutMirroring.enabled ? Qt.Key_Right : Qt.Key_Left;
        event.accepted = event.key === (expanded ? closing : opening);
        if (event.accepted)
            toggle();
    }

    Accessible.role: Accessible.Button
    Accessible.selectable: false
    Accessible.checkable: true
    Accessible.checked: expanded

    WSvgIcon {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        svgName: root.expanded ? "chevron-down-bold"
               : LayoutMirroring.enabled ? "chevron-left-bold" : "chevron-right-bold"
        svgColorSetName: root.iconColorSetName
        svgColor: ThemeUtils.getColor(root, icon.svgColorSet)
    }
    WText {
        id: label

        anchors.left: icon.right
        anchors.right: parent.right
        anchors.leftMargin: 8
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: root.sessionName
        textColorSetName: root.textColorSetName
        controlsTarget: root
        font: FontConstants.subheaderSecondary
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
