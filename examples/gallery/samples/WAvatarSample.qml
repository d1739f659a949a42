import QtQuick
import Corvane 1.0
import LumakitQml 1.0

GallerySample {
    id: sample

    readonly property string picture: "image://svg/" + App.getColorSet("tab-violet").normal + "/logo"

    subject: avatar

    WAvatar {
        id: avatar
        width: 40
        height: 40
        displayName: "Ada Lovelace"
        presence: "active"
        presenceText: "Active"
        allowInteractions: true
        showContactCard: true
    }
    WAvatar {
        width: 40
        height: 40
        displayName: "Grace Hopper"
        source: sample.picture
        presence: "dnd"
        allowInteractions: true
    }
    WAvatar {
        displayName: "Émile Zola"
        backgroundColorSetName: "avatar-color-avatar-background-mint"
        presence: "away"
    }
    WAvatar {
        width: 24
        height: 24
        displayName: "Wu"
        backgroundColorSetName: "avatar-color-avatar-background-orange"
        presence: "meeting"
    }
    WAvatar {
        width: 40
        height: 40
        presence: "call"
    }
    WAvatar {
        width: 40
        height: 40
        displayName: "Ada Lovelace"
        enabled: false
    }
    WAvatar {
        width: 72
        height: 72
        displayName: "Maria von Trapp"
        backgroundColorSetName: "avatar-color-avatar-background-gold"
        presence: "presenting"
    }
    WAvatar {
        width: 96
        height: 96
        displayName: "Grace Hopper"
        source: sample.picture
        presence: "quiet-hours"
    }
}
