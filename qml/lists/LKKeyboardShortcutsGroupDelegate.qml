pragma ComponentBehavior: Bound

// A group of keyboard shortcuts under a title, which expands and collapses it: by mouse, Space, Enter and Return, or by
// Right and Left. The rows of a collapsed group cost nothing.
//
//     LKKeyboardShortcutsGroupDelegate {
//         title: "Call"
//         items: [
//             { title: "Mute", keySequence: "Ctrl+M" },
//             { title: "Leave", addButtonIsVisible: true, addButtonText: "Add" }
//         ]
//         onAddButtonClicked: index => edit(index)
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

Item {
    id: root

    property var themeType: App.themeMode
    property string title: ""
    property bool collapsed: false
    // For each row an object with values for the properties of LKKeyboardShortcutsItemDelegate.
    property var items: []
    readonly property alias header: headerButton

    // The user has expanded or collapsed the group.
    signal toggled
    // Of the row with that index.
    signal itemClicked(int index)
    signal addButtonClicked(int index)
    // `around` is the button.
    signal moreButtonClicked(index: int, around: Item)

    function widestRow(): real {
        let widest = 0;
        for (let i = 0; i < rows.count; ++i)
            widest = Math.max(widest, rows.itemAt(i)?.implicitWidth ?? 0);
        return widest;
    }

    function toggle(): void {
        collapsed = !collapsed;
        toggled();
    }

    implicitWidth: Math.ceil(Math.max(headerButton.implicitWidth, widestRow()))
    implicitHeight: content.implicitHeight

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Column {
        id: content

        width: parent.width
        spacing: 4

        WButton {
            id: headerButton

            // That it is checked tells a screen reader that the group is expanded; it has no looks.
            readonly property var look: ({ enabled: enabled, pressed: down, hovered: hovered })

            width: parent.width
            themeType: root.themeType
            text: root.title
            checkable: true
            checked: !root.collapsed
            horizontalAlignment: Text.AlignLeft
            spacing: 8
            backgroundColorSetName: "listitem-background"
            borderColorSetName: ""
            textColorSetName: "listitem-textsecondary"
            colour: ThemeUtils.getColor(look, backgroundColorSet)
            textColor: ThemeUtils.getColor(look, textColorSet)

            onToggled: checked = Qt.binding(() => !root.collapsed)
            onTriggered: root.toggle()

            Keys.onPressed: event => {
                const opening = mirrored ? Qt.Key_Left : Qt.Key_Right;
                const closing = mirrored ? Qt.Key_Right : Qt.Key_Left;
                event.accepted = event.key === (root.collapsed ? opening : closing);
                if (event.accepted)
                    root.toggle();
            }

            contentItem: Item {
                implicitWidth: icon.width + headerButton.spacing + Math.ceil(label.implicitWidth)
                implicitHeight: Math.max(icon.height, label.implicitHeight)

                WSvgIcon {
                    id: icon

                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    width: 16
                    height: 16
                    svgName: !root.collapsed ? "chevron-down-bold"
                           : headerButton.mirrored ? "chevron-left-bold" : "chevron-right-bold"
                    svgColor: headerButton.textColor
                }
                Text {
                    id: label

                    anchors.left: icon.right
                    anchors.right: parent.right
                    anchors.leftMargin: headerButton.spacing
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.title
                    textFormat: Text.PlainText
                    font: headerButton.font
                    color: headerButton.textColor
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignLeft
                }
            }
        }
        Repeater {
            id: rows

            model: root.collapsed ? null : root.items

            LKKeyboardShortcutsItemDelegate {
                required property int index
                required property var modelData

                width: root.width
                themeType: root.themeType
                title: modelData?.title ?? ""
                moreButtonIsVisible: modelData?.moreButtonIsVisible ?? false
                moreButtonIsEnabled: modelData?.moreButtonIsEnabled ?? true
                moreButtonTooltipText: modelData?.moreButtonTooltipText ?? qsTr("More")
                addButtonIsVisible: modelData?.addButtonIsVisible ?? false
                addButtonIsEnabled: modelData?.addButtonIsEnabled ?? true
                addButtonText: modelData?.addButtonText ?? ""
                globalLabelIsVisible: modelData?.globalLabelIsVisible ?? false
                globalLabelText: modelData?.globalLabelText ?? ""
                keySequence: modelData?.keySequence ?? ""
                enabled: modelData?.enabled ?? true
                onClicked: root.itemClicked(index)
                onAddButtonClicked: root.addButtonClicked(index)
                onMoreButtonClicked: around => root.moreButtonClicked(index, around)
            }
        }
    }
}
