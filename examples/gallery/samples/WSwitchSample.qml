import LumakitQml 1.0

GallerySample {
    subject: control

    WSwitch {
        id: control
        text: "Off"
    }
    WSwitch {
        text: "On"
        checked: true
    }
    WSwitch {
        text: "Disabled"
        enabled: false
    }
    WSwitch {
        text: "Disabled and on"
        checked: true
        enabled: false
    }
    WSwitch {
        tooltip: "No text"
    }
    WSwitch {
        width: 160
        text: "A text that needs more than one line"
        checked: true
    }
}
