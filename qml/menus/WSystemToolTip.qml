// An area that shows the desktop's tooltip, which may stick out of the window, while the cursor rests on it. It takes
// no clicks.
//
//     WSvgIcon {
//         svgName: "lock-bold"
//
//         WSystemToolTip {
//             anchors.fill: parent
//             text: "Encrypted"
//         }
//     }
import QtQuick
import LumakitQml.Private 1.0

MouseArea {
    id: root

    // Plain. Without a text there is no tooltip.
    property string text: ""

    hoverEnabled: true
    acceptedButtons: Qt.NoButton

    Accessible.role: Accessible.ToolTip
    Accessible.name: text

    ToolTipTrigger {
        text: root.text
    }
}
