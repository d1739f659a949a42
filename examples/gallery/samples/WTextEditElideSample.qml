import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: edit

    WTextEditElide {
        id: edit
        maximumWidth: 200
        originalText: "sip:planning-room-on-the-third-floor@example.org"
    }
    WTextEditElide {
        maximumWidth: 200
        elideMode: Text.ElideMiddle
        originalText: "sip:planning-room-on-the-third-floor@example.org"
    }
    WTextEditElide {
        maximumWidth: 200
        elideMode: Text.ElideLeft
        originalText: "sip:planning-room-on-the-third-floor@example.org"
    }
    WTextEditElide {
        maximumWidth: 200
        originalText: "It fits"
    }
}
