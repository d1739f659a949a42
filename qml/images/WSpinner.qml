// A spinner that is an animated image of the host; the library's own spinner without one. It stands still while it
// cannot be seen, and where the system asks for no animations.
//
//     WSpinner {
//         source: "qrc:/Pictures/loading.gif"
//     }
import QtQuick
import Corvane 1.0

AnimatedImage {
    id: root

    width: 24
    height: 24
    fillMode: Image.PreserveAspectFit
    playing: !App.animationsDisabled()
    paused: !visible

    Loader {
        anchors.fill: parent
        active: root.status !== AnimatedImage.Ready
        sourceComponent: WSvgSpinner {
        }
    }
}
