import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: avatar

    WSelfMessageAvatar {
        id: avatar
    }
    WSelfMessageAvatar {
        width: 24
        height: 24
    }
    WSelfMessageAvatar {
        width: 56
        height: 56
        backgroundColorSetName: "avatar-color-avatar-background-cobalt"
    }
}
