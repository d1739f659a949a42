import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: pane

    WPane {
        id: pane
        radius: 8
        borderColorSetName: "separator-primary"

        WText {
            text: "As large as what is in it"
        }
    }
    WPane {
        backgroundColorSetName: "panel-secondary-background"

        WText {
            text: "Square and without a border"
        }
    }
    WPane {
        width: 160
        radius: 8
        backgroundColorSetName: "modal-primary-background"
        borderColorSetName: "modal-primary-border"
        enabled: false

        WText {
            width: parent.width
            text: "Disabled, of a given width"
            wrapMode: Text.Wrap
        }
    }
}
