// The button that floats over a conversation and leads to what is new in it.
//
//     WMessageBannerButton {
//         text: "3 new messages"
//         onTriggered: conversation.showNewest()
//     }
import QtQuick

WSvgButton {
    implicitHeight: Math.max(28, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    alignment: Qt.AlignRight
    iconName: "chevron-down-bold"
    backgroundColorSetName: "chat-new-message-newReplyBanner-background"
    borderColorSetName: ""
    textColorSetName: "chat-new-message-newReplyBanner-text"
}
