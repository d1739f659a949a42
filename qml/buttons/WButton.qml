// A push button with a text, painted from colour sets by its state.
//
//     WButton {
//         text: "Join"
//         backgroundColorSetName: "button-join-fill-background"
//         textColorSetName: "button-join-fill-text"
//         onTriggered: meeting.join()
//     }
import LumakitQml 1.0
import LumakitQml.Private 1.0

// The template has what is not declared here: `focusColorSetName`, `tooltip`, `horizontalAlignment`,
// `verticalAlignment`, `borderWidth`, `radius`, `isRectangle` and `elide`.
WButtonTemplate {
    id: control

    property alias backgroundColorSetName: control.backgroundColors.colorSetName
    property alias borderColorSetName: control.borderColors.colorSetName
    property alias textColorSetName: control.textColors.colorSetName
    // The background in the present state.
    property alias colour: control.backgroundColors.color
    property alias textColor: control.textColors.color
    property alias themeType: control.backgroundColors.themeType
    property alias backgroundColorSet: control.backgroundColors.colorSet
    property alias borderColorSet: control.borderColors.colorSet
    property alias textColorSet: control.textColors.colorSet

    // By mouse, touch, Space, Enter, Return or a screen reader.
    signal triggered

    backgroundColors.colorSetName: "button-secondary-background"
    borderColors.colorSetName: "button-secondary-border"
    textColors.colorSetName: "button-secondary-text"
    implicitWidth: Math.max(implicitHeight, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(32, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: 12
    verticalPadding: 4
    spacing: 6
    font: FontConstants.subheaderSecondary

    onClicked: triggered()

    contentItem: WButtonContent {
    }
    background: Face {
    }
}
