import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: label

    WLabel {
        id: label
        text: "Camera"
    }
    WLabel {
        text: "Secondary"
        textColorSetName: "label-secondary-text"
    }
    WLabel {
        text: "Warning"
        textColorSetName: "label-warning-text"
    }
    WLabel {
        text: "Disabled"
        enabled: false
    }
    WLabel {
        text: "With a tooltip"
        toolTipText: "What the camera sees"
    }
    WLabel {
        width: 160
        elide: Text.ElideRight
        text: "Hintergrundgeräusche unterdrücken"
    }
}
