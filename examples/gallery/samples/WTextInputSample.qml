import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: input

    WTextInput {
        id: input
        width: 160
        text: "To edit"
        placeholderText: "Title"
    }
    WTextInput {
        width: 160
        placeholderText: "Your name"
    }
    WTextInput {
        width: 160
        placeholderText: "Set in by 8 pixels"
        placeholderLeftPadding: 8
    }
    WTextInput {
        width: 160
        text: "Password"
        echoMode: TextInput.Password
        placeholderText: "Password"
    }
    WTextInput {
        width: 160
        text: "Benachrichtigungseinstellungen"
        placeholderText: "Page"
    }
    WTextInput {
        width: 160
        text: "Disabled"
        enabled: false
        placeholderText: "Disabled"
    }
}
