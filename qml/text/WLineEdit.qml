// A text area of one line: Enter and Return accept, Tab goes on, line breaks in what is pasted become spaces.
//
//     WLineEdit {
//         placeholderText: "Title"
//         onAccepted: meeting.rename(text)
//     }
import QtQuick
import LumakitQml 1.0

WTextArea {
    id: control

    readonly property var lineBreaks: /\r\n?|[\n\u2028\u2029]/g

    // By Enter or Return.
    signal accepted

    function paste(): void {
        remove(selectionStart, selectionEnd);
        insert(cursorPosition, clipboardText().replace(lineBreaks, " "));
    }

    function clipboardText(): string {
        return Utils.pasteFromClipboard(Utils.RichText, Utils.Clipboard);
    }

    minimumHeight: 32
    padding: 6
    wrapMode: TextEdit.NoWrap
    verticalAlignment: TextEdit.AlignVCenter
    tabChangesFocus: true

    onTextChanged: {
        if (lineCount > 1)
            text = text.replace(lineBreaks, " ");
    }

    Keys.onReturnPressed: accepted()
    Keys.onEnterPressed: accepted()
    Keys.onPressed: event => {
        // What has no line breaks is pasted as usual: it is undone by itself.
        if (event.matches(StandardKey.Paste) && !readOnly && clipboardText().search(lineBreaks) >= 0) {
            paste();
            event.accepted = true;
        }
    }

    Accessible.multiLine: false
}
