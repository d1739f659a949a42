import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: area

    WSvgIcon {
        svgName: "lock-bold"

        WSystemToolTip {
            id: area
            anchors.fill: parent
            text: "Encrypted"
        }
    }
    WText {
        text: "Rest the cursor on the lock"
    }
}
