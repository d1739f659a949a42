import QtQuick

GallerySample {
    subject: dual

    LKDualIconButton {
        id: dual
        leftButtonIcon: "minus-bold"
        leftAccessibleName: "Zoom out"
        rightButtonIcon: "plus-bold"
        rightAccessibleName: "Zoom in"
    }
    LKDualIconButton {
        horizontal: false
        leftButtonIcon: "plus-bold"
        leftAccessibleName: "Larger"
        rightButtonIcon: "minus-bold"
        rightAccessibleName: "Smaller"
    }
    LKDualIconButton {
        isOverlay: true
        leftButtonIcon: "chevron-left-bold"
        leftAccessibleName: "Previous picture"
        rightButtonIcon: "chevron-right-bold"
        rightAccessibleName: "Next picture"
    }
    LKDualIconButton {
        isOverlay: true
        horizontal: false
        leftButtonIcon: "chevron-up-bold"
        leftAccessibleName: "Page up"
        rightButtonIcon: "chevron-down-bold"
        rightAccessibleName: "Page down"
        rightButton.enabled: false
    }
    LKDualIconButton {
        enabled: false
        leftButtonIcon: "undo"
        leftAccessibleName: "Undo"
        rightButtonIcon: "redo"
        rightAccessibleName: "Redo"
    }
}
