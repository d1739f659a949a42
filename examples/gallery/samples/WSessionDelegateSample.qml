import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: session

    WSessionDelegate {
        id: session
        width: 256
        sessionName: "Today"
    }
    WSessionDelegate {
        width: 256
        sessionName: "Yesterday"
        expandedStatusList: ({ "Yesterday": false })
    }
    WSessionDelegate {
        width: 256
        sessionName: "Disabled"
        enabled: false
    }
    WSessionDelegate {
        width: 256
        sessionName: "Benachrichtigungen der letzten Wochen"
    }
}
