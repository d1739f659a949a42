import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    subject: box
    height: 264

    WComboBox {
        id: box
        model: ["Front camera", "Back camera", "No camera"]
        Accessible.name: "Camera"
    }
    WComboBox {
        model: ["Disabled"]
        enabled: false
        Accessible.name: "Disabled"
    }
    WComboBox {
        model: ["None chosen"]
        currentIndex: -1
        placeholderText: "Choose a camera"
        Accessible.name: "Camera that is chosen"
    }
    WComboBox {
        editable: true
        model: ["Editable"]
        Accessible.name: "Camera by name"
    }
    WComboBox {
        model: ["A camera whose name is far too long for the control"]
        width: 160
        Accessible.name: "Second camera"
    }
    WComboBox {
        model: ["Front camera", "Back camera", "No camera"]
        currentIndex: 1
        popup.visible: sample.opensPopups
        Accessible.name: "Third camera"
    }
}
