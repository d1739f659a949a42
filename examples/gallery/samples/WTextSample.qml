import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: text

    WText {
        id: text
        text: "Share screen"
    }
    WText {
        text: "Secondary"
        textColorSetName: "label-secondary-text"
    }
    WText {
        text: "Error"
        textColorSetName: "label-error-text"
    }
    WText {
        text: "Disabled"
        enabled: false
    }
    WText {
        width: 240
        wrapMode: Text.Wrap
        text: "Bildschirmfreigabe ist für diese Besprechung ausgeschaltet worden."
    }
    WText {
        text: "<b>Markup</b> as it stands"
    }
}
