pragma ComponentBehavior: Bound

// Two buttons in one pill: what is done most on the left, a choice of more on the right. In a mirrored layout they
// change places; the arrow keys go from one to the other.
//
//     WSvgSplitButton {
//         leftButton.text: "Share"
//         leftButton.iconName: "share-screen"
//         rightButton.tooltip: "Share options"
//         onLeftClicked: share.start()
//         onRightClicked: shareMenu.open()
//     }
import QtQuick
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

Item {
    id: root

    property alias rightButton: right
    property alias leftButton: left
    // Whether a button stays down, as while its menu is open.
    property alias rightChecked: right.checked
    property alias leftChecked: left.checked
    property string textColorSetName: "dualbutton-standard-button-text"
    property string backgroundColorSetName: "dualbutton-standard-button-background"
    property string iconColorSetName: textColorSetName
    property string borderColorSetName: "dualbutton-standard-border"
    // Whether a line stands between the buttons.
    property bool separator: true
    // Whether there is a line around both.
    property bool border: true
    // The width of the line between the buttons, pixels.
    property int spiltWidth: 1
    property int borderWidth: 1
    property string separatorColorSetName: "button-group-separator-background"
    property string focusColorSetName: "global-focus-outline"

    signal leftClicked
    signal rightClicked

    implicitWidth: left.implicitWidth + line.width + right.implicitWidth
    implicitHeight: Math.max(left.implicitHeight, right.implicitHeight)

    component Half: WSvgButton {
        id: half

        required property bool isLeft
        required property bool hasBorder
        required property string ringColorSetName
        readonly property bool isRoundLeft: isLeft !== mirrored

        leftPadding: isRoundLeft ? 12 : 8
        rightPadding: isRoundLeft ? 8 : 12
        focusColorSetName: "transparent" // a ring of its own shape follows

        background: WHalfPill {
            edge: half.isRoundLeft ? WHalfPill.Left : WHalfPill.Right
            borderLeft: half.hasBorder && half.isRoundLeft
            borderRight: half.hasBorder && !half.isRoundLeft
            borderTop: half.hasBorder
            borderBottom: half.hasBorder
            borderWidth: half.borderWidth
            backgroundColor: half.colour
            borderColor: ThemeUtils.getColor(half, half.borderColorSet)

            onEdgeChanged: update()
            onBorderChanged: update()
        }

        Loader {
            anchors.fill: parent
            anchors.margins: -4
            active: half.visualFocus
            sourceComponent: WFrame {
                borderWidth: 2
                borderColorSetName: half.ringColorSetName
                topLeftRadius: half.isRoundLeft ? height / 2 : 0
                bottomLeftRadius: topLeftRadius
                topRightRadius: half.isRoundLeft ? 0 : height / 2
                bottomRightRadius: topRightRadius
            }
        }
    }

    Row {
        height: root.height

        Half {
            id: left

            isLeft: true
            hasBorder: root.border
            ringColorSetName: root.focusColorSetName
            width: root.width - line.width - right.width
            height: root.height
            z: activeFocus ? 1 : 0
            backgroundColorSetName: root.backgroundColorSetName
            borderColorSetName: root.borderColorSetName
            textColorSetName: root.textColorSetName
            iconColorSetName: root.iconColorSetName
            borderWidth: root.borderWidth
            KeyNavigation.right: right

            onTriggered: root.leftClicked()
        }
        WRectangle {
            id: line

            width: root.separator ? root.spiltWidth : 0
            height: root.height
            backgroundColorSetName: root.separatorColorSetName
        }
        Half {
            id: right

            isLeft: false
            hasBorder: root.border
            ringColorSetName: root.focusColorSetName
            height: root.height
            z: activeFocus ? 1 : 0
            iconName: "chevron-down-bold"
            backgroundColorSetName: root.backgroundColorSetName
            borderColorSetName: root.borderColorSetName
            textColorSetName: root.textColorSetName
            iconColorSetName: root.iconColorSetName
            borderWidth: root.borderWidth
            KeyNavigation.left: left

            onTriggered: root.rightClicked()
        }
    }
}
