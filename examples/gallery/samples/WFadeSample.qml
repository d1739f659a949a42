import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: button

    WFade {
        id: fade
        target: card
        fadeIn: false
    }
    WButton {
        id: button
        text: fade.fadeIn ? "Fade in" : "Fade out"
        onTriggered: {
            fade.restart();
            fade.finished.connect(turn);
        }

        function turn() {
            fade.finished.disconnect(turn);
            fade.fadeIn = !fade.fadeIn;
        }
    }
    WRectangle {
        id: card
        width: 160
        height: 64
        radius: 8
        backgroundColorSetName: "button-primary-background"
    }
}
