import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: area

    WTextArea {
        id: area
        text: "The agenda:\n1. Numbers\n2. Plans"
        placeholderText: "Agenda"
    }
    WTextArea {
        placeholderText: "Description"
    }
    WTextArea {
        text: "Read-only"
        readOnly: true
        placeholderText: "Read-only"
    }
    WTextArea {
        text: "Disabled"
        enabled: false
        placeholderText: "Disabled"
    }
    WTextArea {
        width: 240
        height: 64
        text: "A long text scrolls inside where the height is limited: with the cursor, by the wheel and by the page, "
              + "and whatever of it is out of sight is cut at the frame."
        Component.onCompleted: cursorPosition = length
        placeholderText: "Notes"
    }
}
