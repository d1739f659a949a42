import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: button

    WButton {
        id: button
        text: "Secondary"
    }
    WButton {
        text: "Primary"
        backgroundColorSetName: "button-primary-background"
        borderColorSetName: ""
        textColorSetName: "button-primary-text"
    }
    WButton {
        text: "Round ends"
        isRectangle: false
    }
    WButton {
        text: "Checked"
        checkable: true
        checked: true
    }
    WButton {
        text: "Disabled"
        enabled: false
    }
    WButton {
        width: 96
        text: "Too long for its width"
    }
}
