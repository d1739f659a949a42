import QtQuick

GallerySample {
    subject: dual

    LKDualButton {
        id: dual
        leftButtonIcon: "chevron-left-bold"
        leftAccessibleName: "Previous page"
        middleButtonIcon: "file-text"
        rightButtonIcon: "chevron-right-bold"
        rightAccessibleName: "Next page"
        text: "2 / 5"
    }
    LKDualButton {
        leftButtonIcon: "minus-bold"
        leftAccessibleName: "Smaller"
        rightButtonIcon: "plus-bold"
        rightAccessibleName: "Larger"
        text: "100 %"
        leftButton.enabled: false
    }
    LKDualButton {
        isOverlay: true
        leftButtonIcon: "chevron-left-bold"
        leftAccessibleName: "Previous picture"
        rightButtonIcon: "chevron-right-bold"
        rightAccessibleName: "Next picture"
        text: "Over a picture"
    }
    LKDualButton {
        leftButtonIcon: "undo"
        leftAccessibleName: "Undo"
        rightButtonIcon: "redo"
        rightAccessibleName: "Redo"
    }
    LKDualButton {
        enabled: false
        leftButtonIcon: "chevron-left-bold"
        leftAccessibleName: "Day before"
        middleButtonIcon: "calendar"
        rightButtonIcon: "chevron-right-bold"
        rightAccessibleName: "Day after"
        text: "Disabled"
    }
    LKDualButton {
        width: 160
        enableResize: true
        leftButtonIcon: "chevron-left-bold"
        leftAccessibleName: "Previous Thursday"
        middleButtonIcon: "calendar"
        rightButtonIcon: "chevron-right-bold"
        rightAccessibleName: "Next Thursday"
        text: "Donnerstag, 25. September"
    }
    LKDualButton {
        width: 240
        enableResize: true
        leftButtonIcon: "chevron-left-bold"
        leftAccessibleName: "Yesterday"
        middleButtonIcon: "calendar"
        rightButtonIcon: "chevron-right-bold"
        rightAccessibleName: "Tomorrow"
        text: "Today"
    }
}
