pragma ComponentBehavior: Bound

// The avatars of a group, up to four that overlap, and how many more there are.
//
//     LKAvatarGroup {
//         avatarOneId: "ada"
//         avatarTwoId: "grace"
//         overflowCount: 12
//         contactOf: id => contacts.byId(id)
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0

WRectangle {
    id: root

    // Who is shown; an empty one is left out.
    property string avatarOneId: ""
    property string avatarTwoId: ""
    property string avatarThreeId: ""
    property string avatarFourId: ""
    // How many more the group has; up to 0 nothing is shown of them.
    property int overflowCount: 0
    // Pixels.
    property int avatarSize: 32
    // From the start of an avatar to that of the next one, pixels.
    property int avatarOffset: 4 * Math.ceil(avatarSize * 0.85 / 4)
    // Of all that is shown, pixels.
    readonly property int groupWidth: overflowCount > 0 ? overflowOffset + overflowWidth
                                    : ids.length > 0 ? (ids.length - 1) * avatarOffset + avatarSize : 0
    // Where the number begins, pixels from the start.
    property int overflowOffset: ids.length * avatarOffset
    // The colours of the number. The name has a "y" too many, as hosts know it.
    property color backgroundyNormal: themeType === undefined
                                      ? "transparent" : App.getColorSet("avatar-color-avatar-background-default").normal
    property color textPrimaryNormal: themeType === undefined
                                      ? "transparent" : App.getColorSet("avatar-color-avatar-text").normal
    // A function that gives the contact of an id, as a WAvatar has it for a controller; without one the ids are names.
    property var contactOf: null
    // The ring that sets what overlaps apart: the colour of what the group stands on.
    property string ringColorSetName: "panel-primary-background"
    property int ringWidth: 2
    readonly property list<string> ids: [avatarOneId, avatarTwoId, avatarThreeId, avatarFourId].filter(id => id !== "")
    readonly property string overflowText: overflowCount > 0 ? "+" + Math.min(overflowCount, 99) : ""
    readonly property int overflowWidth: Math.max(avatarSize, Math.ceil(overflow.implicitWidth))

    function contact(id: string): var {
        return contactOf ? contactOf.call(root, id) : { displayName: id };
    }

    // From the left edge, of what begins that far from the start.
    function place(start: real, itemWidth: real): real {
        return LayoutMirroring.enabled ? width - start - itemWidth : start;
    }

    function names(): string {
        const all = ids.map(id => contact(id)?.displayName ?? "").filter(name => name !== "");
        return (overflowCount > 0 ? all.concat("+" + overflowCount) : all).join(", ");
    }

    implicitWidth: groupWidth
    implicitHeight: avatarSize

    Accessible.role: Accessible.Graphic
    Accessible.name: names()

    Repeater {
        model: root.ids

        WRectangle {
            id: ring

            required property int index
            required property string modelData

            x: root.place(index * root.avatarOffset, root.avatarSize) - root.ringWidth
            y: -root.ringWidth
            width: root.avatarSize + 2 * root.ringWidth
            height: width
            radius: width / 2
            backgroundColorSetName: index === 0 ? "" : root.ringColorSetName

            WAvatar {
                x: root.ringWidth
                y: root.ringWidth
                width: root.avatarSize
                height: root.avatarSize
                // Nothing of them is under the ring of the next one.
                initialsWidth: Math.max(width / 2, Math.min(width * 0.75,
                                                            2 * (root.avatarOffset - root.ringWidth) - width))
                controller: root.contact(ring.modelData)
                Accessible.ignored: true
            }
        }
    }
    Loader {
        id: overflow

        x: root.place(root.overflowOffset, root.overflowWidth) - root.ringWidth
        y: -root.ringWidth
        width: root.overflowWidth + 2 * root.ringWidth
        height: root.avatarSize + 2 * root.ringWidth
        active: root.overflowCount > 0
        sourceComponent: WRectangle {
            implicitWidth: label.implicitWidth + 8
            radius: height / 2
            backgroundColorSetName: root.ids.length === 0 ? "" : root.ringColorSetName

            Rectangle {
                anchors.fill: parent
                anchors.margins: root.ringWidth
                radius: height / 2
                color: root.backgroundyNormal
            }
            WText {
                id: label

                anchors.centerIn: parent
                text: root.overflowText
                font: root.avatarSize >= 40 ? FontConstants.subheaderSecondary : FontConstants.tagLabelSecondary
                color: root.textPrimaryNormal
                Accessible.ignored: true
            }
        }
    }
}
