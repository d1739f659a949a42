import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: row

    WExpandableDelegate {
        id: row
        width: 256
        text: "Ada"
    }
    WExpandableDelegate {
        width: 256
        text: "The current row"
        isCurrentItem: true
    }
    WExpandableDelegate {
        width: 256
        sessionName: "Favourites"
        text: "Row of a session"
    }
    WExpandableDelegate {
        width: 256
        text: "Disabled"
        enabled: false
    }
    WExpandableDelegate {
        width: 256
        delegateHeight: 56
        text: "Ein sehr langer Name, der keinen Platz hat"
    }
}
