import QtQuick
import QtQuick.Templates as T
import LumakitQml 1.0

GallerySample {
    subject: bar

    DScrollBar {
        id: bar
        height: 160
        policy: T.ScrollBar.AlwaysOn
        size: 0.4
        position: 0.2
    }
    DScrollBar {
        height: 160
        policy: T.ScrollBar.AlwaysOn
        size: 0.01
        position: 0.5
    }
    DScrollBar {
        height: 160
        policy: T.ScrollBar.AlwaysOn
        size: 0.4
        thickness: 24
        handleThickness: 12
    }
    DScrollBar {
        height: 160
        policy: T.ScrollBar.AlwaysOn
        size: 0.4
        enabled: false
    }
    DScrollBar {
        width: 160
        orientation: Qt.Horizontal
        policy: T.ScrollBar.AlwaysOn
        size: 0.4
        position: 0.6
    }
}
