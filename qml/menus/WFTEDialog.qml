pragma ComponentBehavior: Bound

// A balloon that introduces something new: an illustration, a title, a message, up to two buttons and a link. What has
// no text or source is not there. Escape is the close button.
//
//     WFTEDialog {
//         svgImageName: "whiteboard"
//         titleText: "Draw together"
//         messageText: "Everybody in the meeting sees and edits the whiteboard."
//         rightPillButtonText: "Try it"
//         hyperLinkButtonText: "Learn more"
//         onRightPillButtonClicked: meeting.openWhiteboard()
//     }
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0

WToolTip.Balloon {
    id: root

    // Between the balloon's edge and its content, pixels.
    property int dialogMargins: 24
    property int illustrationWidth: 272
    property int illustrationHeight: 136
    // The illustration: the first of dynamicSource, gifSource, imageSource, svgImageName and svgIconName that is set.
    property string svgIconName: ""
    property var svgIconColorSet: themeType === undefined ? null : App.getColorSet(svgIconColorSetName)
    // A picture of the resources in its own colours.
    property string svgImageName: ""
    property url imageSource: ""
    property url gifSource: ""
    // What the application's movie source is asked for.
    property string dynamicSource: ""
    property string titleText: ""
    property string messageText: ""
    property string leftPillButtonText: ""
    property string rightPillButtonText: ""
    property string hyperLinkButtonText: ""
    property bool leftPillButtonEnabled: true
    property bool rightPillButtonEnabled: true
    property bool closeButtonVisible: true
    property string closeButtonTooltip: qsTr("Close")
    property var themeType: App.themeMode
    property string svgIconColorSetName: "interactiveicon-primary-filled-icon-active"
    property string backgroundColorSetName: "modal-primary-background"
    property string borderColorSetName: "modal-primary-border"
    property string titleTextColorSetName: "label-primary-text"
    property string messageTextColorSetName: "label-secondary-text"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    readonly property int arrowTop: arrowAnchor === WBalloon.Top ? arrowSize : 0
    readonly property int arrowBottom: arrowAnchor === WBalloon.Bottom ? arrowSize : 0
    readonly property int arrowLeft: arrowAnchor === WBalloon.Left ? arrowSize : 0
    readonly property int arrowRight: arrowAnchor === WBalloon.Right ? arrowSize : 0

    signal closeButtonClicked
    signal leftPillButtonClicked
    signal rightPillButtonClicked
    signal hyperLinkButtonClicked

    function illustrationComponent(): Component {
        if (dynamicSource !== "")
            return dynamicImage;
        if (gifSource.toString() !== "")
            return gif;
        if (imageSource.toString() !== "")
            return image;
        if (svgImageName !== "")
            return svgImage;
        return svgIconName !== "" ? svgIcon : null;
    }

    implicitWidth: illustrationWidth + 2 * dialogMargins + arrowLeft + arrowRight
    implicitHeight: Math.ceil(content.implicitHeight) + 2 * dialogMargins + arrowTop + arrowBottom
    arrowAnchor: WBalloon.None
    lineColor: borderColorSet.normal
    fillColor: backgroundColorSet.normal

    onVisibleChanged: visible ? FocusReturn.remember(root) : FocusReturn.giveBack(root)

    Accessible.role: Accessible.Dialog
    Accessible.name: titleText
    Accessible.description: messageText

    Keys.onEscapePressed: event => {
        event.accepted = closeButtonVisible;
        if (closeButtonVisible)
            closeButtonClicked();
    }

    // The balloon without its arrow, which stays on its side in a mirrored layout.
    Item {
        x: root.arrowLeft
        y: root.arrowTop
        width: root.width - root.arrowLeft - root.arrowRight
        height: root.height - root.arrowTop - root.arrowBottom

        ColumnLayout {
            id: content

            anchors.fill: parent
            anchors.margins: root.dialogMargins
            spacing: 8

            Loader {
                id: illustration

                Layout.preferredWidth: root.illustrationWidth
                Layout.preferredHeight: root.illustrationHeight
                Layout.maximumWidth: content.width
                Layout.alignment: Qt.AlignHCenter
                Layout.bottomMargin: root.titleText === "" && root.messageText === "" ? 0 : 8
                visible: active
                active: sourceComponent !== null
                sourceComponent: root.illustrationComponent()
            }
            WText {
                Layout.fillWidth: true
                // Clear of the close button.
                Layout.rightMargin: illustration.active || !root.closeButtonVisible ? 0 : 16
                visible: !empty
                text: root.titleText
                textColorSetName: root.titleTextColorSetName
                font: FontConstants.subheaderPrimary
                wrapMode: Text.Wrap

                Accessible.role: Accessible.Heading
            }
            WText {
                Layout.fillWidth: true
                visible: !empty
                text: root.messageText
                textColorSetName: root.messageTextColorSetName
                wrapMode: Text.Wrap
            }
            Loader {
                Layout.maximumWidth: content.width
                visible: active
                active: root.hyperLinkButtonText !== ""
                sourceComponent: LKHyperlinkButton {
                    text: root.hyperLinkButtonText
                    onClicked: root.hyperLinkButtonClicked()
                }
            }
            // Below each other where they do not fit beside each other.
            GridLayout {
                Layout.alignment: Qt.AlignRight
                Layout.topMargin: 8
                visible: left.active || right.active
                columns: left.implicitWidth + columnSpacing + right.implicitWidth > content.width ? 1 : 2
                columnSpacing: 8
                rowSpacing: 8

                Loader {
                    id: left

                    Layout.maximumWidth: content.width
                    Layout.alignment: Qt.AlignRight
                    visible: active
                    active: root.leftPillButtonText !== ""
                    sourceComponent: LKPillButton {
                        text: root.leftPillButtonText
                        enabled: root.leftPillButtonEnabled
                        buttonStyle: LKButtonStyle.Secondary
                        buttonSize: LKButtonSize.M
                        onClicked: root.leftPillButtonClicked()
                    }
                }
                Loader {
                    id: right

                    Layout.maximumWidth: content.width
                    Layout.alignment: Qt.AlignRight
                    visible: active
                    active: root.rightPillButtonText !== ""
                    sourceComponent: LKPillButton {
                        text: root.rightPillButtonText
                        enabled: root.rightPillButtonEnabled
                        buttonSize: LKButtonSize.M
                        onClicked: root.rightPillButtonClicked()
                    }
                }
            }
        }
        Loader {
            anchors.top: parent.top
            anchors.right: parent.right
            anchors.margins: 8
            active: root.closeButtonVisible
            sourceComponent: WSvgIconButton {
                implicitHeight: 24
                iconName: "close-bold"
                tooltip: root.closeButtonTooltip
                onTriggered: root.closeButtonClicked()
            }
        }
    }
    Component {
        id: svgIcon

        Item {
            WSvgIcon {
                anchors.centerIn: parent
                width: Math.min(parent.width, parent.height)
                height: width
                svgName: root.svgIconName
                svgColor: root.svgIconColorSet.normal
            }
        }
    }
    Component {
        id: svgImage

        WSvgImage {
            svgName: root.svgImageName
        }
    }
    Component {
        id: image

        WImage {
            source: root.imageSource
            asynchronous: true
            hasSpinner: true
            fillMode: Image.PreserveAspectFit
        }
    }
    Component {
        id: gif

        AnimatedImage {
            source: root.gifSource
            fillMode: Image.PreserveAspectFit
            playing: !App.animationsDisabled()
            paused: !visible
        }
    }
    Component {
        id: dynamicImage

        WDynamicAnimatedImage {
            source: root.dynamicSource
        }
    }
}
