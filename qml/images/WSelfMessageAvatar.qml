// The avatar of the messages that one writes to oneself: an icon in a circle, in place of a picture.
//
//     WSelfMessageAvatar {
//         width: 40
//         height: 40
//     }
import QtQuick

WRectangle {
    id: root

    property string iconName: "pen-bold"
    property string iconColorSetName: "avatar-color-avatar-text"

    implicitWidth: 32
    implicitHeight: 32
    radius: Math.min(width, height) / 2
    backgroundColorSetName: "avatar-color-avatar-background-default"

    Accessible.role: Accessible.Graphic

    WSvgIcon {
        anchors.centerIn: parent
        width: 2 * Math.round(Math.min(root.width, root.height) / 4)
        height: width
        svgName: root.iconName
        svgColorSetName: root.iconColorSetName
    }
}
