pragma ComponentBehavior: Bound

// A menu that can grow while it is shown.
import QtQuick
import Gallery 1.0

GalleryPopup {
    id: root

    property list<string> entries: ["Copy", "Rename", "Move to"]

    function focusEntry(index: int): void {
        const item = items.itemAt((index + items.count) % items.count);
        if (item)
            item.forceActiveFocus(Qt.TabFocusReason);
    }

    padding: 6

    Accessible.role: Accessible.PopupMenu
    Accessible.name: "Menu"

    Component.onCompleted: focusEntry(0)

    Column {
        Repeater {
            id: items

            model: root.entries.concat(["More"])

            GalleryMenuItem {
                required property int index
                required property string modelData
                readonly property bool grows: index === root.entries.length

                text: modelData
                iconName: grows ? "plus" : ""
                Keys.onUpPressed: root.focusEntry(index - 1)
                Keys.onDownPressed: root.focusEntry(index + 1)
                onClicked: {
                    if (grows)
                        root.entries = root.entries.concat(["Entry %1".arg(root.entries.length + 1)]);
                    else
                        Popups.choose(text);
                }
            }
        }
    }
}
