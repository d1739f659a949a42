// A text of many lines without a frame, to select, copy and, unless it is read-only, edit. It is plain: markup in it
// is shown as it stands.
//
//     WTextEdit {
//         width: 240
//         readOnly: true
//         text: "Meeting number: 2551 776 0411"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

TextEdit {
    id: root

    property var themeType: App.themeMode
    property string textColorSetName: "textinput-text"
    readonly property bool empty: length === 0
    // What is behind selected text.
    property color textHighlightNormal: themeType === undefined ? "transparent"
                                                                : App.getColorSet("button-primary-background").normal
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property string focusColorSetName: "global-focus-outline"
    // It has the focus, and that by the keyboard.
    readonly property alias visualFocus: ring.active

    // Copies what the selection stands for in a text that the present one shortens by an ellipsis.
    function copySelectionOf(original: string): void {
        const shown = text;
        const same = (a, b) => a === b || (a === " " && /\s/.test(b));
        let head = 0;
        while (head < shown.length && same(shown[head], original[head]))
            ++head;
        let tail = 0;
        while (tail < shown.length - head - 1
               && same(shown[shown.length - 1 - tail], original[original.length - 1 - tail]))
            ++tail;
        const position = p => p <= head ? p : original.length - Math.min(tail, shown.length - p);
        Utils.copyRichText(original.slice(position(selectionStart), position(selectionEnd)));
    }

    color: textColorSet?.isValid ? ThemeUtils.getTextFieldColor(root, textColorSet) : "transparent"
    selectionColor: textHighlightNormal
    selectedTextColor: themeType === undefined ? "transparent" : App.getColorSet("button-primary-text").normal
    font: FontConstants.bodySecondary
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    horizontalAlignment: TextEdit.AlignLeft
    selectByKeyboard: true
    activeFocusOnTab: true

    Accessible.role: readOnly ? Accessible.StaticText : Accessible.EditableText
    Accessible.name: readOnly ? text : ""
    Accessible.readOnly: readOnly
    Accessible.multiLine: true

    FocusRing {
        id: ring
        radius: 4
        colorSetName: root.focusColorSetName
    }
}
