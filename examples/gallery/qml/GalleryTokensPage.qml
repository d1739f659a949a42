pragma ComponentBehavior: Bound

// Every colour-set token as a swatch in its six states.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import Gallery 1.0

GalleryPage {
    id: root

    readonly property list<string> states: ["normal", "hovered", "pressed", "disabled", "focused", "checked"]

    screenfuls: Math.ceil(grid.contentHeight / Math.max(1, grid.height))

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        RowLayout {
            spacing: 16

            GallerySearchField {
                id: filter
                placeholderText: "Filter tokens"
            }
            GalleryText {
                Layout.fillWidth: true
                colorSetName: "label-secondary-text"
                text: "%1 of %2 tokens: %3".arg(grid.count).arg(Gallery.tokens.length).arg(root.states.join(", "))
            }
        }
        GridView {
            id: grid

            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            cellWidth: Math.floor(width / Math.max(1, Math.floor(width / 300)))
            cellHeight: Math.round(48 + 12 * App.fontScaleFactor)
            contentY: Math.min(root.screenful * height, Math.max(0, contentHeight - height))
            model: Gallery.tokens.filter(name => name.toLowerCase().includes(filter.text.toLowerCase()))

            delegate: Item {
                id: cell

                required property string modelData
                readonly property var colorSet: Gallery.colorSet(modelData, App.themeMode)

                width: grid.cellWidth
                height: grid.cellHeight

                Row {
                    id: swatches

                    Repeater {
                        model: root.states

                        Rectangle {
                            required property string modelData

                            width: 40
                            height: 28
                            color: cell.colorSet[modelData]
                            border.width: 1
                            border.color: Gallery.colorSet("separator-primary", App.themeMode).normal
                        }
                    }
                }
                GalleryText {
                    anchors.top: swatches.bottom
                    anchors.topMargin: 2
                    width: cell.width - 16
                    token: 19 // RadioButtonLabelSecondary: small and regular
                    elide: Text.ElideMiddle
                    text: cell.modelData
                }
            }
        }
    }
}
