import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: edit

    WTextEdit {
        id: edit
        text: "To edit and to select"
        Accessible.name: "Text"
    }
    WTextEdit {
        readOnly: true
        text: "Read-only: meeting number 2551 776 0411"
    }
    WTextEdit {
        text: "Disabled"
        enabled: false
        Accessible.name: "Disabled"
    }
    WTextEdit {
        text: "Selected"
        Component.onCompleted: selectAll()
        Accessible.name: "Selected"
    }
    WTextEdit {
        width: 240
        text: "Lines are wrapped where the width is limited.\nBenachrichtigungseinstellungen"
        Accessible.name: "Lines"
    }
}
