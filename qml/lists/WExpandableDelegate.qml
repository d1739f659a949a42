pragma ComponentBehavior: Bound

// A row of a session: a text, or what is declared in it.
//
//     WExpandableListView {
//         delegate: WExpandableDelegate {
//             text: delegateModel?.name ?? ""
//             onTriggered: page.open(delegateModel.id)
//         }
//     }
import QtQuick

WExpandableListViewItem {
    id: root

    // The height of the row, pixels; a text that needs more has it.
    property int delegateHeight: 40
    property bool isCurrentItem: (listView?.currentIndex ?? -1) === rowIndex && rowIndex >= 0
    property string text: ""
    property string textColorSetName: "listitem-textprimary"
    // Before and behind the text, pixels.
    property int horizontalPadding: 12

    implicitHeight: Math.max(delegateHeight, Math.ceil(label.implicitHeight) + 8)
    checked: isCurrentItem

    Accessible.name: text

    Loader {
        id: label

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: root.horizontalPadding + (root.sessionName === "" ? 0 : 24)
        anchors.rightMargin: root.horizontalPadding
        anchors.verticalCenter: parent.verticalCenter
        active: root.text !== ""
        sourceComponent: WText {
            text: root.text
            textColorSetName: root.textColorSetName
            controlsTarget: root
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
