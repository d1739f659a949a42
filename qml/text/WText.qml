// A text in a colour of a colour set. It is plain: markup in it is shown as it stands.
//
//     WText {
//         text: "Share screen"
//         textColorSetName: "label-secondary-text"
//     }
import QtQuick
import LumakitQml 1.0
import LumakitQml.Private 1.0

// The template has `textMouseArea` and `toolTipText`.
TextTemplate {
    id: root

    // The control whose state picks the colour; this text itself if null.
    property alias controlsTarget: root.textColors.target
    property alias themeType: root.textColors.themeType
    property alias textColorSetName: root.textColors.colorSetName
    property alias textColorSet: root.textColors.colorSet
    readonly property bool empty: text === ""

    textColors.colorSetName: "label-primary-text"
    font: FontConstants.bodySecondary
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
}
