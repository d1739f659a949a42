import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    subject: opener
    height: 320

    WButton {
        id: opener
        text: "Whiteboard"
        onTriggered: coachmark.open()

        WCoachmark {
            id: coachmark
            arrowAnchor: WBalloon.Top
            titleText: "Draw together"
            bodyText: "Everybody in the meeting sees and edits the whiteboard. Pick a colour and start."
            maximumWidth: 260
            visible: sample.opensPopups
        }
    }
    Item {
        width: 200
        height: 1
    }
    WButton {
        text: "Share"

        WCoachmark {
            arrowAnchor: WBalloon.Top
            titleText: "Title alone"
            visible: sample.opensPopups
        }
    }
}
