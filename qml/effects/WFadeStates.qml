// An item, or another for it, that fades out in one state and in again in all others. Faded out it is invisible, so it
// takes no clicks.
//
//     WFadeStates {
//         state: hint.isNeeded ? "" : fadeOutState
//         WText { text: "Press Space to speak" }
//     }
import QtQuick

Item {
    id: root

    // The state's name.
    property string fadeOutState: "fadeOut"
    // What fades; this item itself if null.
    property Item fadeTarget: null
    readonly property Item fadingItem: fadeTarget ?? root

    // A fade that turns round midway goes on from there.
    onStateChanged: fadingOut.from = fadingIn.from = fadingItem.opacity

    states: State {
        name: root.fadeOutState
        PropertyChanges {
            root.fadingItem.opacity: 0
            root.fadingItem.visible: false
        }
    }
    transitions: [
        Transition {
            to: root.fadeOutState
            SequentialAnimation {
                WFade {
                    id: fadingOut
                    fadeIn: false
                }
                PropertyAction { property: "visible" }
            }
        },
        Transition {
            from: root.fadeOutState
            SequentialAnimation {
                PropertyAction { property: "visible" }
                WFade { id: fadingIn }
            }
        }
    ]
}
