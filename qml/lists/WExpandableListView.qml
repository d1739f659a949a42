pragma ComponentBehavior: Bound

// A list in sessions that expand and collapse. The arrows move among its rows and the heads of its sessions; Left leads
// from a row to the head of its session. The rows of a collapsed session cost nothing.
//
//     WExpandableListView {
//         model: contacts
//         sessionRole: "group"
//         delegate: WExpandableDelegate {
//             text: delegateModel?.name ?? ""
//         }
//     }
import QtQuick
import LumakitQml.Private 1.0

WListView {
    id: root

    // Whether sessions expand and collapse by themselves; otherwise expanding one collapses the others.
    property alias isMultiCollapsed: sessions.isMultiCollapsed
    // Whether the arrows, Home, End, PageUp and PageDown move the current row.
    property bool arrowKeyEnabled: true
    // Of rows with roles, those of one session one after the other.
    property alias model: sessions.source
    // The role that holds a row's session. Rows without one stand for themselves.
    property alias sessionRole: sessions.sessionRole
    // A WExpandableListViewItem for each row; it gets the row's data as `delegateModel`.
    property Component delegate: WExpandableDelegate {
        text: delegateModel?.text ?? ""
    }
    // The same for the head of each session.
    property Component sessionDelegate: WSessionDelegate {}
    // The one session that is expanded, if not several can be.
    property alias expandedSessionName: sessions.expandedSessionName
    // By session, whether it is expanded, if several can be; one that is not named is.
    property alias expandedStatusList: sessions.expandedStatusList

    // A session has been expanded or collapsed.
    signal sessionToggled(string sessionName, bool expanded)

    function isExpanded(sessionName: string): bool {
        return isMultiCollapsed ? expandedStatusList[sessionName] ?? true : expandedSessionName === sessionName;
    }

    function setExpanded(sessionName: string, expanded: bool): void {
        if (expanded === isExpanded(sessionName))
            return;
        if (isMultiCollapsed)
            expandedStatusList = Object.assign({}, expandedStatusList, { [sessionName]: expanded });
        else
            expandedSessionName = expanded ? sessionName : "";
        sessionToggled(sessionName, expanded);
    }

    // Several sessions at once need `isMultiCollapsed`.
    function expandAll(): void {
        sessions.sessions().forEach(name => setExpanded(name, true));
    }

    function collapseAll(): void {
        sessions.sessions().forEach(name => setExpanded(name, false));
    }

    listView.model: sessions.source ? sessions : null
    listView.keyNavigationEnabled: arrowKeyEnabled
    listView.delegate: Loader {
        id: row

        required property int index
        required property var model

        width: ListView.view?.width ?? 0
        sourceComponent: model.isSession ? root.sessionDelegate : root.delegate

        onLoaded: {
            const content = item as WExpandableListViewItem;
            if (!content)
                return;
            content.listView = root;
            content.rowIndex = Qt.binding(() => row.index);
            content.sessionName = Qt.binding(() => row.model.sessionName);
            content.delegateModel = row.model;
            content.focus = true;
        }
    }

    Keys.onPressed: event => {
        const parentKey = LayoutMirroring.enabled ? Qt.Key_Right : Qt.Key_Left;
        const head = arrowKeyEnabled && event.key === parentKey ? sessions.sessionRow(currentIndex) : -1;
        event.accepted = head >= 0 && head !== currentIndex;
        if (event.accepted)
            moveTo(head);
    }

    SessionModel {
        id: sessions

        sessionRole: "session"
    }
}
