// An image that can show a spinner while it loads.
//
//     WImage {
//         source: "https://example.org/picture.png"
//         asynchronous: true
//         hasSpinner: true
//     }
import QtQuick

Image {
    id: root

    // Whether a spinner stands in the image's place while that is loading.
    property bool hasSpinner: false
    readonly property bool isSpinnerVisible: hasSpinner && status === Image.Loading
    // The spinner while it is visible; most images never have one.
    property Item spinner: null

    // A source size for large pictures: the item's in device pixels, rounded up to steps, so that a change of size
    // rarely loads anew. Without a size the picture is loaded as it is.
    function sourceSizeInSteps(step: int): size {
        const ratio = Screen.devicePixelRatio;
        return Qt.size(Math.ceil(width * ratio / step) * step, Math.ceil(height * ratio / step) * step);
    }

    // No larger than the image, unless that has no size before it is loaded.
    function spinnerSize(): real {
        return width > 0 && height > 0 ? Math.min(24, width, height) : 24;
    }

    onIsSpinnerVisibleChanged: {
        if (isSpinnerVisible) {
            spinner = Qt.createComponent("WSvgSpinner.qml").createObject(root, {
                "anchors.centerIn": root,
                "width": Qt.binding(() => root.spinnerSize()),
                "height": Qt.binding(() => root.spinnerSize())
            }) as Item;
        } else if (spinner) {
            spinner.destroy();
        }
    }
}
