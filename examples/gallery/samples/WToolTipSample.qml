import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    subject: above
    width: 720
    height: 320
    spacing: 160
    topPadding: 88
    leftPadding: 72

    WButton {
        id: above
        text: "Above"

        WToolTip {
            text: "Arrow below"
            visible: sample.opensPopups || above.hovered
            closePolicy: WToolTip.NoAutoClose
        }
    }
    WButton {
        id: beside
        text: "Beside"

        WToolTip {
            text: "To the right"
            arrowAnchor: WBalloon.Left
            visible: sample.opensPopups || beside.hovered
            closePolicy: WToolTip.NoAutoClose
        }
    }
    WButton {
        id: below
        text: "Below"

        WToolTip {
            text: "<b>A long text</b> wraps at its maximum width and shows markup as it stands"
            arrowAnchor: WBalloon.Top
            maximumWidth: 200
            visible: sample.opensPopups || below.hovered
            closePolicy: WToolTip.NoAutoClose
        }
    }
}
