import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: first

    LKButtonBase {
        id: first
        text: "Without looks"
        contentItem: WText {
            text: first.text
        }
    }
}
