import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    subject: opener
    height: 320

    WButton {
        id: opener
        text: "Menu"
        onTriggered: menu.open()
        Component.onCompleted: {
            if (sample.opensPopups)
                Qt.callLater(menu.open);
        }

        WMenu {
            id: menu

            y: opener.height + 4
            closePolicy: WMenu.NoAutoClose

            WMenuItem {
                text: "Copy"
                indicatorSvgName: "copy"
            }
            WMenuItem {
                text: "Wrap lines"
                checkable: true
                checked: true
            }
            WMenuItem {
                text: "Delete"
                indicatorSvgName: "trash"
                enabled: false
            }
            WMenuSeparator {}
            WMenu {
                title: "Move to"

                WMenuItem {
                    text: "Archive"
                }
            }
        }
    }
}
