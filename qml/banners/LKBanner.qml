// A card that tells something, in a header and a text below it, with a button for what to do about it and one to close
// it.
//
//     LKBanner {
//         bannerType: LKAlertBanner.Issue
//         headerText: "Your camera does not answer"
//         subText: "Somebody else may be using it."
//         actionButtonText: "Try again"
//         onBannerActionButtonClicked: camera.open()
//         onBannerCloseButtonClicked: visible = false
//     }
import QtQuick

WRectangle {
    id: root

    // As of LKAlertBanner.
    property int bannerType: LKAlertBanner.Announcement
    property string headerText: ""
    property string subText: ""
    property string actionButtonText: ""
    property bool actionButtonEnabled: true
    property bool actionButtonVisible: true
    property string closeButtonTooltip: qsTr("Close")
    property bool closeButtonEnabled: true
    property bool closeButtonVisible: true
    // An icon of the host; none if empty.
    property string iconName: content.typeIconName
    // Whether the banner itself can be clicked, by mouse and keyboard.
    property bool interactive: false
    readonly property alias banner: content

    signal bannerActionButtonClicked
    // By the button or Escape.
    signal bannerCloseButtonClicked
    // The banner itself, if it is interactive: by mouse, Space, Enter, Return or a screen reader.
    signal clicked

    implicitWidth: content.implicitWidth
    implicitHeight: content.implicitHeight
    radius: 8
    backgroundColorSetName: content.colorSetName
    controlsTarget: content.bannerState

    LKAlertBanner {
        id: content

        readonly property string colorSetName: "banner-" + colorName + "-background"

        anchors.fill: parent
        horizontalPadding: 16
        verticalPadding: 12
        spacing: 12
        radius: root.radius
        themeType: root.themeType
        backgroundColorSetName: ""
        bannerType: root.bannerType
        iconName: root.iconName
        text: root.headerText
        subText: root.subText
        isButtonBelow: root.headerText !== "" && root.subText !== ""
        buttonText: root.actionButtonVisible ? root.actionButtonText : ""
        buttonEnabled: root.actionButtonEnabled
        closeButtonTooltip: root.closeButtonTooltip
        closeButtonEnabled: root.closeButtonEnabled
        closeButtonVisible: root.closeButtonVisible
        interactive: root.interactive
        onButtonClicked: () => root.bannerActionButtonClicked()
        onBannerDismissed: root.bannerCloseButtonClicked()
        onClicked: root.clicked()
    }
}
