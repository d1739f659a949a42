pragma ComponentBehavior: Bound

// A field for one line of text, in a frame. A password is written with `echoMode: TextInput.Password`.
//
//     WTextField {
//         placeholderText: "Meeting number"
//         showErrorState: text !== "" && !acceptableInput
//         onAccepted: meeting.join(text)
//     }
import QtQuick
import LumakitQml 1.0
import LumakitQml.Private 1.0

// The template has `radius`, `borderWidth`, `focusColorSetName` and `showErrorState`.
WTextFieldTemplate {
    id: control

    // The control whose state picks the colours; this field itself if null.
    property alias controlsTarget: control.textColors.target
    property alias themeType: control.textColors.themeType
    property alias textColorSetName: control.textColors.colorSetName
    property alias borderColorSetName: control.borderColors.colorSetName
    property alias backgroundColorSetName: control.backgroundColors.colorSetName
    property alias placeHolderTextColorSetName: control.placeholderColors.colorSetName
    property alias textColorSet: control.textColors.colorSet
    property alias borderColorSet: control.borderColors.colorSet
    property alias backgroundColorSet: control.backgroundColors.colorSet
    property alias placeHolderTextColorSet: control.placeholderColors.colorSet

    textColors.colorSetName: "textinput-text"
    borderColors.colorSetName: "textinput-border"
    backgroundColors.colorSetName: "textinput-background"
    placeholderColors.colorSetName: "textinput-placeholder-text"
    implicitWidth: Math.max(200, Math.ceil(placeholderWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(32, Math.ceil(contentHeight) + topPadding + bottomPadding)
    padding: 4
    leftPadding: 8
    rightPadding: 8
    placeholderTextColor: placeholderColors.color
    font: FontConstants.bodySecondary
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter

    background: Face {
    }
    placeholder: Component {
        Text {
            x: control.leftPadding
            y: control.topPadding
            width: control.width - control.leftPadding - control.rightPadding
            height: control.height - control.topPadding - control.bottomPadding
            visible: control.length === 0 && control.preeditText === ""
            text: control.placeholderText
            textFormat: Text.PlainText
            font: control.font
            color: control.placeholderTextColor
            elide: Text.ElideRight
            horizontalAlignment: control.horizontalAlignment
            verticalAlignment: control.verticalAlignment
        }
    }
}
