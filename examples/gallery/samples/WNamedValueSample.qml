import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: namedValue

    WNamedValue {
        id: namedValue
        name: "Codec"
        value: "H.264"
    }
    WNamedValue {
        name: "Resolution"
        value: "1920 × 1080"
    }
    WNamedValue {
        name: "Connection"
        value: "Lost"
        valueColorSetName: "label-error-text"
    }
    WNamedValue {
        name: "Only a name"
    }
    WNamedValue {
        value: "Only a value"
    }
    WNamedValue {
        maximumWidth: 200
        name: "Verbindung"
        value: "verschlüsselt von Ende zu Ende"
    }
    WNamedValue {
        name: "Disabled"
        value: "0"
        enabled: false
    }
}
