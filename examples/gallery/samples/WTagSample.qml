import LumakitQml 1.0

GallerySample {
    subject: tag

    WTag {
        id: tag
        text: "Draft"
    }
    WTag {
        text: "External"
        backgroundColorSetName: "tag-orange-background"
        borderColorSetName: "tag-orange-border"
        textColorSetName: "tag-orange-text"
    }
    WTag {
        text: "Interactive"
        interactive: true
        backgroundColorSetName: "tag-primary-background"
        borderColorSetName: "tag-primary-border"
        textColorSetName: "tag-primary-text"
    }
    WTag {
        text: "Disabled"
        enabled: false
    }
    WTag {
        width: 96
        text: "Too long for its width"
    }
}
