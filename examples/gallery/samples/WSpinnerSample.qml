import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    // A disc that pulses.
    readonly property string picture: "data:image/gif;base64,R0lGODlhFAAUAPEAAAAAANhISNhISAAAACH/C05FVFNDQVBFMi4wAwEA"
        + "AAAh+QQJKAAAACwAAAAAFAAUAAACMoSPqcvtb0SYAgI5c6hN+8lgX8Yl46eIJ2WuXutmcBwk6loedJ3GORJz3FgQ0c+CTBYAACH5BAkoAAAA"
        + "LAAAAAAUABQAAAImhI+py+0PozxB2CCttnB7V3kaxohfaWpNqjKhSaJmJ0pvPOX6vhcAOw=="

    subject: spinner

    WSpinner {
        id: spinner
    }
    WSpinner {
        width: 40
        height: 40
    }
    WSpinner {
        source: sample.picture
    }
}
