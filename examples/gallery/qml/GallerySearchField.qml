// A field that narrows what a page shows.
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import Gallery 1.0
import "ThemeUtils.js" as ThemeUtils

T.TextField {
    id: control

    implicitWidth: 240
    implicitHeight: Math.max(32, contentHeight + 12)
    leftPadding: Gallery.mirrored ? 12 : 36
    rightPadding: Gallery.mirrored ? 36 : 12
    verticalAlignment: Text.AlignVCenter
    hoverEnabled: true
    selectByMouse: true
    font: Gallery.font(6, App.fontScaleFactor)
    color: ThemeUtils.getTextFieldColor(control, Gallery.colorSet("search-text", App.themeMode))
    placeholderTextColor: Gallery.colorSet("search-placeholder-text", App.themeMode).normal

    Accessible.name: placeholderText

    Text {
        x: control.leftPadding
        width: control.width - control.leftPadding - control.rightPadding
        height: control.height
        visible: control.length === 0 && control.preeditText === ""
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        text: control.placeholderText
        textFormat: Text.PlainText
        font: control.font
        color: control.placeholderTextColor
    }
    GalleryIcon {
        x: Gallery.mirrored ? control.width - width - 10 : 10
        anchors.verticalCenter: parent.verticalCenter
        width: 20
        height: 20
        name: "search"
        color: control.placeholderTextColor
    }

    background: Rectangle {
        radius: 8
        color: ThemeUtils.getColor(control, Gallery.colorSet("search-background", App.themeMode))
        border.width: control.activeFocus ? 2 : 1
        border.color: control.activeFocus ? Gallery.colorSet("global-focus-outline", App.themeMode).normal
                                          : Gallery.colorSet("search-border", App.themeMode).normal
    }
}
