import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: text

    WTextElide {
        id: text
        width: 200
        text: "Wöchentliche Besprechung der Produktentwicklung"
    }
    WTextElide {
        width: 200
        text: "It fits"
    }
    WTextElide {
        width: 200
        elide: Text.ElideMiddle
        text: "sip:planning-room-on-the-third-floor@example.org"
    }
    WTextElide {
        width: 200
        text: "Disabled, and far too long for its width"
        enabled: false
    }
}
