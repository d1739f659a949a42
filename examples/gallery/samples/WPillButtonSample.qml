import LumakitQml 1.0

GallerySample {
    subject: button

    WPillButton {
        id: button
        text: "Start meeting"
    }
    WPillButton {
        text: "Checked"
        checkable: true
        checked: true
    }
    WPillButton {
        text: "Disabled"
        enabled: false
    }
    WPillButton {
        text: "Leave"
        backgroundColorSetName: "button-cancel-fill-background"
        borderColorSetName: "button-cancel-fill-border"
        textColorSetName: "button-cancel-fill-text"
    }
    WPillButton {
        text: "Join"
        backgroundColorSetName: "button-join-outline-background"
        borderColorSetName: "button-join-outline-border"
        textColorSetName: "button-join-outline-text"
    }
    WPillButton {
        width: 120
        text: "Too long for its width"
    }
}
