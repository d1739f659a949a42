import QtQuick
import "qrc:/Qml"

GallerySample {
    subject: box

    LKCheckBox {
        id: box
        text: "Unchecked"
    }
    LKCheckBox {
        text: "Checked"
        checked: true
    }
    LKCheckBox {
        text: "Partially"
        tristate: true
        checkState: Qt.PartiallyChecked
    }
    LKCheckBox {
        text: "Disabled"
        enabled: false
    }
    LKCheckBox {
        text: "Disabled and checked"
        checked: true
        enabled: false
    }
    LKCheckBox {
        accessibleText: "No text"
    }
    LKCheckBox {
        width: 160
        text: "A text that needs more than one line"
        checked: true
    }
    LKCheckBox {
        width: 160
        text: "A text that is elided in its only line"
        autoWrapMode: Text.NoWrap
    }
}
