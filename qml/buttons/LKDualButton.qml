// A pill with a round icon button at each end and an icon and a text between them, such as those that turn pages. In a
// mirrored layout the buttons change places; the arrow keys go from one to the other.
//
//     LKDualButton {
//         leftButtonIcon: "chevron-left-bold"
//         leftAccessibleName: "Previous page"
//         rightButtonIcon: "chevron-right-bold"
//         rightAccessibleName: "Next page"
//         text: "2 / 5"
//         leftButton.onClicked: pages.decrementCurrentIndex()
//         rightButton.onClicked: pages.incrementCurrentIndex()
//     }
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0

RowLayout {
    id: root

    // In colours for what lies over pictures and videos.
    property bool isOverlay: false
    // Whether the pill takes the width that it is given, and the text is elided where it does not fit; otherwise the
    // pill is as wide as its content.
    property bool enableResize: false
    // Names of icons; none without.
    property string leftButtonIcon: ""
    property string middleButtonIcon: ""
    property string rightButtonIcon: ""
    property string leftAccessibleName: ""
    property string rightAccessibleName: ""
    // Stands between the buttons.
    property string text: ""
    property var themeType: App.themeMode
    property alias leftButton: left
    property alias rightButton: right
    property string backgroundColorSetName: isOverlay ? "dualbutton-overlay-background"
        : "dualbutton-standard-background"
    property string borderColorSetName: isOverlay ? "dualbutton-overlay-border" : "dualbutton-standard-border"
    property string buttonBackgroundColorSetName: isOverlay ? "dualbutton-overlay-button-background"
        : "dualbutton-standard-button-background"
    property string textColorSetName: isOverlay ? "dualbutton-overlay-button-text" : "dualbutton-standard-button-text"
    property font font: FontConstants.subheaderSecondary

    spacing: 0

    component End: LKRoundButton {
        required property string backgroundColorSetName
        required property string textColorSetName

        LKRoundButtonData.backgroundColorData.token: backgroundColorSetName
        LKRoundButtonData.textColorData.token: textColorSetName

        buttonStyle: LKButtonStyle.None
        buttonSize: LKButtonSize.XS
    }

    WFrame {
        id: pill

        // Between its parts, and between them and its edge; pixels.
        readonly property int gap: 8
        readonly property int margin: 2
        readonly property bool hasMiddle: root.middleButtonIcon !== "" || root.text !== ""
        // What is left of the width is the middle's.
        readonly property int endsWidth: left.width + right.width + 2 * margin + (hasMiddle ? 2 * gap : margin)

        Layout.fillWidth: root.enableResize
        Layout.minimumWidth: endsWidth + (root.middleButtonIcon === "" ? 0 : icon.width)
        implicitWidth: endsWidth + (hasMiddle ? Math.ceil(middle.implicitWidth) : 0)
        implicitHeight: Math.max(left.height, Math.ceil(middle.implicitHeight)) + 2 * margin
        radius: height / 2
        themeType: root.themeType
        backgroundColorSetName: root.backgroundColorSetName
        borderColorSetName: root.borderColorSetName

        End {
            id: left

            themeType: root.themeType
            backgroundColorSetName: root.buttonBackgroundColorSetName
            textColorSetName: root.textColorSetName
            anchors.left: pill.left
            anchors.margins: pill.margin
            anchors.verticalCenter: pill.verticalCenter
            buttonIcon: root.leftButtonIcon
            KeyNavigation.right: right
            Accessible.name: root.leftAccessibleName
        }
        RowLayout {
            id: middle

            anchors.centerIn: parent
            visible: pill.hasMiddle
            width: Math.max(0, Math.min(Math.ceil(implicitWidth), pill.width - pill.endsWidth))
            spacing: 6

            WSvgIcon {
                id: icon

                Layout.preferredWidth: 16
                Layout.preferredHeight: 16
                visible: svgName !== ""
                themeType: root.themeType
                svgName: root.middleButtonIcon
                svgColor: label.color
            }
            WText {
                id: label

                Layout.fillWidth: true
                visible: !empty
                themeType: root.themeType
                text: root.text
                textColorSetName: root.textColorSetName
                font: root.font
                elide: Text.ElideRight
            }
        }
        End {
            id: right

            themeType: root.themeType
            backgroundColorSetName: root.buttonBackgroundColorSetName
            textColorSetName: root.textColorSetName
            anchors.right: pill.right
            anchors.margins: pill.margin
            anchors.verticalCenter: pill.verticalCenter
            buttonIcon: root.rightButtonIcon
            Accessible.name: root.rightAccessibleName
        }
    }
}
