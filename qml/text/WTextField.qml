// A field for one line of text, in a frame. A password is written with `echoMode: TextInput.Password`.
//
//     WTextField {
//         placeholderText: "Meeting number"
//         showErrorState: text !== "" && !acceptableInput
//         onAccepted: meeting.join(text)
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.TextField {
    id: control

    // The control whose state picks the colours; this field itself if null.
    property var controlsTarget: null
    property var themeType: App.themeMode
    property string textColorSetName: showErrorState ? "textinput-error-text" : "textinput-text"
    property string borderColorSetName: showErrorState ? "textinput-error-border" : "textinput-border"
    property string backgroundColorSetName: showErrorState ? "textinput-error-background" : "textinput-background"
    property string placeHolderTextColorSetName: "textinput-placeholder-text"
    // The frame's corners, pixels.
    property real radius: 4
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var placeHolderTextColorSet: themeType === undefined ? null : App.getColorSet(placeHolderTextColorSetName)
    property int borderWidth: 1
    property string focusColorSetName: "global-focus-outline"
    // What is written is wrong: frame and text say so by their colours.
    property bool showErrorState: false

    function stateColor(colorSet: var): color {
        return colorSet?.isValid ? ThemeUtils.getTextFieldColor(controlsTarget ?? control, colorSet) : "transparent";
    }

    implicitWidth: Math.max(200, Math.ceil(placeholder.implicitWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(32, Math.ceil(contentHeight) + topPadding + bottomPadding)
    padding: 4
    leftPadding: 8
    rightPadding: 8
    color: stateColor(textColorSet)
    placeholderTextColor: stateColor(placeHolderTextColorSet)
    selectionColor: themeType === undefined ? "transparent" : App.getColorSet("button-primary-background").normal
    selectedTextColor: themeType === undefined ? "transparent" : App.getColorSet("button-primary-text").normal
    font: FontConstants.bodySecondary
    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    hoverEnabled: true

    Accessible.name: placeholderText
    Accessible.readOnly: readOnly

    background: Rectangle {
        radius: control.radius
        color: control.stateColor(control.backgroundColorSet)
        border.width: control.borderColorSetName === "" ? 0 : control.borderWidth
        border.color: control.stateColor(control.borderColorSet)
    }

    Text {
        id: placeholder
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
    FocusRing {
        radius: control.radius
        colorSetName: control.focusColorSetName
    }
}
