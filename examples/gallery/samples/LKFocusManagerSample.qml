pragma ComponentBehavior: Bound

import QtQuick
import LumakitQml 1.0

// A screen that is walked by Tab and Backtab alone: managers in a manager, with buttons, a list, a field behind its
// proxy and a button that is loaded.
GallerySample {
    id: sample

    subject: screen

    LKFocusManager {
        id: screen

        objectName: "screen"
        width: column.implicitWidth
        height: column.implicitHeight
        activeFocusOnTab: true
        forceNavigation: true
        focusableItems: [toolBar, people, form, loader]

        Accessible.role: Accessible.Grouping
        Accessible.name: "Meeting"

        Column {
            id: column

            spacing: 16

            LKFocusManager {
                id: toolBar

                width: buttons.implicitWidth
                height: buttons.implicitHeight
                forceNavigation: true
                wrapAround: false
                focusableItems: [mute, camera, share]

                Accessible.role: Accessible.ToolBar
                Accessible.name: "Controls"

                Row {
                    id: buttons

                    spacing: 16

                    WButton {
                        id: mute
                        text: "Mute"
                    }
                    WButton {
                        id: camera
                        text: "Camera"
                        enabled: false
                    }
                    WButton {
                        id: share
                        text: "Share"
                    }
                }
            }
            LKFocusManager {
                id: people

                width: 240
                height: 76
                forceNavigation: true
                wrapAround: false
                focusableItems: list

                Accessible.role: Accessible.Grouping
                Accessible.name: "People"

                ListView {
                    id: list

                    anchors.fill: parent
                    clip: true
                    spacing: 4
                    model: ["Ada", "Bertrand", "Christine"]

                    delegate: WButton {
                        required property string modelData

                        width: ListView.view.width
                        text: modelData
                    }
                }
            }
            LKFocusManagerProxy {
                id: form

                target: field

                WTextField {
                    id: field
                    width: 240
                    placeholderText: "Message"
                }
            }
            Loader {
                id: loader

                sourceComponent: WButton {
                    text: "Leave"
                }
            }
        }
    }
}
