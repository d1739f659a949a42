pragma ComponentBehavior: Bound

// One of several: a row of buttons of which one is checked.
import QtQuick

Row {
    id: root

    property var options: [] // texts
    property int current: 0

    signal chosen(int index)

    spacing: 8

    Repeater {
        model: root.options

        GalleryButton {
            required property int index
            required property string modelData

            text: modelData
            checked: index === root.current
            Accessible.role: Accessible.RadioButton
            onClicked: root.chosen(index)
        }
    }
}
