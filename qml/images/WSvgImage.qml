// A picture of the host's resources in its own colours, by name: ":/Resources/<svgName>.svg". It is drawn for the size
// that it has; without a size it has that of the file.
//
//     WSvgImage {
//         width: 120
//         height: 120
//         svgName: "logo"
//     }
import QtQuick

WImage {
    // Without a name nothing is shown.
    property string svgName: ""

    source: svgName === "" ? "" : "qrc:/Resources/" + svgName + ".svg"
    sourceSize: Qt.size(width, height)
    fillMode: Image.PreserveAspectFit
}
