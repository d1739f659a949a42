import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: field

    WTextField {
        id: field
        text: "Planning room"
    }
    WTextField {
        placeholderText: "Meeting number"
    }
    WTextField {
        text: "Password"
        echoMode: TextInput.Password
    }
    WTextField {
        text: "Wrong"
        showErrorState: true
    }
    WTextField {
        text: "Read-only"
        readOnly: true
    }
    WTextField {
        text: "Disabled"
        enabled: false
    }
    WTextField {
        text: "Selected"
        persistentSelection: true
        Component.onCompleted: selectAll()
    }
    WTextField {
        text: "Benachrichtigungseinstellungen für Besprechungen"
    }
    WTextField {
        placeholderText: "Besprechungsnummer oder Name des Besprechungsraums"
    }
    WTextField {
        width: 160
        placeholderText: "Besprechungsnummer oder Name"
    }
}
