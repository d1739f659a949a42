// A blurred shadow of any item, drawn by a shader and kept until the item changes. Where the scene graph draws no
// shaders there is none, so the item itself stays visible. For rectangles, WDropShadowRect is cheaper.
//
//     WDropShadow {
//         anchors.fill: logo
//         source: logo
//     }
import QtQuick
import Qt5Compat.GraphicalEffects
import Corvane 1.0
import LumakitQml 1.0

DropShadow {
    id: root

    property var themeType: App.themeMode
    property string shadowColorSetName: "overlayFade-secondary-background-normal"
    property var shadowColorSet: themeType === undefined ? null : App.getColorSet(shadowColorSetName)

    visible: Utils.supportsLayers()
    radius: 8
    samples: 17
    verticalOffset: 2
    color: shadowColorSet.normal
    cached: true
}
