import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: flickable

    WFlickableLineEdit {
        id: flickable
        lineEdit.text: "One line"
    }
    WFlickableLineEdit {
        lineEdit.placeholderText: "Title"
    }
    WFlickableLineEdit {
        lineEdit.text: "Benachrichtigungseinstellungen für Besprechungen"
    }
    WFlickableLineEdit {
        lineEdit.text: "Disabled"
        enabled: false
    }
}
