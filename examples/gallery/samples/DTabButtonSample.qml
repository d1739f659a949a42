import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: tab

    DTabButton {
        id: tab
        text: "Current"
        checked: true
    }
    DTabButton {
        text: "Another"
    }
    DTabButton {
        text: "Disabled"
        enabled: false
    }
    DTabButton {
        text: "Disabled and current"
        checked: true
        enabled: false
    }
    DTabButton {
        width: 120
        text: "Benachrichtigungen"
    }
}
