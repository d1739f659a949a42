pragma ComponentBehavior: Bound

// A slider, horizontal or vertical, by mouse, wheel and keyboard. It will not be supported: use LKSlider.
//
//     WSlider {
//         to: 100
//         stepSize: 1
//         value: audio.volume
//         onMoved: audio.volume = value
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.Slider {
    id: control

    property alias sliderHandle: control.handle
    readonly property bool isHorizontal: horizontal
    // Pixels.
    property int handleWidth: 16
    property int barThickness: 4
    // The bar up to the handle.
    property string sliderFullColorSetName: "toggle-toggled-background"
    // The bar beyond the handle.
    property string sliderEmptyColorSetName: "spinner-progress-track"
    property string sliderHandleColorSetName: "toggle-toggled-background"
    property string sliderHandleBorderColorSetName: "toggle-toggled-border"
    property real handleX: leftPadding + Math.round((horizontal ? visualPosition : 0.5) * (availableWidth - handleWidth))
    property real handleY: topPadding + Math.round((horizontal ? 0.5 : visualPosition) * (availableHeight - handleWidth))
    property real handleRadius: handleWidth / 2
    // Shown at the handle while it is dragged or has the keyboard's focus.
    property string tooltip: value.toLocaleString(locale, "f", decimals)
    // Of the value in the tooltip.
    property int decimals: Math.abs(to - from) > 2 ? 0 : 2
    // How far PageUp and PageDown go.
    property real pageSize: Math.max(stepSize, Math.abs(to - from) / 10)
    // What a screen reader tells of the range.
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    property string focusColorSetName: "global-focus-outline"
    property var themeType: App.themeMode
    property var sliderFullColorSet: themeType === undefined ? null : App.getColorSet(sliderFullColorSetName)
    property var sliderEmptyColorSet: themeType === undefined ? null : App.getColorSet(sliderEmptyColorSetName)
    property var sliderHandleColorSet: themeType === undefined ? null : App.getColorSet(sliderHandleColorSetName)
    property var sliderHandleBorderColorSet: themeType === undefined ? null
                                                                    : App.getColorSet(sliderHandleBorderColorSetName)

    // As the user would: along the steps, with moved(), and without undoing a binding of the value.
    function moveTo(wanted: real): void {
        const before = value;
        const setter = valueSetter.createObject(control, {
            "value": stepSize > 0 ? from + Math.round((wanted - from) / stepSize) * stepSize : wanted
        }) as PropertyAction;
        setter.start();
        setter.destroy();
        if (value !== before)
            moved();
    }

    // What a screen reader calls.
    function accessibleIncreaseAction(): void {
        if (enabled)
            moveTo(value + (from > to ? -stepSize : stepSize));
    }

    function accessibleDecreaseAction(): void {
        if (enabled)
            moveTo(value - (from > to ? -stepSize : stepSize));
    }

    implicitWidth: (horizontal ? 160 : Math.max(handleWidth, barThickness)) + leftPadding + rightPadding
    implicitHeight: (horizontal ? Math.max(handleWidth, barThickness) : 160) + topPadding + bottomPadding
    padding: 4
    stepSize: Math.abs(to - from) / 100
    hoverEnabled: true
    wheelEnabled: true
    focusPolicy: Qt.StrongFocus

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Home:
            moveTo(from);
            break;
        case Qt.Key_End:
            moveTo(to);
            break;
        case Qt.Key_PageUp:
            moveTo(value + (from > to ? -pageSize : pageSize));
            break;
        case Qt.Key_PageDown:
            moveTo(value - (from > to ? -pageSize : pageSize));
            break;
        default:
            event.accepted = false;
        }
    }

    handle: Rectangle {
        id: knob

        x: control.handleX
        y: control.handleY
        implicitWidth: control.handleWidth
        implicitHeight: control.handleWidth
        radius: control.handleRadius
        color: ThemeUtils.getColor(control, control.sliderHandleColorSet)
        border.width: 1
        border.color: ThemeUtils.getColor(control, control.sliderHandleBorderColorSet)

        Loader {
            active: control.tooltip !== "" && (control.pressed || control.visualFocus)
            sourceComponent: WToolTip {
                parent: knob
                visible: true
                text: control.tooltip
            }
        }
    }
    background: Rectangle {
        x: control.leftPadding + (control.horizontal ? 0 : Math.round((control.availableWidth - width) / 2))
        y: control.topPadding + (control.horizontal ? Math.round((control.availableHeight - height) / 2) : 0)
        width: control.horizontal ? control.availableWidth : control.barThickness
        height: control.horizontal ? control.barThickness : control.availableHeight
        radius: control.barThickness / 2
        color: ThemeUtils.getColor(control, control.sliderEmptyColorSet)

        Rectangle {
            x: control.horizontal && control.mirrored ? parent.width - width : 0
            y: parent.height - height
            width: control.horizontal ? Math.round(control.position * parent.width) : parent.width
            height: control.horizontal ? parent.height : Math.round(control.position * parent.height)
            radius: parent.radius
            color: ThemeUtils.getColor(control, control.sliderFullColorSet)
            border.width: 1
            border.color: ThemeUtils.getColor(control, control.sliderHandleBorderColorSet)
        }
    }

    Component {
        id: valueSetter

        PropertyAction {
            target: control
            property: "value"
        }
    }
    FocusRing {
        around: control.handle
        radius: control.handleRadius
        colorSetName: control.focusColorSetName
    }
}
