import QtQuick

GallerySample {
    subject: toggle

    LKToggleButton {
        id: toggle
        leftButtonIcon: "list-bold"
        leftAccessibleName: "List"
        rightButtonIcon: "grid-bold"
        rightAccessibleName: "Grid"
    }
    LKToggleButton {
        leftButtonIcon: "sun"
        leftAccessibleName: "Light"
        rightButtonIcon: "moon"
        rightAccessibleName: "Dark"
        rightButton.checked: true
    }
    LKToggleButton {
        enabled: false
        leftButtonIcon: "list-bold"
        leftAccessibleName: "Lines"
        rightButtonIcon: "grid-bold"
        rightAccessibleName: "Tiles"
    }
}
