import QtQuick
import Corvane 1.0

GallerySample {
    subject: resource

    LKSvgResource {
        id: resource
        width: 24
        height: 24
        svgName: "settings"
    }
    LKSvgResource {
        width: 48
        height: 48
        svgName: "heart-filled"
        svgColor: App.getColorSet(App.themeMode === undefined ? "" : "label-error-text").normal
    }
    LKSvgResource {
        width: 24
        height: 24
        svgName: "settings"
        isEnabled: false
    }
}
