import LumakitQml 1.0

GallerySample {
    subject: split

    WSvgSplitIconButton {
        id: split
        leftButton.iconName: "zoom-out"
        leftButton.tooltip: "Zoom out"
        rightButton.iconName: "zoom-in"
        rightButton.tooltip: "Zoom in"
    }
    WSvgSplitIconButton {
        leftButton.iconName: "list"
        leftButton.tooltip: "List"
        leftButton.checkable: true
        leftChecked: true
        rightButton.iconName: "grid"
        rightButton.tooltip: "Grid"
        rightButton.checkable: true
    }
    WSvgSplitIconButton {
        horizontalLayout: false
        leftButton.iconName: "zoom-in"
        leftButton.tooltip: "Larger"
        rightButton.iconName: "zoom-out"
        rightButton.tooltip: "Smaller"
    }
    WSvgSplitIconButton {
        leftButton.iconName: "undo"
        leftButton.tooltip: "Undo"
        rightButton.iconName: "redo"
        rightButton.tooltip: "Redo"
        separator: false
        enabled: false
    }
}
