// A small window: a sentence and two buttons.
import LumakitQml 1.0

WRectangle {
    width: 320
    height: 160
    backgroundColorSetName: "panel-primary-background"

    WLabel {
        x: 16
        y: 16
        text: "Leave the meeting?"
    }
    LKPillButton {
        x: 16
        y: 112
        text: "Leave"
    }
    LKPillButton {
        x: 160
        y: 112
        text: "Stay"
    }
}
