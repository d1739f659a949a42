// A text that explains what it points at.
import QtQuick

GalleryPopup {
    padding: 8
    backgroundColorSetName: "coachmarkteaching-background"
    borderColorSetName: "coachmarkteaching-button-secondary-border"

    Accessible.role: Accessible.ToolTip
    Accessible.name: label.text

    GalleryText {
        id: label

        colorSetName: "coachmarkteaching-button-secondary-text"
        text: "Drag me to an edge of the screen"
    }
}
