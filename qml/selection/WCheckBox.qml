// A check box with a text beside it; the third state has a line in place of the tick.
//
//     WCheckBox {
//         text: "Remember me"
//         onToggled: settings.remember = checked
//     }
import QtQuick
import LumakitQml 1.0
import LumakitQml.Private 1.0

// The template has `checkboxSize`, `checkboxRadius`, `checkIconName`, `focusColorSetName`, `tooltip` and `isEmpty`.
WCheckBoxTemplate {
    id: control

    property alias indicatorColorSetName: control.indicatorColors.colorSetName
    property alias textColorSetName: control.textColors.colorSetName
    property alias themeType: control.indicatorColors.themeType
    property alias borderColorSetName: control.borderColors.colorSetName
    property alias checkIconColorSetName: control.checkIconColors.colorSetName
    property alias indicatorColorSet: control.indicatorColors.colorSet
    property alias textColorSet: control.textColors.colorSet
    property alias borderColorSet: control.borderColors.colorSet
    property alias checkIconColorSet: control.checkIconColors.colorSet

    indicatorColors.colorSetName: "checkbox-unchecked-background"
    textColors.colorSetName: "checkbox-unchecked-text"
    borderColors.colorSetName: "checkbox-unchecked-border"
    checkIconColors.colorSetName: "checkbox-checked-icon"
    implicitWidth: (text === "" ? checkboxSize : Math.ceil(implicitContentWidth)) + leftPadding + rightPadding
    implicitHeight: Math.max(checkboxSize, Math.ceil(implicitContentHeight)) + topPadding + bottomPadding
    verticalPadding: 2
    spacing: 8
    font: FontConstants.bodySecondary

    contentItem: Text {
        leftPadding: control.mirrored ? 0 : control.checkboxSize + control.spacing
        rightPadding: control.mirrored ? control.checkboxSize + control.spacing : 0
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: control.textColors.color
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
}
