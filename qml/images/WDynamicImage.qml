// A picture that changes: the present one stays until the next one is loaded, without a gap between them.
//
//     WDynamicImage {
//         width: 160
//         height: 90
//         image: "image://preview/" + frameNumber
//     }
import QtQuick

Item {
    id: root

    // The picture's address: a file, a resource, an image provider or the web.
    property url image: ""
    // Whether it is loaded in the background.
    property alias asynchronous: picture.asynchronous
    // How the picture fills the item: a fill mode of Image.
    property alias fillMode: picture.fillMode
    // That of the picture: Image.Null, Ready, Loading or Error.
    readonly property alias status: picture.status

    implicitWidth: picture.implicitWidth
    implicitHeight: picture.implicitHeight

    WImage {
        id: picture

        // Not by anchors: they take effect after the first request, and would make a second one.
        width: root.width
        height: root.height
        source: root.image
        sourceSizeStep: 128
        asynchronous: true
        retainWhileLoading: true
        fillMode: Image.PreserveAspectFit
        hasSpinner: implicitWidth === 0 // the first picture is still to come
    }
}
