// A slider, horizontal or vertical, by mouse, wheel and keyboard. It will not be supported: use LKSlider.
//
//     WSlider {
//         to: 100
//         stepSize: 1
//         value: audio.volume
//         onMoved: audio.volume = value
//     }
import LumakitQml.Private 1.0

// Sizes, steps, tooltip and the ring's colour set are the template's.
SliderTemplate {
    id: control

    property alias sliderHandle: control.handle
    readonly property alias isHorizontal: control.horizontal
    // The bar up to the handle.
    property alias sliderFullColorSetName: control.fullColor.colorSetName
    // The bar beyond the handle.
    property alias sliderEmptyColorSetName: control.emptyColor.colorSetName
    property alias sliderHandleColorSetName: control.handleColor.colorSetName
    property alias sliderHandleBorderColorSetName: control.borderColor.colorSetName
    property alias themeType: control.fullColor.themeType
    property alias sliderFullColorSet: control.fullColor.colorSet
    property alias sliderEmptyColorSet: control.emptyColor.colorSet
    property alias sliderHandleColorSet: control.handleColor.colorSet
    property alias sliderHandleBorderColorSet: control.borderColor.colorSet

    fullColor.colorSetName: "toggle-toggled-background"
    emptyColor.colorSetName: "spinner-progress-track"
    handleColor.colorSetName: "toggle-toggled-background"
    borderColor.colorSetName: "toggle-toggled-border"
}
