// A short label in a frame with round ends, such as a state or a category. It can be clicked if it is interactive.
//
//     WTag {
//         text: "External"
//         backgroundColorSetName: "tag-orange-background"
//         borderColorSetName: "tag-orange-border"
//         textColorSetName: "tag-orange-text"
//     }
import QtQuick
import LumakitQml 1.0
import LumakitQml.Private 1.0

WButton {
    id: control

    // Whether the tag is a button. Otherwise mouse and keyboard pass it by, to what is below.
    property bool interactive: false

    implicitHeight: Math.max(24, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: 8
    verticalPadding: 2
    isRectangle: false
    backgroundColorSetName: "tag-static-background"
    borderColorSetName: "tag-static-border"
    textColorSetName: "tag-static-text"
    font: FontConstants.tagLabelSecondary
    focusPolicy: interactive ? Qt.StrongFocus : Qt.NoFocus
    containmentMask: interactive ? null : nowhere

    Accessible.role: interactive ? Accessible.Button : Accessible.StaticText

    QtObject {
        id: nowhere

        function contains(point: point): bool {
            return false;
        }
    }
    ToolTipTrigger {
        target: control.contentItem
        text: control.interactive ? "" : control.tooltip
    }
}
