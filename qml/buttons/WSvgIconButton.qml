// A round button with an icon. Not to be used outside the toolkit: use LKIconButton.
//
//     WSvgIconButton {
//         iconName: "close-bold"
//         tooltip: "Close"
//         onTriggered: panel.close()
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

WButton {
    id: control

    property string iconName: ""
    property string iconColorSetName: "button-ghost-text"
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)
    property color iconColor: ThemeUtils.getColor(control, iconColorSet)
    // Pixels.
    property int iconHeight: 16
    property int iconWidth: 16

    horizontalPadding: 4
    verticalPadding: 4
    backgroundColorSetName: "button-ghost-background"
    borderColorSetName: "button-ghost-border"
    isRectangle: false

    contentItem: Item {
        implicitWidth: control.iconWidth
        implicitHeight: control.iconHeight

        WSvgIcon {
            anchors.centerIn: parent
            width: control.iconWidth
            height: control.iconHeight
            svgName: control.iconName
            svgColor: control.iconColor
        }
    }
}
