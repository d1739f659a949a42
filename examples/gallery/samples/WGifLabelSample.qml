import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    // A disc that pulses.
    readonly property string picture: "data:image/gif;base64,R0lGODlhFAAUAPEAAAAAANhISNhISAAAACH/C05FVFNDQVBFMi4wAwEA"
        + "AAAh+QQJKAAAACwAAAAAFAAUAAACMoSPqcvtb0SYAgI5c6hN+8lgX8Yl46eIJ2WuXutmcBwk6loedJ3GORJz3FgQ0c+CTBYAACH5BAkoAAAA"
        + "LAAAAAAUABQAAAImhI+py+0PozxB2CCttnB7V3kaxohfaWpNqjKhSaJmJ0pvPOX6vhcAOw=="

    subject: label

    WGifLabel {
        id: label
        text: "Recording"
        gifSource: sample.picture
        backgroundColorSetName: "panel-tertiary-background"
    }
    WGifLabel {
        text: "Without a picture"
        borderColorSetName: "separator-primary"
    }
    WGifLabel {
        gifSource: sample.picture
        gifWidth: 32
        gifHeight: 32
        borderColorSetName: "separator-primary"
    }
    WGifLabel {
        width: 160
        text: "Aufzeichnung der Besprechung läuft"
        gifSource: sample.picture
        borderColorSetName: "separator-primary"
    }
    WGifLabel {
        text: "Disabled"
        gifSource: sample.picture
        borderColorSetName: "separator-primary"
        enabled: false
    }
}
