// A tab of a DTabBar: the current one is filled and underlined.
//
//     DTabBar {
//         DTabButton { text: "General" }
//         DTabButton { text: "Audio" }
//     }
import "ThemeUtils.js" as ThemeUtils

WTabButton {
    id: control

    implicitHeight: Math.max(32, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)

    backgroundItem.color: ThemeUtils.getColor(control, backgroundColorSet)
}
