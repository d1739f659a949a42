pragma ComponentBehavior: Bound

// A picture that covers the whole item, cropped where the proportions differ; a plain background where there is none.
//
//     WCoverImage {
//         width: 320
//         height: 120
//         image: space.coverUrl
//     }
import QtQuick

Item {
    id: root

    // An object whose `image` is the picture's address; null without.
    property var controller: null
    // The picture's address, that of the controller if it is not set.
    property url image: controller?.image ?? ""
    // Whether it is loaded in the background.
    property alias asynchronous: picture.asynchronous
    // What is shown where there is no picture.
    property string backgroundColorSetName: "card-inactive-background"
    // That of the picture: Image.Null, Ready, Loading or Error.
    readonly property alias status: picture.status

    implicitWidth: 320
    implicitHeight: 120
    clip: true

    Loader {
        anchors.fill: parent
        active: picture.implicitWidth === 0
        sourceComponent: WRectangle {
            backgroundColorSetName: root.backgroundColorSetName
        }
    }
    WImage {
        id: picture

        // Not by anchors: they take effect after the first request, and would make a second one.
        width: root.width
        height: root.height
        source: root.image
        sourceSizeStep: 128
        asynchronous: true
        retainWhileLoading: true
        fillMode: Image.PreserveAspectCrop
        hasSpinner: implicitWidth === 0
    }
}
