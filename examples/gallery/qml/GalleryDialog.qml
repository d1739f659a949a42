// A dialog that shows more of its text when it is asked to.
import QtQuick
import QtQuick.Layouts
import Gallery 1.0

GalleryPopup {
    id: root

    padding: 16

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    Component.onCompleted: more.forceActiveFocus(Qt.TabFocusReason)

    ColumnLayout {
        spacing: 12

        GalleryText {
            id: title

            token: 2 // Header
            text: "Leave the page?"
        }
        GalleryText {
            Layout.preferredWidth: Math.max(280, buttons.implicitWidth)
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            text: more.checked ? "What you have not saved is lost. A draft is kept for a week, and the page comes back with it "
                                 + "when you open it again." : "What you have not saved is lost."
        }
        Row {
            id: buttons

            spacing: 8

            GalleryButton {
                id: more

                text: "More"
                checkable: true
            }
            GalleryButton {
                text: "Leave"
                onClicked: Popups.choose(text)
            }
            GalleryButton {
                text: "Stay"
                onClicked: Popups.choose(text)
            }
        }
    }
}
