// A button with an icon and a text, or only one of them. Not to be used outside the toolkit: use LKRoundButton.
//
//     WSvgButton {
//         iconName: "microphone"
//         text: "Mute"
//         onTriggered: call.mute()
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

WButton {
    id: control

    // The side of the text that the icon stands on: Qt.AlignLeft or Qt.AlignRight; the other one in a mirrored layout.
    property int alignment: Qt.AlignLeft
    // Pixels.
    property int iconHeight: 16
    property int iconWidth: 16
    property string iconColorSetName: textColorSetName
    // Without a name there is only the text.
    property string iconName: ""
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)
    property color iconColor: ThemeUtils.getColor(control, iconColorSet)

    horizontalPadding: text === "" ? verticalPadding : 12
    isRectangle: false

    contentItem: Item {
        implicitWidth: (icon.visible ? icon.width + row.spacing : 0) + label.implicitWidth
        implicitHeight: Math.max(icon.visible ? icon.height : 0, label.implicitHeight)

        Row {
            id: row

            x: control.horizontalAlignment === Text.AlignHCenter ? Math.round((parent.width - width) / 2)
                : (control.horizontalAlignment === Text.AlignLeft) !== control.mirrored ? 0 : parent.width - width
            height: parent.height
            spacing: icon.visible && label.visible ? control.spacing : 0
            layoutDirection: control.alignment === Qt.AlignRight ? Qt.RightToLeft : Qt.LeftToRight

            WSvgIcon {
                id: icon

                anchors.verticalCenter: parent.verticalCenter
                visible: svgName !== ""
                width: control.iconWidth
                height: control.iconHeight
                svgName: control.iconName
                svgColor: control.iconColor
            }
            Text {
                id: label

                width: Math.min(Math.ceil(implicitWidth),
                                control.availableWidth - (icon.visible ? icon.width + row.spacing : 0))
                height: parent.height
                visible: text !== ""
                text: control.text
                textFormat: Text.PlainText
                font: control.font
                color: control.textColor
                elide: control.elide
                horizontalAlignment: Text.AlignLeft
                verticalAlignment: control.verticalAlignment
            }
        }
    }
}
