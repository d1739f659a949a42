// Popup windows that point at an item, which can be dragged to the edges of the screen.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import Gallery 1.0

GalleryPage {
    id: root

    readonly property list<int> arrows: [Qt.UpArrow, Qt.DownArrow, Qt.LeftArrow, Qt.RightArrow]
    property int kind: Popups.Menu

    function showPopup(): void {
        Popups.show(kind, anchor, arrows[arrowChoice.current]);
    }

    Connections {
        target: Popups

        function onChosen(text: string): void {
            choice.text = "Chosen: %1".arg(text);
        }
    }
    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        Flow {
            Layout.fillWidth: true
            spacing: 24

            GallerySegments {
                objectName: "kind"
                options: ["Menu", "Dialog", "Tooltip"]
                current: root.kind
                onChosen: index => {
                    Popups.hide();
                    root.kind = index;
                }
            }
            GallerySegments {
                id: arrowChoice

                objectName: "arrow"
                options: ["Arrow up", "Down", "Left", "Right"]
                onChosen: index => {
                    Popups.hide();
                    current = index;
                }
            }
            GalleryText {
                id: choice

                objectName: "choice"
                height: 32
                verticalAlignment: Text.AlignVCenter
                colorSetName: "label-secondary-text"
                text: "Drag the button or move it with the arrow keys, then press it"
            }
        }
        WRectangle {
            id: stage

            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: 12
            border.width: 1
            border.color: Gallery.colorSet("separator-primary", App.themeMode).normal
            backgroundColorSetName: "panel-tertiary-background"

            GalleryAnchor {
                id: anchor

                objectName: "anchor"
                x: (stage.width - width) / 2
                y: (stage.height - height) / 2
                onMoved: Popups.hide() // it would take over the mouse and the keys
                onClicked: {
                    root.showPopup();
                    Popups.activate();
                }
                onHoveredChanged: {
                    if (root.kind !== Popups.ToolTip)
                        return;
                    if (hovered)
                        root.showPopup();
                    else
                        Popups.hide();
                }
            }
        }
    }
}
