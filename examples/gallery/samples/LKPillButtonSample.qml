pragma ComponentBehavior: Bound

import QtQuick
import LumakitQml 1.0

GallerySample {
    id: sample

    readonly property list<string> styles: [
        "Primary", "Secondary", "Ghost", "CancelGhost", "MessageGhost", "Join", "OutlineJoin", "Cancel",
        "OutlineCancel", "Message", "TeachingPrimary", "TeachingSecondary"
    ]

    subject: first

    LKPillButton {
        id: first
        text: "Join"
        leftIcon: "video-bold"
        Accessible.name: "Join the meeting"
    }
    LKPillButton {
        text: "Both icons"
        leftIcon: "arrow-left-bold"
        rightIcon: "chevron-down-bold"
        buttonStyle: LKButtonStyle.Secondary
    }
    LKPillButton {
        text: "Disabled"
        enabled: false
    }
    LKPillButton {
        text: "Checked"
        checkable: true
        checked: true
        buttonStyle: LKButtonStyle.Secondary
    }
    LKPillButton {
        rightIcon: "chevron-down-bold"
        Accessible.name: "More"
    }
    LKPillButton {
        width: 120
        text: "Too long for its width"
        leftIcon: "video-bold"
    }
    Repeater {
        model: sample.styles

        LKPillButton {
            required property string modelData
            required property int index

            text: modelData
            buttonStyle: index + 1
            Accessible.name: "Style " + modelData
        }
    }
    Repeater {
        model: ["XL", "L", "M", "S", "XS", "XXS", "XXXS"]

        LKPillButton {
            required property string modelData
            required property int index

            text: modelData
            leftIcon: "star-bold"
            buttonSize: index + 1
        }
    }
}
