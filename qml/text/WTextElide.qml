// A text of one line that ends in an ellipsis where its width is too small; a tooltip then shows all of it.
//
//     WTextElide {
//         width: 160
//         text: "A name that may be too long"
//     }
import QtQuick

WText {
    elide: Text.ElideRight
    maximumLineCount: 1
    toolTipText: truncated ? text : ""
}
