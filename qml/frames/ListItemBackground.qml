// The background of a row in a list, in the colour of the row's state.
//
//     delegate: T.ItemDelegate {
//         id: row
//         background: ListItemBackground {
//             controlsTarget: row
//         }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

T.Control {
    id: control

    property string backgroundColorSetName: "listitem-background"
    property string borderColorSetName: ""
    property int borderWidth: 1
    property real radius: 4
    property var themeType: App.themeMode
    // The row whose state (enabled, pressed, hovered, focus, checked) picks the colours; this item itself if null.
    property var controlsTarget: null
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)

    implicitWidth: implicitBackgroundWidth + leftInset + rightInset
    implicitHeight: implicitBackgroundHeight + topInset + bottomInset
    hoverEnabled: !controlsTarget

    Accessible.ignored: true

    background: Rectangle {
        implicitHeight: 40
        radius: control.radius
        color: ThemeUtils.getColor(control.controlsTarget ?? control, control.backgroundColorSet)
        border.width: control.borderColorSetName === "" ? 0 : control.borderWidth
        border.color: ThemeUtils.getColor(control.controlsTarget ?? control, control.borderColorSet)
    }
}
