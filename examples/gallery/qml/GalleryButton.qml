// A push button with an icon, a text or both; checkable ones show which is chosen.
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import Gallery 1.0
import "ThemeUtils.js" as ThemeUtils

T.Button {
    id: control

    property string iconName: ""
    readonly property string variant: checked ? "primary" : "secondary"
    readonly property color contentColor:
        ThemeUtils.getColor(control, Gallery.colorSet("button-" + variant + "-text", App.themeMode))

    implicitWidth: Math.max(implicitHeight, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(32, implicitContentHeight + 12)
    horizontalPadding: text === "" ? 4 : 12
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font: Gallery.font(4, App.fontScaleFactor) // SubheaderSecondary

    Accessible.name: text === "" ? iconName : text

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            anchors.centerIn: parent
            spacing: 6

            GalleryIcon {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.iconName !== ""
                width: 20
                height: 20
                name: control.iconName
                color: control.contentColor
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.text !== ""
                text: control.text
                textFormat: Text.PlainText
                font: control.font
                color: control.contentColor
            }
        }
    }

    background: Rectangle {
        radius: height / 2
        color: ThemeUtils.getColor(control, Gallery.colorSet("button-" + control.variant + "-background", App.themeMode))
        border.width: 1
        border.color: ThemeUtils.getColor(control, Gallery.colorSet("button-" + control.variant + "-border", App.themeMode))

        Rectangle {
            anchors.fill: parent
            anchors.margins: -4
            visible: control.visualFocus
            radius: height / 2
            color: "transparent"
            border.width: 2
            border.color: Gallery.colorSet("global-focus-outline", App.themeMode).normal
        }
    }
}
