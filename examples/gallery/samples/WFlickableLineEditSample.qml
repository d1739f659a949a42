import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: flickable

    WFlickableLineEdit {
        id: flickable
        lineEdit.text: "One line"
        lineEdit.placeholderText: "Subject"
    }
    WFlickableLineEdit {
        lineEdit.placeholderText: "Title"
    }
    WFlickableLineEdit {
        lineEdit.text: "Benachrichtigungseinstellungen für Besprechungen"
        lineEdit.placeholderText: "Page"
    }
    WFlickableLineEdit {
        lineEdit.text: "Disabled"
        enabled: false
        lineEdit.placeholderText: "Disabled"
    }
}
