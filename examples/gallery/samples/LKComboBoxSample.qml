import "qrc:/Qml"

GallerySample {
    subject: box
    height: 264

    LKComboBox {
        id: box
        model: ["Front camera", "Back camera", "No camera"]
        accessibleText: "Camera"
    }
    LKComboBox {
        model: ["Disabled"]
        enabled: false
        accessibleText: "Disabled"
    }
    LKComboBox {
        model: ["None chosen"]
        currentIndex: -1
        placeholderText: "Choose a camera"
        accessibleText: "Camera that is chosen"
    }
    LKComboBox {
        editable: true
        model: ["Editable"]
        accessibleText: "Camera by name"
    }
    LKComboBox {
        model: ["A camera whose name is far too long for the control"]
        width: 160
        accessibleText: "Second camera"
    }
    LKComboBox {
        model: ["One", "Two", "Three", "Four", "Five", "Six", "Seven"]
        currentIndex: 1
        popupMaxHeight: 120
        popup.visible: true
        accessibleText: "Number"
    }
}
