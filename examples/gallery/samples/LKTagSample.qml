import QtQuick

GallerySample {
    subject: tag

    LKTag {
        id: tag
        text: "Static"
    }
    LKTag {
        text: "Primary"
        type: LKTag.Primary
    }
    LKTag {
        text: "Error"
        type: LKTag.Error
    }
    LKTag {
        text: "Cobalt"
        type: LKTag.Cobalt
    }
    LKTag {
        text: "Gold"
        type: LKTag.Gold
    }
    LKTag {
        text: "Lime"
        type: LKTag.Lime
    }
    LKTag {
        text: "Mint"
        type: LKTag.Mint
    }
    LKTag {
        text: "Orange"
        type: LKTag.Orange
    }
    LKTag {
        text: "Purple"
        type: LKTag.Purple
    }
    LKTag {
        text: "Slate"
        type: LKTag.Slate
    }
    LKTag {
        text: "Violet"
        type: LKTag.Violet
    }
    LKTag {
        text: "Disabled"
        type: LKTag.Error
        enabled: false
    }
    LKTag {
        width: 80
        text: "Too long for its width"
    }
}
