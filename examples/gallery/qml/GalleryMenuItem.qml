// An entry of a menu.
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import Gallery 1.0
import "ThemeUtils.js" as ThemeUtils

T.Button {
    id: control

    property string iconName: ""
    readonly property color contentColor: ThemeUtils.getColor(control, Gallery.colorSet("listitem-textprimary", App.themeMode))

    implicitWidth: Math.max(180, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(32, implicitContentHeight + 12)
    horizontalPadding: 12
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font: Gallery.font(6, App.fontScaleFactor)

    Accessible.role: Accessible.MenuItem
    Accessible.name: text

    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
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
                text: control.text
                textFormat: Text.PlainText
                font: control.font
                color: control.contentColor
            }
        }
    }
    background: Rectangle {
        radius: 6
        color: ThemeUtils.getColor(control, Gallery.colorSet("listitem-background", App.themeMode))
        border.width: control.visualFocus ? 2 : 0
        border.color: Gallery.colorSet("global-focus-outline", App.themeMode).normal
    }
}
