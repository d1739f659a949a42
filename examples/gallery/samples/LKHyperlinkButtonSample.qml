import QtQuick

GallerySample {
    subject: link

    LKHyperlinkButton {
        id: link
        text: "Learn more"
    }
    LKHyperlinkButton {
        text: "Delete recording"
        style: LKHyperlinkButton.Destructive
    }
    LKHyperlinkButton {
        text: "Share link"
        style: LKHyperlinkButton.Share
    }
    LKHyperlinkButton {
        text: "Disabled"
        enabled: false
    }
    LKHyperlinkButton {
        width: 120
        text: "Too long for its width"
    }
}
