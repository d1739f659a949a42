import LumakitQml 1.0

GallerySample {
    subject: button

    WSvgIconButton {
        id: button
        iconName: "settings-bold"
        tooltip: "Settings"
    }
    WSvgIconButton {
        iconName: "pin-bold"
        tooltip: "Checked"
        checkable: true
        checked: true
    }
    WSvgIconButton {
        iconName: "close-bold"
        tooltip: "Disabled"
        enabled: false
    }
    WSvgIconButton {
        iconName: "close-bold"
        tooltip: "Primary"
        backgroundColorSetName: "button-primary-background"
        borderColorSetName: ""
        iconColorSetName: "button-primary-text"
    }
    WSvgIconButton {
        width: 40
        height: 40
        iconWidth: 20
        iconHeight: 20
        iconName: "bell"
        tooltip: "Large"
        isRectangle: true
        borderColorSetName: "button-secondary-border"
    }
}
