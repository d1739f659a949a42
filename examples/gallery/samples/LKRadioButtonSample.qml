import QtQuick
import "qrc:/Qml"

GallerySample {
    subject: button

    LKRadioButton {
        id: button
        text: "Speaker"
        checked: true
    }
    LKRadioButton {
        text: "Headset"
    }
    LKRadioButton {
        text: "Disabled"
        enabled: false
    }
    LKRadioButton {
        text: "Disabled and checked"
        autoExclusive: false
        checked: true
        enabled: false
    }
    LKRadioButton {
        accessibleText: "No text"
    }
    LKRadioButton {
        textWidth: 120
        text: "A text that needs more than one line"
    }
    LKRadioButton {
        textWidth: 120
        text: "A text that is elided in its only line"
        autoWrapMode: Text.NoWrap
    }
    LKRadioButton {
        text: "Another font"
        textFontName: "highlightPrimary"
    }
}
