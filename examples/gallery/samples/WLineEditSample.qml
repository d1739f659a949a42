import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: edit

    WLineEdit {
        id: edit
        text: "One line"
        placeholderText: "Subject"
    }
    WLineEdit {
        placeholderText: "Title"
    }
    WLineEdit {
        text: "Disabled"
        enabled: false
        placeholderText: "Disabled"
    }
    WLineEdit {
        width: 200
        text: "Benachrichtigungseinstellungen für Besprechungen"
        Component.onCompleted: cursorPosition = length
        placeholderText: "Page"
    }
}
