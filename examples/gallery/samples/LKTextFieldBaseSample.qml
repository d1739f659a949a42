import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: field

    LKTextFieldBase {
        id: field
        text: "Planning room"
    }
    LKTextFieldBase {
        placeholderText: "Meeting number"
    }
    LKTextFieldBase {
        text: "Password"
        echoMode: TextInput.Password
    }
    LKTextFieldBase {
        text: "Wrong"
        showErrorState: true
    }
    LKTextFieldBase {
        text: "Read-only"
        readOnly: true
    }
    LKTextFieldBase {
        text: "Disabled"
        enabled: false
    }
}
