pragma ComponentBehavior: Bound

// The components of a family, live in their states. A click on one shows its properties in the inspector beside.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0
import Gallery 1.0

GalleryPage {
    id: root

    property string family: ""
    property var inspected: null
    property string inspectedName: ""

    function inspect(name: string, sample: var) {
        inspectedName = name;
        inspected = sample ? sample.subject : null;
    }

    onFamilyChanged: inspected = null

    screenfuls: Math.max(1, Math.ceil(view.contentHeight / Math.max(1, view.height)))

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ColumnLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            GallerySearchField {
                id: filter

                Layout.margins: 16
                placeholderText: "Filter components"
            }
            Flickable {
                id: view

                Layout.fillWidth: true
                Layout.fillHeight: true
                clip: true
                contentHeight: column.implicitHeight
                contentY: Math.min(root.screenful * height, Math.max(0, contentHeight - height))

                Column {
                    id: column

                    width: view.width

                    Repeater {
                        model: Components.components(root.family, filter.text)

                        Column {
                            id: entry

                            required property string modelData

                            width: column.width

                            GalleryText {
                                x: 16
                                width: parent.width - 32
                                token: 4
                                text: entry.modelData
                            }
                            Loader {
                                id: sample

                                width: parent.width
                                onLoaded: {
                                    item.width = Qt.binding(() => sample.width);
                                    if (!root.inspected)
                                        root.inspect(entry.modelData, item);
                                }
                                Component.onCompleted: setSource("qrc:/Qml/" + entry.modelData + "Sample.qml",
                                                                 { opensPopups: false })

                                TapHandler {
                                    onTapped: root.inspect(entry.modelData, sample.item)
                                }
                            }
                        }
                    }
                }
            }
        }
        WRectangle {
            Layout.fillHeight: true
            implicitWidth: 1
            backgroundColorSetName: "separator-primary"
        }
        GalleryInspector {
            Layout.fillHeight: true
            Layout.preferredWidth: 360
            title: root.inspectedName
            component: root.inspected
        }
    }
}
