pragma ComponentBehavior: Bound

import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: first

    LKRoundButton {
        id: first
        buttonIcon: "microphone-bold"
        Accessible.name: "Mute"
    }
    LKRoundButton {
        buttonIcon: "microphone-bold"
        enabled: false
        Accessible.name: "Disabled"
    }
    Repeater {
        model: 12

        LKRoundButton {
            required property int index

            buttonIcon: "phone-bold"
            buttonStyle: index + 1
            Accessible.name: "Style " + (index + 1)
        }
    }
    Repeater {
        model: 7

        LKRoundButton {
            required property int index

            buttonIcon: "star-bold"
            buttonSize: index + 1
            Accessible.name: "Size " + (index + 1)
        }
    }
}
