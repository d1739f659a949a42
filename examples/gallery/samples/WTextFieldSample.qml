import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: field

    WTextField {
        id: field
        text: "Planning room"
        placeholderText: "Room"
    }
    WTextField {
        placeholderText: "Meeting number"
    }
    WTextField {
        text: "Password"
        echoMode: TextInput.Password
        placeholderText: "Password"
    }
    WTextField {
        text: "Wrong"
        showErrorState: true
        placeholderText: "Mail"
    }
    WTextField {
        text: "Read-only"
        readOnly: true
        placeholderText: "Read-only"
    }
    WTextField {
        text: "Disabled"
        enabled: false
        placeholderText: "Disabled"
    }
    WTextField {
        text: "Selected"
        persistentSelection: true
        Component.onCompleted: selectAll()
        placeholderText: "Selected"
    }
    WTextField {
        text: "Benachrichtigungseinstellungen für Besprechungen"
        placeholderText: "Page"
    }
    WTextField {
        placeholderText: "Besprechungsnummer oder Name des Besprechungsraums"
    }
    WTextField {
        width: 160
        placeholderText: "Besprechungsnummer oder Name"
    }
}
