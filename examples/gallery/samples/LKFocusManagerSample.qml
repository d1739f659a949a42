import QtQuick
import LumakitQml 1.0

// Return enters the group, Tab moves inside, Escape leaves.
GallerySample {
    subject: manager

    WButton {
        text: "Before"
    }
    LKFocusManager {
        id: manager

        width: group.implicitWidth
        height: group.implicitHeight
        activeFocusOnTab: true
        focusableItems: [red, green, blue]

        Accessible.role: Accessible.Grouping
        Accessible.name: "Colours"

        WFrame {
            id: group

            implicitWidth: row.implicitWidth + 32
            implicitHeight: row.implicitHeight + 32
            borderColorSetName: manager.activeFocus && !manager.isNavigating ? "global-focus-outline"
                                                                             : "separator-secondary"

            Row {
                id: row

                anchors.centerIn: parent
                spacing: 16

                WButton {
                    id: red
                    text: "Red"
                }
                WButton {
                    id: green
                    text: "Green"
                }
                WButton {
                    id: blue
                    text: "Blue"
                }
            }
        }
    }
    WButton {
        text: "After"
    }
}
