// A read-only text of some lines that ends in an ellipsis, after a word, where it has more lines than it may. It can
// be selected; what is copied is the original, and a tooltip shows it.
//
//     WTextEditElideMultiline {
//         originalText: meeting.description
//         maximumLineCount: 3
//         maximumWidth: 240
//     }
import QtQuick
import LumakitQml.Private 1.0

WTextEdit {
    id: root

    // Text.ElideNone shows the text in full; any other mode puts the ellipsis at the end.
    property int elideMode: Text.ElideRight
    // The height in which the lines have to fit, pixels; 0 for any. One line is always shown.
    property real fixedHeight: 0
    // Whether the text has a cursor while it has the focus.
    property bool showCaretOnActiveFocus: false
    // Less than 1 counts as 1.
    property int maximumLineCount: 2147483647
    // Where lines are wrapped, pixels; negative for the item's width.
    property real maximumWidth: -1
    // The text in full; `text` is what is shown of it.
    property string originalText: ""
    // The height of what is shown, or the fixed one, pixels.
    readonly property real preferredHeight: fixedHeight > 0 ? fixedHeight : Math.ceil(contentHeight)
    // How many lines the text has in full.
    property int wrappedLines: 0
    readonly property bool elided: text !== originalText
    // What the shown text depends on, beside the width.
    readonly property var inputs: [originalText, elideMode, fixedHeight, maximumLineCount, font, maximumWidth]
    property bool ready: false

    // Copies what the selection stands for in the original.
    function copy(): void {
        copySelectionOf(originalText);
    }

    function fits(): bool {
        return lineCount <= Math.max(1, maximumLineCount)
            && (fixedHeight <= 0 || lineCount <= 1 || contentHeight <= fixedHeight);
    }

    function elideText(): void {
        if (!ready)
            return;
        ready = false;
        text = originalText;
        wrappedLines = lineCount;
        if (elideMode !== Text.ElideNone && !fits()) {
            let fitting = 0;
            let tooLong = originalText.length;
            while (tooLong - fitting > 1) {
                const middle = (fitting + tooLong) >> 1;
                text = originalText.slice(0, middle) + "…";
                if (fits())
                    fitting = middle;
                else
                    tooLong = middle;
            }
            const shown = originalText.slice(0, fitting);
            const words = /\s/.test(originalText[fitting]) ? shown : shown.replace(/\S+$/, "");
            text = (words.replace(/\s+$/, "") || shown) + "…";
        }
        ready = true;
    }

    width: maximumWidth < 0 ? implicitWidth : Math.min(maximumWidth, Math.ceil(implicitWidth))
    height: preferredHeight
    readOnly: true
    cursorVisible: showCaretOnActiveFocus && activeFocus

    onInputsChanged: elideText()
    // A width that is not its own: its own follows from the text.
    onWidthChanged: {
        if (maximumWidth < 0 && width !== implicitWidth)
            elideText();
    }
    Component.onCompleted: {
        ready = true;
        elideText();
    }

    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Copy);
        if (event.accepted)
            copy();
    }

    Accessible.name: originalText

    ToolTipTrigger {
        text: root.elided ? root.originalText : ""
    }
}
