pragma ComponentBehavior: Bound

// The list of the gallery's pages.
import QtQuick

ListView {
    id: root

    property var pages: [] // texts
    property int current: 0

    signal chosen(int index)

    implicitWidth: contentItem.childrenRect.width + 32
    leftMargin: 16
    topMargin: 16
    bottomMargin: 16
    spacing: 4
    clip: true
    model: pages

    delegate: GalleryButton {
        required property int index
        required property string modelData

        width: Math.max(implicitWidth, 128)
        text: modelData
        checked: index === root.current
        Accessible.role: Accessible.PageTab
        onClicked: root.chosen(index)
    }
}
