// An icon that turns while something is on its way. It stands still while it cannot be seen, and where the system asks
// for no animations.
//
//     WSvgSpinner {
//         anchors.centerIn: parent
//         visible: request.running
//     }
import QtQuick
import Corvane 1.0

Image {
    id: root

    // The time of one turn, milliseconds; 0 stands still.
    property int rotateDuration: 1000
    property var themeType: App.themeMode
    property string svgName: "spinner"
    property string svgColorSetName: "spinner-loading-cursor"
    property var svgColorSet: themeType === undefined ? null : App.getColorSet(svgColorSetName)
    property color svgColor: svgColorSet?.isValid ? svgColorSet.normal : "transparent"
    readonly property bool isRotating: visible && rotateDuration > 0 && Window.visibility !== Window.Hidden
                                       && Window.visibility !== Window.Minimized && !App.animationsDisabled()

    width: 24
    height: 24
    source: svgName === "" || width < 1 || height < 1 || svgColor.a === 0
            ? "" : "image://svg/" + svgColor + "/" + svgName
    // Never empty, also not while only one of the sides has changed yet: the provider would complain.
    sourceSize: Qt.size(Math.max(1, width), Math.max(1, height))
    fillMode: Image.PreserveAspectFit

    RotationAnimator {
        target: root
        running: root.isRotating
        from: 0
        to: 360
        duration: Math.max(1, root.rotateDuration)
        loops: Animation.Infinite
    }
}
