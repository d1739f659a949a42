import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    subject: opener
    height: 320

    WButton {
        id: opener
        text: "Context menu"
        onTriggered: menu.open()
        Component.onCompleted: {
            if (sample.opensPopups)
                Qt.callLater(menu.open);
        }

        LKContextMenu {
            id: menu

            y: opener.height + 4
            closePolicy: WMenu.NoAutoClose

            LKContextMenuItem {
                text: "Copy"
                indicatorSvgName: "copy"
                shortcutText: "Ctrl+C"
            }
            LKContextMenuItem {
                text: "Paste"
                indicatorSvgName: "paste"
                shortcutText: "Ctrl+V"
                enabled: false
            }
            LKMenuSeparator {}
            LKContextMenuItem {
                text: "Wrap lines"
                checkable: true
                checked: true
            }
            LKContextMenu {
                title: "Move to"

                LKContextMenuItem {
                    text: "Archive"
                }
            }
        }
    }
}
