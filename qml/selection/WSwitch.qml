// A switch for what takes effect at once, with a text beside it.
//
//     WSwitch {
//         text: "Remove background noise"
//         checked: audio.removesNoise
//         onToggled: audio.removesNoise = checked
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.Switch {
    id: control

    // The same as `checked`.
    property alias aChecked: control.checked
    // Pixels.
    property int backgroundWidth: 40
    property int backgroundHeight: 24
    property int indicatorDiameter: 16
    property string backgroundColorSetName: checked ? "toggle-toggled-background" : "toggle-untoggled-background"
    property string borderColorSetName: checked ? "toggle-toggled-border" : "toggle-untoggled-border"
    // The ring around the switch while it has the keyboard's focus.
    property string focusedBorderColorSetName: "global-focus-outline"
    property string indicatorColorSetName: checked ? "toggle-toggled-thumb-tint" : "toggle-untoggled-thumb-tint"
    property string textColorSetName: "label-primary-text"
    // Shown when the cursor or the keyboard's focus rests on the switch; its accessible name where it has no text.
    property string tooltip: ""
    property var themeType: App.themeMode
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property var indicatorColorSet: themeType === undefined ? null : App.getColorSet(indicatorColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)

    implicitWidth: (text === "" ? backgroundWidth : Math.ceil(implicitContentWidth)) + leftPadding + rightPadding
    implicitHeight: Math.max(backgroundHeight, Math.ceil(implicitContentHeight)) + topPadding + bottomPadding
    spacing: 8
    font: FontConstants.bodySecondary
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    // Return and Enter click as Space does; a key that is held down does so once.
    Keys.onPressed: event => {
        const isReturn = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isReturn || event.key === Qt.Key_Space && event.isAutoRepeat;
        if (isReturn && !event.isAutoRepeat)
            click();
    }
    Keys.onReleased: event => event.accepted = event.key === Qt.Key_Space && event.isAutoRepeat

    Accessible.role: Accessible.CheckBox
    Accessible.name: text === "" ? tooltip : text
    Accessible.onPressAction: click()
    Accessible.onToggleAction: click()

    indicator: Rectangle {
        id: track

        // The control's state without `checked`, for which there are colour sets of their own.
        readonly property bool pressed: control.pressed
        readonly property bool hovered: control.hovered

        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: Math.round((control.topPadding + (control.availableHeight - height) / 2) * Screen.devicePixelRatio)
           / Screen.devicePixelRatio
        implicitWidth: control.backgroundWidth
        implicitHeight: control.backgroundHeight
        radius: height / 2
        color: ThemeUtils.getColor(track, control.backgroundColorSet)
        border.width: 1
        border.color: ThemeUtils.getColor(track, control.borderColorSet)

        Rectangle {
            readonly property real gap: Math.round((parent.height - height) / 2)

            x: gap + Math.round(control.visualPosition * (parent.width - width - 2 * gap))
            y: gap
            width: control.indicatorDiameter
            height: control.indicatorDiameter
            radius: height / 2
            color: ThemeUtils.getColor(track, control.indicatorColorSet)

            Behavior on x {
                enabled: !control.pressed && !App.animationsDisabled()

                NumberAnimation {
                    duration: 100
                    easing.type: Easing.OutCubic
                }
            }
        }
    }
    contentItem: Text {
        leftPadding: control.mirrored ? 0 : control.backgroundWidth + control.spacing
        rightPadding: control.mirrored ? control.backgroundWidth + control.spacing : 0
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: ThemeUtils.getColor(control, control.textColorSet)
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }

    FocusRing {
        around: control.indicator
        radius: control.backgroundHeight / 2
        colorSetName: control.focusedBorderColorSetName
    }
    ToolTipTrigger {
        text: control.tooltip
    }
}
