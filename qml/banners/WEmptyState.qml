pragma ComponentBehavior: Bound

// What a view shows where it has nothing to show: a picture, a title and a hint what to do.
//
//     WEmptyState {
//         svgImageName: "no-messages"
//         title: "No messages yet"
//         subtitle: "Write the first one"
//     }
import QtQuick
import LumakitQml 1.0

WFrame {
    id: root

    property bool svgAsynchronous: false
    // The picture, in its own colours; none without a name.
    property string svgImageName: ""
    // The picture's side, pixels.
    property int svgImageSize: 120
    property string title: ""
    property string subtitle: ""
    // How much wider than picture and title the subtitle may be before it wraps, pixels.
    property int subTitleExtraWidth: 120
    // Between picture and title, pixels.
    property int imageTitleSpacing: 16
    // Where the picture is an icon: its colour.
    property string svgColorSetName: ""
    property string titleColorSetName: "label-primary-text"
    property string subtitleColorSetName: "label-secondary-text"
    // Around the whole, pixels.
    property int padding: 24
    readonly property real availableWidth: Math.max(0, width - 2 * padding)
    readonly property real contentWidth: Math.max(picture.width, titleText.implicitWidth, subtitleText.preferredWidth)

    // Whole pixels of the screen: the border is as thin on every side.
    implicitWidth: Math.ceil((2 * padding + contentWidth) * Screen.devicePixelRatio) / Screen.devicePixelRatio
    implicitHeight: 2 * padding + Math.ceil(content.implicitHeight)

    Column {
        id: content

        x: root.padding
        y: Math.round((root.height - height) / 2)
        width: root.availableWidth

        Loader {
            id: picture

            readonly property real side: root.svgImageName === "" ? 0 : root.svgImageSize

            anchors.horizontalCenter: parent.horizontalCenter
            width: side
            height: side
            active: root.svgImageName !== ""
            sourceComponent: root.svgColorSetName === "" ? image : icon
        }
        Item {
            width: 1
            height: picture.active && (titleText.visible || subtitleText.visible) ? root.imageTitleSpacing : 0
        }
        WText {
            id: titleText

            width: parent.width
            visible: !empty
            text: root.title
            textColorSetName: root.titleColorSetName
            font: FontConstants.subheaderPrimary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Item {
            width: 1
            height: titleText.visible && subtitleText.visible ? 4 : 0
        }
        WText {
            id: subtitleText

            readonly property real preferredWidth: Math.min(implicitWidth, root.subTitleExtraWidth
                                                           + Math.max(picture.width, titleText.implicitWidth))

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(Math.ceil(preferredWidth), root.availableWidth)
            visible: !empty
            text: root.subtitle
            textColorSetName: root.subtitleColorSetName
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
    Component {
        id: image

        WSvgImage {
            svgName: root.svgImageName
            asynchronous: root.svgAsynchronous
        }
    }
    Component {
        id: icon

        WSvgIcon {
            svgName: root.svgImageName
            svgColorSetName: root.svgColorSetName
        }
    }
}
