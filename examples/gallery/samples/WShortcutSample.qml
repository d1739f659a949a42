import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    property int count: 0

    subject: label

    WShortcut {
        id: shortcut
        sequence: "Ctrl+Shift+K"
        onActivated: ++sample.count
    }
    WText {
        id: label
        text: shortcut.nativeText + " counts: " + sample.count
    }
}
