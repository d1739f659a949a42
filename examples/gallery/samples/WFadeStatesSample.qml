import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: shown

    WButton {
        id: button
        text: "Faded out"
        checkable: true
    }
    WFadeStates {
        id: shown
        width: 160
        height: 64
        state: button.checked ? fadeOutState : ""

        WRectangle {
            anchors.fill: parent
            radius: 8
            backgroundColorSetName: "button-primary-background"
        }
    }
}
