import "qrc:/Qml"

GallerySample {
    subject: field

    LKTextField {
        id: field
        text: "Planning room"
    }
    LKTextField {
        placeholderText: "Find people"
        leftIcon: "search"
    }
    LKTextField {
        text: "Password"
        leftIcon: "lock"
        isPasswordInput: true
    }
    LKTextField {
        text: "Password"
        isPasswordInput: true
        isPasswordVisible: true
    }
    LKTextField {
        text: "Wrong"
        leftIcon: "mail"
        showErrorState: true
    }
    LKTextField {
        text: "Read-only"
        readOnly: true
    }
    LKTextField {
        text: "Disabled"
        leftIcon: "mail"
        enabled: false
    }
    LKTextField {
        placeholderText: "Besprechungsnummer oder Name des Besprechungsraums"
        leftIcon: "search"
    }
    LKTextField {
        width: 160
        text: "A text that is longer than its field"
        leftIcon: "search"
    }
}
