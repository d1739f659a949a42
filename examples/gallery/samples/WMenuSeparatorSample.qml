import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: separator

    WMenuSeparator {
        id: separator
        width: 240
    }
    WMenuSeparator {
        width: 240
        leftMargin: 40
        rightMargin: 0
    }
}
