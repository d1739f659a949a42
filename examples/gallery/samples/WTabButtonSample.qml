import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: tab

    WTabButton {
        id: tab
        text: "Current"
        checked: true
    }
    WTabButton {
        text: "Another"
    }
    WTabButton {
        text: "Disabled"
        enabled: false
    }
    WTabButton {
        text: "Disabled and current"
        checked: true
        enabled: false
    }
    WTabButton {
        width: 120
        text: "Benachrichtigungen"
    }
}
