import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: first

    LKToolButton {
        id: first
        iconName: "sliders"
        Accessible.name: "Settings"
    }
    LKToolButton {
        iconName: "text-size"
        checkable: true
        checked: true
        Accessible.name: "Checked"
    }
    LKToolButton {
        iconName: "more-horizontal"
        hoverOverride: true
        Accessible.name: "Hover override"
    }
    LKToolButton {
        iconName: "trash"
        enabled: false
        Accessible.name: "Disabled"
    }
}
