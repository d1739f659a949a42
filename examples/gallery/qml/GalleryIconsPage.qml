pragma ComponentBehavior: Bound

// Every icon of the gallery, in any colour and at several sizes.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import Gallery 1.0

GalleryPage {
    id: root

    readonly property list<string> colorSetNames: [
        "label-primary-text", "label-secondary-text", "hyperlink-accent-text", "label-success-text",
        "label-warning-text", "label-error-text", "tab-violet", "tab-cobalt", "tab-mint"
    ]
    readonly property list<int> sizes: [16, 20, 24, 32, 48]
    property int colorIndex: 0
    property int sizeIndex: 2

    screenfuls: Math.ceil(grid.contentHeight / Math.max(1, grid.height))

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        Flow {
            Layout.fillWidth: true
            spacing: 24

            GallerySearchField {
                id: filter
                placeholderText: "Filter icons"
            }
            GalleryChoice {
                options: root.sizes.map(size => String(size))
                current: root.sizeIndex
                onChosen: index => root.sizeIndex = index
            }
            Row {
                spacing: 8

                Repeater {
                    model: root.colorSetNames

                    GalleryButton {
                        id: colorButton

                        required property int index
                        required property string modelData

                        Accessible.name: modelData
                        width: 32
                        checked: index === root.colorIndex
                        contentItem: Item {
                            Rectangle {
                                anchors.centerIn: parent
                                width: 16
                                height: 16
                                radius: 8
                                color: Gallery.colorSet(colorButton.modelData, App.themeMode).normal
                            }
                        }
                        onClicked: root.colorIndex = index
                    }
                }
            }
        }
        GridView {
            id: grid

            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            cellWidth: Math.floor(width / Math.max(1, Math.floor(width / 112)))
            cellHeight: Math.round(64 + 20 * App.fontScaleFactor)
            contentY: Math.min(root.screenful * height, Math.max(0, contentHeight - height))
            model: Gallery.icons.filter(name => name.includes(filter.text.toLowerCase()))

            delegate: Item {
                id: cell

                required property string modelData

                width: grid.cellWidth
                height: grid.cellHeight

                Item {
                    id: frame

                    width: parent.width
                    height: 56

                    GalleryIcon {
                        anchors.centerIn: parent
                        width: root.sizes[root.sizeIndex]
                        height: width
                        name: cell.modelData
                        color: Gallery.colorSet(root.colorSetNames[root.colorIndex], App.themeMode).normal
                    }
                }
                GalleryText {
                    anchors.top: frame.bottom
                    width: cell.width - 8
                    token: 19
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideMiddle
                    colorSetName: "label-secondary-text"
                    text: cell.modelData
                }
            }
        }
    }
}
