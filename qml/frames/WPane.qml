// A pane with the background and border of a panel. It is as large as what is in it, and lets no click through.
//
//     WPane {
//         WText {
//             text: "Devices"
//         }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

T.Pane {
    id: control

    property string backgroundColorSetName: "panel-primary-background"
    // The corners' radius, pixels.
    property real radius: 0
    property string borderColorSetName: ""
    property int borderWidth: 1
    property var themeType: App.themeMode
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)

    // Whole pixels of the screen: the border is as thin on every side.
    function roundedUp(length: real): real {
        return Math.ceil(length * Screen.devicePixelRatio) / Screen.devicePixelRatio;
    }

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            roundedUp(contentWidth + leftPadding + rightPadding))
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             roundedUp(contentHeight + topPadding + bottomPadding))
    padding: 12
    font: FontConstants.bodySecondary

    background: Rectangle {
        radius: control.radius
        color: ThemeUtils.getColor(control, control.backgroundColorSet)
        border.width: control.borderColorSetName === "" ? 0 : control.borderWidth
        border.color: ThemeUtils.getColor(control, control.borderColorSet)
    }
}
