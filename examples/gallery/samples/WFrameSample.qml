import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: frame

    WFrame {
        id: frame
        width: 120
        height: 64
        radius: 8
        backgroundColorSetName: "panel-secondary-background"
        borderColorSetName: "separator-primary"
    }
    WFrame {
        width: 120
        height: 64
        borderWidth: 2
        borderColorSetName: "global-focus-outline"
    }
    WFrame {
        width: 120
        height: 64
        radius: 4
        enabled: false
        backgroundColorSetName: "textinput-background"
        borderColorSetName: "textinput-border"
    }
}
