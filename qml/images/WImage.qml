// An image that can show a spinner while it loads.
//
//     WImage {
//         source: "https://example.org/picture.png"
//         asynchronous: true
//         hasSpinner: true
//     }
import LumakitQml.Private 1.0

// `hasSpinner` and `isSpinnerVisible` are the template's.
ImageTemplate {
}
