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
        Accessible.name: originalText + ", shortened in the middle"
    }
    WTextEditElide {
        maximumWidth: 200
        elideMode: Text.ElideLeft
        originalText: "sip:planning-room-on-the-third-floor@example.org"
        Accessible.name: originalText + ", shortened at the start"
    }
    WTextEditElide {
        maximumWidth: 200
        originalText: "It fits"
    }
}
