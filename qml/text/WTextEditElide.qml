// A read-only text of one line that is shortened by an ellipsis where it is wider than its maximum width. It can be
// selected; what is copied is the original, and a tooltip shows it.
//
//     WTextEditElide {
//         originalText: "sip:planning-room@example.org"
//         elideMode: Text.ElideMiddle
//         maximumWidth: 160
//     }
import QtQuick
import LumakitQml.Private 1.0

WTextEdit {
    id: root

    // Where the ellipsis goes: Text.ElideLeft, ElideMiddle, ElideRight or, for none, ElideNone.
    property int elideMode: Text.ElideRight
    // Pixels; negative for no limit.
    property real maximumWidth: -1
    // The text in full; `text` is what is shown of it.
    property string originalText: ""
    readonly property bool elided: text !== metrics.text

    // Copies what the selection stands for in the original.
    function copy(): void {
        copySelectionOf(originalText);
    }

    text: metrics.elidedText
    readOnly: true
    wrapMode: TextEdit.NoWrap

    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.Copy);
        if (event.accepted)
            copy();
    }

    Accessible.name: originalText
    Accessible.multiLine: false

    TextMetrics {
        id: metrics
        font: root.font
        text: root.originalText.replace(/\s/g, " ")
        elide: root.maximumWidth < 0 ? Qt.ElideNone : root.elideMode
        elideWidth: root.maximumWidth
    }
    ToolTipTrigger {
        text: root.elided ? root.originalText : ""
    }
}
