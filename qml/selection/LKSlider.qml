pragma ComponentBehavior: Bound

// A slider, horizontal or vertical, by mouse, wheel and keyboard, that shows its value while it is dragged.
//
//     LKSlider {
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

    // Pixels.
    property int handleWidth: 16
    property int barThickness: 4
    property real handleRadius: handleWidth / 2
    // Shown at the handle while it is dragged or has the keyboard's focus; nothing is, if empty.
    property string tooltip: value.toLocaleString(locale, "f", decimals)
    property var themeType: App.themeMode
    // The smallest value stands on the right, also where the layout goes from left to right.
    property bool rightToLeft: false
    // The accessible name: what is set here, and what a screen reader tells of the range.
    property string accessibleText: ""
    readonly property real minimumValue: from
    readonly property real maximumValue: to
    // Of the value in the tooltip.
    property int decimals: Math.abs(to - from) > 2 ? 0 : 2
    // How far an arrow and how far PageUp and PageDown go.
    property real keyStep: stepSize > 0 ? stepSize : Math.abs(to - from) / 100
    property real pageSize: Math.max(keyStep, Math.abs(to - from) / 10)
    // The bar up to the handle, and beyond it.
    property string fullColorSetName: "toggle-toggled-background"
    property string emptyColorSetName: "separator-primary"
    property string handleColorSetName: "toggle-toggled-background"
    property string borderColorSetName: "toggle-toggled-border"
    property string focusColorSetName: "global-focus-outline"
    property var fullColorSet: themeType === undefined ? null : App.getColorSet(fullColorSetName)
    property var emptyColorSet: themeType === undefined ? null : App.getColorSet(emptyColorSetName)
    property var handleColorSet: themeType === undefined ? null : App.getColorSet(handleColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)

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

    // Towards the end of the range, backwards if negative.
    function moveBy(distance: real): void {
        moveTo(value + (from > to ? -distance : distance));
    }

    // What a screen reader calls.
    function accessibleIncreaseAction(): void {
        if (enabled)
            moveBy(keyStep);
    }

    function accessibleDecreaseAction(): void {
        if (enabled)
            moveBy(-keyStep);
    }

    implicitWidth: (horizontal ? 160 : Math.max(handleWidth, barThickness)) + leftPadding + rightPadding
    implicitHeight: (horizontal ? Math.max(handleWidth, barThickness) : 160) + topPadding + bottomPadding
    padding: 4
    stepSize: Math.abs(to - from) / 100
    hoverEnabled: true
    wheelEnabled: true
    focusPolicy: Qt.StrongFocus

    // Without it the direction is that of the surroundings; a reset alone takes it only when it changes there.
    onRightToLeftChanged: {
        LayoutMirroring.enabled = rightToLeft || (parent?.LayoutMirroring.enabled ?? false);
        if (!rightToLeft)
            LayoutMirroring.enabled = undefined;
    }

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
            moveBy(pageSize);
            break;
        case Qt.Key_PageDown:
            moveBy(-pageSize);
            break;
        case Qt.Key_Up:
            moveBy(keyStep);
            break;
        case Qt.Key_Down:
            moveBy(-keyStep);
            break;
        case Qt.Key_Left:
            moveBy(mirrored && horizontal ? keyStep : -keyStep);
            break;
        case Qt.Key_Right:
            moveBy(mirrored && horizontal ? -keyStep : keyStep);
            break;
        default:
            event.accepted = false;
        }
    }

    Accessible.name: accessibleText

    handle: Rectangle {
        id: knob

        x: control.leftPadding + Math.round((control.horizontal ? control.visualPosition : 0.5)
                                            * (control.availableWidth - width))
        y: control.topPadding + Math.round((control.horizontal ? 0.5 : control.visualPosition)
                                           * (control.availableHeight - height))
        implicitWidth: control.handleWidth
        implicitHeight: control.handleWidth
        radius: control.handleRadius
        color: ThemeUtils.getColor(control, control.handleColorSet)
        border.width: 1
        border.color: ThemeUtils.getColor(control, control.borderColorSet)

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
        color: ThemeUtils.getColor(control, control.emptyColorSet)

        Rectangle {
            x: control.horizontal && control.mirrored ? parent.width - width : 0
            y: parent.height - height
            width: control.horizontal ? Math.round(control.position * parent.width) : parent.width
            height: control.horizontal ? parent.height : Math.round(control.position * parent.height)
            radius: parent.radius
            color: ThemeUtils.getColor(control, control.fullColorSet)
            border.width: 1
            border.color: ThemeUtils.getColor(control, control.borderColorSet)
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
