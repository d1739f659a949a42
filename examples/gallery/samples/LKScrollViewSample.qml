import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: view

    LKScrollView {
        id: view
        width: 200
        height: 120
        contentWidth: availableWidth

        WText {
            width: view.availableWidth
            text: "A text that is longer than its view wraps beside the scroll bar, and the rest of it is reached by the "
                  + "wheel, by the bar and by the keyboard. Nothing of it is lost."
            wrapMode: Text.Wrap
        }
        Accessible.name: "Text"
    }
    LKScrollView {
        width: 200
        height: 120
        arrowVisible: true

        WFrame {
            implicitWidth: 320
            implicitHeight: 240
            borderColorSetName: "separator-primary"
            backgroundColorSetName: "panel-secondary-background"
        }
        Accessible.name: "Picture"
    }
    LKScrollView {
        WText {
            text: "Fits"
        }
    }
}
