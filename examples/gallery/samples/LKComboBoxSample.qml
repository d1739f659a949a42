import "qrc:/Qml"

GallerySample {
    subject: box
    height: 264

    LKComboBox {
        id: box
        model: ["Front camera", "Back camera", "No camera"]
    }
    LKComboBox {
        model: ["Disabled"]
        enabled: false
    }
    LKComboBox {
        model: ["None chosen"]
        currentIndex: -1
        placeholderText: "Choose a camera"
    }
    LKComboBox {
        editable: true
        model: ["Editable"]
    }
    LKComboBox {
        model: ["A camera whose name is far too long for the control"]
        width: 160
    }
    LKComboBox {
        model: ["One", "Two", "Three", "Four", "Five", "Six", "Seven"]
        currentIndex: 1
        popupMaxHeight: 120
        popup.visible: true
    }
}
