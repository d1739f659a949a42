pragma ComponentBehavior: Bound

// A check box with a text beside it; the third state has a line in place of the tick.
//
//     WCheckBox {
//         text: "Remember me"
//         onToggled: settings.remember = checked
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.CheckBox {
    id: control

    // Pixels.
    property int checkboxSize: 20
    property int checkboxRadius: 4
    property string indicatorColorSetName: isEmpty ? "checkbox-unchecked-background" : "checkbox-checked-background"
    property string textColorSetName: isEmpty ? "checkbox-unchecked-text" : "checkbox-checked-text"
    // What stands in the box while it is not empty.
    property string checkIconName: checkState === Qt.PartiallyChecked ? "minus-bold" : "check-bold"
    property var themeType: App.themeMode
    property string borderColorSetName: isEmpty ? "checkbox-unchecked-border" : "checkbox-checked-border"
    property string checkIconColorSetName: "checkbox-checked-icon"
    property string focusColorSetName: "global-focus-outline"
    // Shown when the cursor or the keyboard's focus rests on the box; its accessible name where it has no text.
    property string tooltip: ""
    property var indicatorColorSet: themeType === undefined ? null : App.getColorSet(indicatorColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property var checkIconColorSet: themeType === undefined ? null : App.getColorSet(checkIconColorSetName)
    readonly property bool isEmpty: checkState === Qt.Unchecked

    implicitWidth: (text === "" ? checkboxSize : Math.ceil(implicitContentWidth)) + leftPadding + rightPadding
    implicitHeight: Math.max(checkboxSize, Math.ceil(implicitContentHeight)) + topPadding + bottomPadding
    verticalPadding: 2
    spacing: 8
    font: FontConstants.bodySecondary
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            click();
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            click();
    }

    onTooltipChanged: ToolTips.set(control, tooltip)

    Accessible.name: text === "" ? tooltip : text
    Accessible.checkStateMixed: checkState === Qt.PartiallyChecked
    Accessible.onPressAction: click()
    Accessible.onToggleAction: click()

    indicator: Rectangle {
        id: box

        // The control's state without `checked`, for which there are colour sets of their own.
        readonly property bool pressed: control.pressed
        readonly property bool hovered: control.hovered

        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: control.topPadding + Math.round((control.availableHeight - height) / 2)
        implicitWidth: control.checkboxSize
        implicitHeight: control.checkboxSize
        radius: control.checkboxRadius
        color: ThemeUtils.getColor(box, control.indicatorColorSet)
        border.width: 1
        border.color: ThemeUtils.getColor(box, control.borderColorSet)

        Loader {
            anchors.centerIn: parent
            active: !control.isEmpty
            sourceComponent: WSvgIcon {
                width: control.checkboxSize - 4
                height: control.checkboxSize - 4
                svgName: control.checkIconName
                svgColor: ThemeUtils.getColor(box, control.checkIconColorSet)
            }
        }
    }
    contentItem: Text {
        leftPadding: control.mirrored ? 0 : control.checkboxSize + control.spacing
        rightPadding: control.mirrored ? control.checkboxSize + control.spacing : 0
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: ThemeUtils.getColor(control.indicator, control.textColorSet)
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }

    FocusRing {
        around: control.indicator
        radius: control.checkboxRadius
        colorSetName: control.focusColorSetName
    }}
