import QtQuick

GallerySample {
    subject: bar

    LKScrollBar {
        id: bar
        size: 0.4
        position: 0.2
        orientation: Qt.Vertical
    }
    LKScrollBar {
        height: 160
        size: 0.4
        position: 0.2
        orientation: Qt.Vertical
        arrowVisible: true
    }
    LKScrollBar {
        size: 0.1
        position: 0.9
        orientation: Qt.Vertical
        enabled: false
        arrowVisible: true
    }
    LKScrollBar {
        width: 240
        size: 0.5
        position: 0.5
        orientation: Qt.Horizontal
        arrowVisible: true
    }
}
