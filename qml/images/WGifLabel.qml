pragma ComponentBehavior: Bound

// A short text beside an animated image, in a frame.
//
//     WGifLabel {
//         text: "Recording"
//         gifSource: "qrc:/Pictures/recording.gif"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0

WFrame {
    id: root

    // Plain text; it elides where the width is limited.
    property string text: ""
    // Without one the text stands alone.
    property url gifSource: ""
    // Pixels.
    property int gifHeight: 20
    property int gifWidth: 20
    // Around image and text and between them, pixels.
    property int padding: 8
    property string textColorSetName: "label-primary-text"
    property font font: FontConstants.bodySecondary
    readonly property bool hasGif: gifSource.toString() !== ""
    readonly property real gifSpace: (hasGif ? gifWidth : 0) + (hasGif && text !== "" ? padding : 0)

    // Whole pixels of the screen: the border is as thin on every side.
    implicitWidth: Math.ceil((2 * padding + gifSpace + label.implicitWidth) * Screen.devicePixelRatio)
                   / Screen.devicePixelRatio
    implicitHeight: 2 * padding + Math.max(hasGif ? gifHeight : 0, Math.ceil(label.implicitHeight))
    radius: 4

    Loader {
        id: gif

        anchors.left: parent.left
        anchors.leftMargin: root.padding
        anchors.verticalCenter: parent.verticalCenter
        active: root.hasGif
        sourceComponent: AnimatedImage {
            width: root.gifWidth
            height: root.gifHeight
            source: root.gifSource
            fillMode: Image.PreserveAspectFit
            playing: !App.animationsDisabled()
            paused: !visible
        }
    }
    WText {
        id: label

        anchors.left: gif.right
        anchors.leftMargin: root.hasGif ? root.padding : 0
        anchors.right: parent.right
        anchors.rightMargin: root.padding
        anchors.verticalCenter: parent.verticalCenter
        visible: !empty
        text: root.text
        textColorSetName: root.textColorSetName
        controlsTarget: root
        font: root.font
        elide: Text.ElideRight
    }
}
