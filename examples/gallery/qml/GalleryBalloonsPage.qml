pragma ComponentBehavior: Bound

// Balloons with their arrow on every edge at every place, and half-pills joined to bars.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import Gallery 1.0
import LumakitQml 1.0

GalleryPage {
    id: root

    readonly property list<string> edges: ["None", "Top", "Bottom", "Left", "Right"]
    readonly property list<string> places: ["left", "center", "right", "top", "bottom"]
    readonly property var fills: [
        { background: "popover-primary-background", border: "menulistbackground-primary-border", text: "label-primary-text" },
        { background: "button-accent-fill-background", border: "button-accent-fill-border", text: "button-accent-fill-text" },
        { background: "coachmarkteaching-background", border: "coachmarkteaching-button-secondary-border",
          text: "coachmarkteaching-button-secondary-text" }
    ]
    readonly property var fill: fills[fillChoice.current]

    screenfuls: Math.ceil(scroll.contentHeight / Math.max(1, height))

    Flickable {
        id: scroll

        anchors.fill: parent
        clip: true
        contentHeight: column.implicitHeight + 32
        contentY: Math.min(root.screenful * height, Math.max(0, contentHeight - height))

        ColumnLayout {
            id: column

            x: 16
            y: 16
            width: root.width - 32
            spacing: 16

            Flow {
                Layout.fillWidth: true
                spacing: 24

                GallerySegments {
                    id: fillChoice

                    objectName: "fill"
                    options: ["Popover", "Accent", "Coachmark"]
                    onChosen: index => current = index
                }
                GallerySegments {
                    id: labelChoice

                    options: ["Named", "Bare"]
                    onChosen: index => current = index
                }
                GallerySegments {
                    enabled: false
                    options: ["Never", "available"]
                }
            }
            RowLayout {
                spacing: 32

                GallerySlider {
                    id: offset

                    Layout.fillWidth: true
                    text: "Arrow offset"
                    from: -120
                    to: 120
                }
                GallerySlider {
                    id: size

                    Layout.fillWidth: true
                    text: "Arrow size"
                    to: 24
                    value: 10
                }
                GallerySlider {
                    id: radius

                    Layout.fillWidth: true
                    text: "Radius"
                    to: 24
                    value: 8
                }
                GallerySlider {
                    id: border

                    Layout.fillWidth: true
                    text: "Border"
                    to: 8
                    value: 2
                }
            }
            GridLayout {
                columns: root.places.length
                columnSpacing: 16
                rowSpacing: 16

                Repeater {
                    model: root.edges.length * root.places.length

                    WBalloon {
                        id: balloon

                        required property int index
                        readonly property int edge: Math.floor(index / root.places.length)
                        readonly property int place: index % root.places.length

                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        implicitHeight: Math.round(72 + 24 * App.fontScaleFactor)
                        arrowAnchor: edge // the values count from 0 in this order
                        arrowAlignment: place
                        arrowOffset: offset.value
                        arrowSize: size.value
                        radius: radius.value
                        borderWidth: border.value
                        backgroundColor: Gallery.colorSet(root.fill.background, App.themeMode).normal
                        borderColor: Gallery.colorSet(root.fill.border, App.themeMode).normal
                        // These do not repaint by themselves.
                        onArrowSizeChanged: update()
                        onRadiusChanged: update()
                        onBorderWidthChanged: update()

                        GalleryText {
                            anchors.fill: parent
                            anchors.topMargin: balloon.edge === WBalloon.Top ? balloon.arrowSize : 0
                            anchors.bottomMargin: balloon.edge === WBalloon.Bottom ? balloon.arrowSize : 0
                            anchors.leftMargin: 8 + (balloon.edge === WBalloon.Left ? balloon.arrowSize : 0)
                            anchors.rightMargin: 8 + (balloon.edge === WBalloon.Right ? balloon.arrowSize : 0)
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                            colorSetName: root.fill.text
                            text: labelChoice.current === 0
                                  ? "%1, %2".arg(root.edges[balloon.edge]).arg(root.places[balloon.place]) : ""
                        }
                    }
                }
            }
        }
    }
}
