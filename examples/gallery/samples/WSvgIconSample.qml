import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: icon

    WSvgIcon {
        id: icon
        svgName: "settings-bold"
    }
    WSvgIcon {
        width: 16
        height: 16
        svgName: "settings-bold"
    }
    WSvgIcon {
        width: 20
        height: 20
        svgName: "bell-filled"
        svgColorSetName: "label-warning-text"
    }
    WSvgIcon {
        svgName: "heart-filled"
        svgColorSetName: "label-error-text"
    }
    WSvgIcon {
        svgName: "microphone-muted"
        svgColor: svgColorSet.disabled
    }
    WSvgIcon {
        width: 48
        height: 48
        svgName: "whiteboard"
        svgColorSetName: "hyperlink-accent-text"
    }
}
