import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: edit

    WLineEdit {
        id: edit
        text: "One line"
    }
    WLineEdit {
        placeholderText: "Title"
    }
    WLineEdit {
        text: "Disabled"
        enabled: false
    }
    WLineEdit {
        width: 200
        text: "Benachrichtigungseinstellungen für Besprechungen"
        Component.onCompleted: cursorPosition = length
    }
}
