import QtQuick
import LumakitQml 1.0

// Tab goes through the manager's items; the field is one of them by its proxy.
GallerySample {
    subject: proxy

    LKFocusManager {
        width: row.implicitWidth
        height: row.implicitHeight
        activeFocusOnTab: true
        forceNavigation: true
        focusableItems: [save, proxy]

        Accessible.name: "Contact"

        Row {
            id: row

            spacing: 16

            WButton {
                id: save
                text: "Save"
            }
            LKFocusManagerProxy {
                id: proxy

                target: field

                WTextField {
                    id: field
                    width: 200
                    placeholderText: "Name"
                    Accessible.name: "Name"
                }
            }
        }
    }
}
