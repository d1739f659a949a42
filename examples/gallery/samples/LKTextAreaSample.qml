import "qrc:/Qml"

GallerySample {
    subject: area

    LKTextArea {
        id: area
        text: "The agenda:\n1. Numbers\n2. Plans"
        placeholderText: "Agenda"
    }
    LKTextArea {
        placeholderText: "Description"
        maxCharacters: 500
    }
    LKTextArea {
        text: "Full"
        maxCharacters: 4
        placeholderText: "Title"
    }
    LKTextArea {
        text: "Disabled"
        maxCharacters: 20
        enabled: false
        placeholderText: "Disabled"
    }
    LKTextArea {
        width: 240
        height: 80
        text: "A long text scrolls inside where the height is limited: with the cursor, by the wheel and by the page, "
              + "and whatever of it is out of sight is cut at the frame."
        placeholderText: "Notes"
    }
}
