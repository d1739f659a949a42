// A slider, horizontal or vertical, by mouse, wheel and keyboard, that shows its value while it is dragged.
//
//     LKSlider {
//         to: 100
//         stepSize: 1
//         value: audio.volume
//         onMoved: audio.volume = value
//     }
import QtQuick
import LumakitQml.Private 1.0

// Sizes, steps, tooltip and the ring's colour set are the template's.
SliderTemplate {
    id: control

    property alias themeType: control.fullColor.themeType
    // The smallest value stands on the right, also where the layout goes from left to right.
    property bool rightToLeft: false
    // The accessible name.
    property string accessibleText: ""
    // The bar up to the handle, and beyond it.
    property alias fullColorSetName: control.fullColor.colorSetName
    property alias emptyColorSetName: control.emptyColor.colorSetName
    property alias handleColorSetName: control.handleColor.colorSetName
    property alias borderColorSetName: control.borderColor.colorSetName
    property alias fullColorSet: control.fullColor.colorSet
    property alias emptyColorSet: control.emptyColor.colorSet
    property alias handleColorSet: control.handleColor.colorSet
    property alias borderColorSet: control.borderColor.colorSet

    fullColor.colorSetName: "toggle-toggled-background"
    emptyColor.colorSetName: "separator-primary"
    handleColor.colorSetName: "toggle-toggled-background"
    borderColor.colorSetName: "toggle-toggled-border"

    onAccessibleTextChanged: Accessible.name = accessibleText
    // Without it the direction is that of the surroundings; a reset alone takes it only when it changes there.
    onRightToLeftChanged: {
        LayoutMirroring.enabled = rightToLeft || (parent?.LayoutMirroring.enabled ?? false);
        if (!rightToLeft)
            LayoutMirroring.enabled = undefined;
    }
}
