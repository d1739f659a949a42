// A picture of the host's resources in its own colours, by name: ":/Resources/<svgName>.svg". It is drawn for the size
// that it has; without a size it has that of the file.
//
//     WSvgImage {
//         width: 120
//         height: 120
//         svgName: "logo"
//     }
import QtQuick

// `svgName` is the template's; without a name nothing is shown.
WImage {
    fillMode: Image.PreserveAspectFit
}
