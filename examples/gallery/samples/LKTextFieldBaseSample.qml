import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: field

    LKTextFieldBase {
        id: field
        text: "Planning room"
        placeholderText: "Room"
    }
    LKTextFieldBase {
        placeholderText: "Meeting number"
    }
    LKTextFieldBase {
        text: "Password"
        echoMode: TextInput.Password
        placeholderText: "Password"
    }
    LKTextFieldBase {
        text: "Wrong"
        showErrorState: true
        placeholderText: "Mail"
    }
    LKTextFieldBase {
        text: "Read-only"
        readOnly: true
        placeholderText: "Read-only"
    }
    LKTextFieldBase {
        text: "Disabled"
        enabled: false
        placeholderText: "Disabled"
    }
}
