// A link: a button that looks like underlined text.
//
//     LKHyperlinkButton {
//         text: "Learn more"
//         onClicked: Qt.openUrlExternally(helpUrl)
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

ButtonTemplate {
    id: control

    // What the link leads to: something of interest, a loss, a share.
    enum Style { Accent, Destructive, Share }

    // Whether the cursor over the link is a pointing hand.
    property bool changeCursor: true
    // The control whose state picks the colour: the link itself, unless it is a part of another one.
    property Item _control: control
    property var themeType: App.themeMode
    property int style: LKHyperlinkButton.Accent
    property string textColorSetName: style === LKHyperlinkButton.Destructive ? "hyperlink-destructive-text"
        : style === LKHyperlinkButton.Share ? "hyperlink-share-text" : "hyperlink-accent-text"
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    padding: 0
    horizontalPadding: 0
    font: FontConstants.hyperlinkSecondary

    Accessible.role: Accessible.Link

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: ThemeUtils.getColor(control._control, control.textColorSet)
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }

    HoverHandler {
        enabled: control.changeCursor
        cursorShape: Qt.PointingHandCursor
    }
}
