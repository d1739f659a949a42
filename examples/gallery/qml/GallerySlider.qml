// A number to choose, with its name and its value.
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Corvane 1.0
import Gallery 1.0
import "ThemeUtils.js" as ThemeUtils

ColumnLayout {
    id: root

    property string text: ""
    property alias from: slider.from
    property alias to: slider.to
    property alias value: slider.value

    spacing: 2

    RowLayout {
        spacing: 8

        GalleryText {
            Layout.fillWidth: true
            text: root.text
        }
        GalleryText {
            colorSetName: "label-secondary-text"
            text: root.value
        }
    }
    T.Slider {
        id: slider

        readonly property color fill: ThemeUtils.getColor(slider, Gallery.colorSet("button-primary-background", App.themeMode))

        Layout.fillWidth: true
        implicitWidth: 160
        implicitHeight: 24
        stepSize: 1
        snapMode: T.Slider.SnapAlways
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true

        Accessible.name: root.text

        background: Item {
            Rectangle {
                y: (parent.height - height) / 2
                width: parent.width
                height: 4
                radius: 2
                color: Gallery.colorSet("button-secondary-border", App.themeMode).normal

                Rectangle {
                    x: slider.mirrored ? parent.width - width : 0
                    width: parent.width * slider.position
                    height: parent.height
                    radius: parent.radius
                    color: slider.fill
                }
            }
        }
        handle: Rectangle {
            x: slider.visualPosition * (slider.width - width)
            y: (slider.height - height) / 2
            width: 16
            height: 16
            radius: 8
            color: slider.fill

            Rectangle {
                anchors.fill: parent
                anchors.margins: -4
                visible: slider.visualFocus
                radius: height / 2
                color: "transparent"
                border.width: 2
                border.color: Gallery.colorSet("global-focus-outline", App.themeMode).normal
            }
        }
    }
}
