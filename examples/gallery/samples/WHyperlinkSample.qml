import LumakitQml 1.0

GallerySample {
    subject: link

    WHyperlink {
        id: link
        text: "Learn more about sharing"
    }
    WHyperlink {
        text: "Delete everything"
        textColorSetName: "hyperlink-destructive-text"
    }
    WHyperlink {
        text: "Disabled"
        enabled: false
    }
    WHyperlink {
        width: 120
        text: "Too long for its width"
    }
}
