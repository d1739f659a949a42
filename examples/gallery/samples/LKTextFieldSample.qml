import "qrc:/Qml"

GallerySample {
    subject: field

    LKTextField {
        id: field
        text: "Planning room"
        placeholderText: "Room"
    }
    LKTextField {
        placeholderText: "Find people"
        leftIcon: "search"
    }
    LKTextField {
        text: "Password"
        leftIcon: "lock"
        isPasswordInput: true
        placeholderText: "Password"
    }
    LKTextField {
        text: "Password"
        isPasswordInput: true
        isPasswordVisible: true
        placeholderText: "Shown password"
    }
    LKTextField {
        text: "Wrong"
        leftIcon: "mail"
        showErrorState: true
        placeholderText: "Mail"
    }
    LKTextField {
        text: "Read-only"
        readOnly: true
        placeholderText: "Read-only"
    }
    LKTextField {
        text: "Disabled"
        leftIcon: "mail"
        enabled: false
        placeholderText: "Disabled"
    }
    LKTextField {
        placeholderText: "Besprechungsnummer oder Name des Besprechungsraums"
        leftIcon: "search"
    }
    LKTextField {
        width: 160
        text: "A text that is longer than its field"
        leftIcon: "search"
        placeholderText: "Title"
    }
}
