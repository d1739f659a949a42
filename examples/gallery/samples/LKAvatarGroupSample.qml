import QtQuick

GallerySample {
    subject: group

    LKAvatarGroup {
        id: group
        avatarOneId: "Ada Lovelace"
        avatarTwoId: "Grace Hopper"
        avatarThreeId: "Karl"
        avatarFourId: "Mary Jackson"
        overflowCount: 12
    }
    LKAvatarGroup {
        avatarOneId: "Ada Lovelace"
        avatarTwoId: "Grace Hopper"
    }
    LKAvatarGroup {
        avatarSize: 48
        avatarOneId: "Ada Lovelace"
        avatarTwoId: "Grace Hopper"
        overflowCount: 240
    }
    LKAvatarGroup {
        avatarSize: 24
        avatarOneId: "Ada Lovelace"
        avatarTwoId: "Grace Hopper"
        avatarThreeId: "Karl"
    }
}
