pragma ComponentBehavior: Bound

import QtQuick
import LumakitQml 1.0

// Every style in every size and in every state.
GallerySample {
    id: sample

    readonly property list<string> styles: [
        "Primary", "Secondary", "Ghost", "CancelGhost", "MessageGhost", "Join", "OutlineJoin", "Cancel",
        "OutlineCancel", "Message", "TeachingPrimary", "TeachingSecondary"
    ]
    readonly property list<string> sizes: ["XL", "L", "M", "S", "XS", "XXS", "XXXS"]
    readonly property list<string> states: ["normal", "hovered", "pressed", "focused", "checked", "disabled"]

    subject: null
    width: 1120
    spacing: 4

    Repeater {
        model: sample.styles

        Flow {
            id: styleRow

            required property string modelData
            required property int index

            width: sample.width - 32
            spacing: 4

            Repeater {
                model: sample.sizes

                LKPillButton {
                    required property string modelData
                    required property int index

                    text: modelData
                    buttonStyle: styleRow.index + 1
                    buttonSize: index + 1
                    Accessible.name: styleRow.modelData + " " + modelData
                }
            }
            Repeater {
                model: sample.states

                LKPillButton {
                    id: button

                    required property string modelData

                    text: modelData
                    buttonStyle: styleRow.index + 1
                    enabled: modelData !== "disabled"
                    Accessible.name: styleRow.modelData + " " + modelData

                    LKPillButtonData.eventData: LKEventData {
                        enabled: button.modelData !== "disabled"
                        hovered: button.modelData === "hovered"
                        pressed: button.modelData === "pressed"
                        activeFocus: button.modelData === "focused"
                        checked: button.modelData === "checked"
                    }
                }
            }
        }
    }
}
