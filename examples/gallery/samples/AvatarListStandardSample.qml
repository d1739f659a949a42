import QtQuick
import Corvane 1.0
import LumakitQml 1.0

GallerySample {
    subject: avatars

    AvatarListStandard {
        id: avatars
        columns: 4
        allowInteractions: true
        model: [
            { displayName: "Ada Lovelace", presence: "active" },
            { displayName: "Grace Hopper", source: "image://svg/" + App.getColorSet("tab-violet").normal + "/logo" },
            { displayName: "Wu" },
            { displayName: "And one more", initials: "+1" },
            { displayName: "Émile Zola", presence: "away" },
            { displayName: "Somebody", initials: "" }
        ]
    }
    AvatarListStandard {
        avatarSize: 24
        model: [{ displayName: "Ada Lovelace" }, { displayName: "Grace Hopper" }]
    }
}
