import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: label

    WAccessibleLabel {
        id: label
        text: "You are the only one in this meeting."
    }
    WAccessibleLabel {
        text: "Secondary"
        textColorSetName: "label-secondary-text"
    }
    WAccessibleLabel {
        text: "Disabled"
        enabled: false
    }
}
