import "qrc:/Qml"

GallerySample {
    subject: field

    LKTextInputField {
        id: field
        titleText: "Meeting number"
        infoTest: "Nine digits"
        text: "255 177 604"
    }
    LKTextInputField {
        titleText: "Meeting number"
        infoTest: "There is no such meeting"
        text: "1"
        showErrorState: true
        accessibleName: "Wrong meeting number"
    }
    LKTextInputField {
        titleText: "People"
        placeholderText: "Name or mail"
        searchIconVisible: true
    }
    LKTextInputField {
        titleText: "Password"
        text: "Password"
        isPasswordInput: true
    }
    LKTextInputField {
        titleText: "Disabled"
        infoTest: "Cannot be changed"
        text: "Disabled"
        enabled: false
    }
    LKTextInputField {
        placeholderText: "Neither title nor information"
    }
    LKTextInputField {
        width: 200
        titleText: "Benachrichtigungseinstellungen für Besprechungen"
        infoTest: "An information that needs more than one line in this place"
    }
}
