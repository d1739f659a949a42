// Fades an item in or out, on its own or in a transition. Where animations are disabled it takes no time.
//
//     WFade {
//         target: banner
//         fadeIn: false
//         running: meeting.ended
//     }
import QtQuick
import Corvane 1.0

NumberAnimation {
    // From transparent to opaque; else from opaque to transparent.
    property bool fadeIn: true

    property: "opacity"
    from: fadeIn ? 0 : 1
    to: fadeIn ? 1 : 0
    duration: App.animationsDisabled() ? 0 : 200
    easing.type: fadeIn ? Easing.OutQuad : Easing.InQuad
}
