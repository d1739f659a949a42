pragma ComponentBehavior: Bound

// The properties of a component. Return takes over what was typed.
import QtQuick
import LumakitQml 1.0
import Gallery 1.0

Item {
    id: root

    property string title: ""
    property var component: null
    property var properties: Components.properties(component)

    function write(name: string, text: string) {
        Components.write(component, name, text);
        properties = Components.properties(component);
    }

    GalleryText {
        id: heading

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 16
        token: 4
        text: root.title
    }
    ListView {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: heading.bottom
        anchors.bottom: parent.bottom
        anchors.margins: 16
        clip: true
        spacing: 4
        model: root.properties

        delegate: Item {
            id: row

            required property var modelData

            width: ListView.view.width
            height: field.height

            GalleryText {
                anchors.left: parent.left
                anchors.right: field.left
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                token: 19
                elide: Text.ElideMiddle
                text: row.modelData.name
                colorSetName: row.modelData.isWritable ? "label-primary-text" : "label-secondary-text"
            }
            WTextField {
                id: field

                anchors.right: parent.right
                width: Math.round(parent.width * 0.55)
                readOnly: !row.modelData.isWritable
                text: row.modelData.value
                Accessible.name: row.modelData.name
                onAccepted: root.write(row.modelData.name, text)
            }
        }
    }
}
