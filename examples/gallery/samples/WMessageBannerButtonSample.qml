import LumakitQml 1.0

GallerySample {
    subject: button

    WMessageBannerButton {
        id: button
        text: "3 new messages"
    }
    WMessageBannerButton {
        text: "No icon"
        iconName: ""
    }
    WMessageBannerButton {
        text: "Disabled"
        enabled: false
    }
}
