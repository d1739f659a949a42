pragma ComponentBehavior: Bound

// An entry of an LKContextMenu: a text, with an icon or a tick before it and its keys behind it.
//
//     LKContextMenu {
//         LKContextMenuItem { text: "Paste"; indicatorSvgName: "paste"; shortcutText: "Ctrl+V" }
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

WMenuItem {
    id: control

    // The keys that do the same; they are only shown.
    property string shortcutText: ""
    property string shortcutColorSetName: "listitem-textsecondary"
    property var shortcutColorSet: themeType === undefined ? null : App.getColorSet(shortcutColorSetName)

    Accessible.description: shortcutText

    contentItem: Item {
        readonly property real indent: control.indicatorRoom + control.arrowRoom

        implicitWidth: Math.ceil(label.implicitWidth) + indent + keys.room
        implicitHeight: Math.ceil(label.implicitHeight)

        Text {
            id: label

            x: control.mirrored ? parent.width - width - control.indicatorRoom : control.indicatorRoom
            width: Math.max(0, parent.width - parent.indent - keys.room)
            height: parent.height
            text: control.text
            textFormat: Text.PlainText
            font: control.font
            color: ThemeUtils.getColor(control.look, control.textColorSet)
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
        }
        Loader {
            id: keys

            readonly property real room: active ? Math.ceil(implicitWidth) + 3 * control.spacing : 0

            x: control.mirrored ? control.arrowRoom : parent.width - width - control.arrowRoom
            height: parent.height
            active: control.shortcutText !== ""
            sourceComponent: Text {
                text: control.shortcutText
                textFormat: Text.PlainText
                font: control.font
                color: ThemeUtils.getColor(control.look, control.shortcutColorSet)
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
