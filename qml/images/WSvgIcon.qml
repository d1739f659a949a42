// An icon of the host's resources, painted in one colour.
//
//     WSvgIcon {
//         svgName: "settings-bold"
//         svgColorSetName: "label-primary-text"
//     }
import QtQuick
import Corvane 1.0

WSvgImage {
    property var themeType: App.themeMode
    property string svgColorSetName: "label-primary-text"
    property var svgColorSet: themeType === undefined ? null : App.getColorSet(svgColorSetName)
    // The icon's colour: that of the colour set at rest. Bind it to follow a control's state.
    property color svgColor: svgColorSet?.isValid ? svgColorSet.normal : "transparent"
    // The colour as it stands in the source, with its alpha.
    readonly property string sourceColor: svgColor.toString()

    width: 24
    height: 24
    source: svgName === "" || width < 1 || height < 1 || svgColor.a === 0
            ? "" : "image://svg/" + sourceColor + "/" + svgName
    // Never empty, also not while only one of the sides has changed yet: the provider would complain.
    sourceSize: Qt.size(Math.max(1, width), Math.max(1, height))
}
