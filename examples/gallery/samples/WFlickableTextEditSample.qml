import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: flickable

    WFlickableTextEdit {
        id: flickable
        width: 240
        height: 64
        accessibleText: "Notes"
        textEdit.text: "A text to edit.\nIt is longer than its place,\nso that it scrolls\nand the cursor\nstays in sight."
    }
    WFlickableTextEdit {
        width: 240
        textEdit.text: "Short"
        accessibleText: "Answer"
    }
    WFlickableTextEdit {
        width: 240
        textEdit.text: "Disabled"
        enabled: false
        accessibleText: "Disabled"
    }
}
