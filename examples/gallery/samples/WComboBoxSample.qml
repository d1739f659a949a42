import LumakitQml 1.0

GallerySample {
    id: sample

    subject: box
    height: 264

    WComboBox {
        id: box
        model: ["Front camera", "Back camera", "No camera"]
    }
    WComboBox {
        model: ["Disabled"]
        enabled: false
    }
    WComboBox {
        model: ["None chosen"]
        currentIndex: -1
        placeholderText: "Choose a camera"
    }
    WComboBox {
        editable: true
        model: ["Editable"]
    }
    WComboBox {
        model: ["A camera whose name is far too long for the control"]
        width: 160
    }
    WComboBox {
        model: ["Front camera", "Back camera", "No camera"]
        currentIndex: 1
        popup.visible: sample.opensPopups
    }
}
