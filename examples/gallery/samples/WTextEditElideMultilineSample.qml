import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: edit

    WTextEditElideMultiline {
        id: edit
        maximumWidth: 240
        maximumLineCount: 3
        originalText: "A text of more lines than there is room for ends in an ellipsis after a word, and a tooltip shows "
                      + "all of it to those who rest the cursor on it."
    }
    WTextEditElideMultiline {
        maximumWidth: 240
        fixedHeight: 40
        originalText: "As many lines as fit into a fixed height: einhundertachtundvierzig Besprechungsteilnehmende "
                      + "stehen im Warteraum."
    }
    WTextEditElideMultiline {
        maximumWidth: 240
        maximumLineCount: 3
        originalText: "It fits."
    }
    WTextEditElideMultiline {
        maximumWidth: 240
        maximumLineCount: 1
        originalText: "Too long for the one line that it may have."
    }
}
