// A link: a button that looks like underlined text. It will not be supported: use LKHyperlinkButton.
//
//     WHyperlink {
//         text: "Learn more"
//         onTriggered: Qt.openUrlExternally(helpUrl)
//     }
import QtQuick
import LumakitQml 1.0

WButton {
    id: control

    // Whether the cursor over the link is a pointing hand.
    property bool changeCursor: true

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    horizontalPadding: 0
    verticalPadding: 0
    backgroundColorSetName: "button-hyperlink-background"
    borderColorSetName: "button-hyperlink-border"
    textColorSetName: "button-hyperlink-text"
    horizontalAlignment: Text.AlignLeft
    font: FontConstants.hyperlinkSecondary

    Accessible.role: Accessible.Link

    HoverHandler {
        enabled: control.changeCursor
        cursorShape: Qt.PointingHandCursor
    }
}
