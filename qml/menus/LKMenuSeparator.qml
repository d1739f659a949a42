// A line between the groups of an LKMenu or LKContextMenu.
//
//     LKContextMenu {
//         LKContextMenuItem { text: "Rename" }
//         LKMenuSeparator {}
//         LKContextMenuItem { text: "Delete" }
//     }
import QtQuick
import Corvane 1.0

WMenuSeparator {
    id: control

    property var themeType: App.themeMode

    backgroundColorSetName: "separator-primary"

    contentItem: WSeparator {
        themeType: control.themeType
        backgroundColorSetName: control.backgroundColorSetName
        Accessible.ignored: true
    }
}
