import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: label

    LKLabelBase {
        id: label
        text: "Microphone"
    }
    LKLabelBase {
        text: "Secondary"
        textColorSetName: "label-secondary-text"
    }
    LKLabelBase {
        text: "Disabled"
        enabled: false
    }
    LKLabelBase {
        width: 120
        text: "Elided, because it is too long"
    }
    LKLabelBase {
        width: 120
        text: "Wrapped, because it is too long"
        wrapMode: Text.Wrap
    }
    LKLabelBase {
        text: "<b>Plain</b>"
    }
}
