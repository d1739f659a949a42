import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: dialog
    width: 720

    WFTEDialog {
        id: dialog
        svgIconName: "whiteboard"
        titleText: "Draw together"
        messageText: "Everybody in the meeting sees and edits the whiteboard."
        leftPillButtonText: "Later"
        rightPillButtonText: "Try it"
        hyperLinkButtonText: "Learn more"
    }
    WFTEDialog {
        titleText: "Only a message, without an illustration"
        messageText: "Its buttons stand below each other where they are too long."
        leftPillButtonText: "Vielleicht zu einem späteren Zeitpunkt"
        rightPillButtonText: "Jetzt gleich ausprobieren"
        arrowAnchor: WBalloon.Left
    }
}
