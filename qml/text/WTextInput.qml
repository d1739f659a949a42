pragma ComponentBehavior: Bound

// A line of text to edit, without a frame.
//
//     WTextInput {
//         width: 160
//         placeholderText: "Your name"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

TextInput {
    id: root

    // Shown while there is no text.
    property string placeholderText: ""
    // From where the line begins to the placeholder, pixels.
    property real placeholderLeftPadding: 0
    property var themeType: App.themeMode
    property string textColorSetName: "textinput-text"
    // What is behind selected text.
    property color textHighlight: themeType === undefined ? "transparent"
                                                          : App.getColorSet("button-primary-background").normal
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property string placeholderTextColorSetName: "textinput-placeholder-text"
    property var placeholderTextColorSet: themeType === undefined ? null : App.getColorSet(placeholderTextColorSetName)
    property string focusColorSetName: "global-focus-outline"

    function stateColor(colorSet: var): color {
        return colorSet?.isValid ? ThemeUtils.getTextFieldColor(root, colorSet) : "transparent";
    }

    clip: true
    padding: 4
    color: stateColor(textColorSet)
    selectionColor: textHighlight
    selectedTextColor: themeType === undefined ? "transparent" : App.getColorSet("button-primary-text").normal
    font: FontConstants.bodySecondary
    horizontalAlignment: TextInput.AlignLeft
    activeFocusOnTab: true

    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText
    // The name of a password: a screen reader is told none of that.
    Accessible.description: echoMode === TextInput.Normal ? "" : placeholderText
    Accessible.readOnly: readOnly
    Accessible.passwordEdit: echoMode !== TextInput.Normal

    Loader {
        anchors.fill: parent
        anchors.margins: root.padding
        anchors.leftMargin: root.leftPadding + root.placeholderLeftPadding
        active: root.placeholderText !== "" && root.length === 0 && root.preeditText === ""
        sourceComponent: Text {
            text: root.placeholderText
            textFormat: Text.PlainText
            font: root.font
            color: root.stateColor(root.placeholderTextColorSet)
            elide: Text.ElideRight
            horizontalAlignment: root.horizontalAlignment
            verticalAlignment: root.verticalAlignment
        }
    }
    FocusRing {
        radius: 4
        offset: -2
        colorSetName: root.focusColorSetName
    }
}
