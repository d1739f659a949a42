// The button for what a view is there for: filled, with round ends. It will not be supported: use LKPillButton.
//
//     WPillButton {
//         text: "Start meeting"
//         onTriggered: meeting.start()
//     }

WButton {
    horizontalPadding: 16
    isRectangle: false
    backgroundColorSetName: "button-primary-background"
    borderColorSetName: "button-primary-border"
    textColorSetName: "button-primary-text"
}
