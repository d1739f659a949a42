// An icon of the host's resources by its name, painted in a colour, or a PNG of that name in its own colours.
//
//     LKSvgResource {
//         width: 24
//         height: 24
//         svgName: "settings"
//         svgColor: App.getColorSet("label-primary-text").normal
//         isEnabled: settings.available
//     }
import QtQuick
import Corvane 1.0

WImage {
    id: root

    property color svgColor: App.themeMode === undefined ? "transparent" : App.getColorSet("label-primary-text").normal
    // Of the file ":/Resources/<svgName>.svg" or ".png"; without a name nothing is shown.
    property string svgName: ""
    property bool isPng: false
    // Without it the icon is dimmed.
    property bool isEnabled: true
    // Where the icon and the PNG come from; empty while there is nothing to show.
    readonly property string svgResource: svgName === "" || width < 1 || height < 1 || svgColor.a === 0
                                          ? "" : "image://svg/" + svgColor + "/" + svgName
    readonly property string pngResource: svgName === "" ? "" : "qrc:/Resources/" + svgName + ".png"

    source: isPng ? pngResource : svgResource
    sourceSize: isPng ? undefined : Qt.size(width, height)
    fillMode: Image.PreserveAspectFit
    opacity: isEnabled ? 1 : 0.4
}
