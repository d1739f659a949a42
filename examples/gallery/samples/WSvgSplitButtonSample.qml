import LumakitQml 1.0

GallerySample {
    subject: split

    WSvgSplitButton {
        id: split
        leftButton.iconName: "share-screen"
        leftButton.text: "Share"
        rightButton.tooltip: "Share options"
    }
    WSvgSplitButton {
        leftButton.iconName: "microphone"
        leftButton.tooltip: "Mute"
        rightButton.tooltip: "Microphones"
        rightChecked: true
    }
    WSvgSplitButton {
        leftButton.text: "Send"
        rightButton.tooltip: "Send later"
        backgroundColorSetName: "button-primary-background"
        borderColorSetName: "button-primary-border"
        textColorSetName: "button-primary-text"
    }
    WSvgSplitButton {
        leftButton.text: "No lines"
        rightButton.tooltip: "Options"
        border: false
        separator: false
    }
    WSvgSplitButton {
        leftButton.iconName: "video"
        leftButton.text: "Disabled"
        rightButton.tooltip: "Cameras"
        enabled: false
    }
    WSvgSplitButton {
        width: 160
        leftButton.iconName: "folder"
        leftButton.text: "Too long for its width"
        rightButton.tooltip: "Folders"
    }
}
