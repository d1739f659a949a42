// A line between the groups of a menu.
//
//     WMenu {
//         WMenuItem { text: "Rename" }
//         WMenuSeparator {}
//         WMenuItem { text: "Delete" }
//     }
import QtQuick
import QtQuick.Templates as T

T.MenuSeparator {
    id: control

    property string backgroundColorSetName: "separator-secondary"
    // Pixels around the line; left and right change places in a mirrored layout.
    property int topMargin: 4
    property int bottomMargin: 4
    property int leftMargin: 12
    property int rightMargin: 12

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    topPadding: topMargin
    bottomPadding: bottomMargin
    leftPadding: mirrored ? rightMargin : leftMargin
    rightPadding: mirrored ? leftMargin : rightMargin

    Accessible.role: Accessible.Separator

    contentItem: WSeparator {
        backgroundColorSetName: control.backgroundColorSetName
        Accessible.ignored: true
    }
}
