import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: box

    WCheckBox {
        id: box
        text: "Unchecked"
    }
    WCheckBox {
        text: "Checked"
        checked: true
    }
    WCheckBox {
        text: "Partially"
        tristate: true
        checkState: Qt.PartiallyChecked
    }
    WCheckBox {
        text: "Disabled"
        enabled: false
    }
    WCheckBox {
        text: "Disabled and checked"
        checked: true
        enabled: false
    }
    WCheckBox {
        tooltip: "No text"
    }
    WCheckBox {
        width: 160
        text: "A text that needs more than one line"
        checked: true
    }
}
