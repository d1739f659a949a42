import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: separator

    Column {
        spacing: 8

        WText {
            text: "Above"
        }
        WSeparator {
            id: separator
            width: 240
        }
        WText {
            text: "Below"
        }
    }
    Row {
        spacing: 8

        WText {
            text: "On one side"
        }
        WSeparator {
            height: 24
            backgroundColorSetName: "separator-secondary"
        }
        WText {
            text: "On the other"
        }
    }
}
