pragma ComponentBehavior: Bound

// Avatars in rows.
//
//     AvatarListStandard {
//         columns: 4
//         model: participants
//     }
import QtQuick
import QtQuick.Layouts

GridLayout {
    id: root

    // Controllers of WAvatar as a list, or a model whose rows have their properties as roles.
    property var model: null
    // Pixels.
    property real avatarSize: 32
    // The avatars can be clicked and reached by the keyboard.
    property bool allowInteractions: false
    readonly property alias count: avatars.count

    // By mouse, keyboard or a screen reader.
    signal avatarClicked(int index)

    columns: 5
    columnSpacing: 8
    rowSpacing: 8

    Accessible.role: Accessible.List

    Repeater {
        id: avatars

        model: root.model

        WAvatar {
            required property int index
            required property var model

            Layout.preferredWidth: root.avatarSize
            Layout.preferredHeight: root.avatarSize
            controller: model.modelData ?? model
            allowInteractions: root.allowInteractions
            onClicked: root.avatarClicked(index)
        }
    }
}
