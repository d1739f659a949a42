pragma ComponentBehavior: Bound

// A scroll bar. A press beside its handle scrolls by pages up to where it was pressed; buttons at its ends, if they are
// shown, scroll by steps.
//
//     ListView {
//         T.ScrollBar.vertical: LKScrollBar {}
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

T.ScrollBar {
    id: control

    // Whether there is a button at each end.
    property bool arrowVisible: false
    property var themeType: App.themeMode
    // The bar's size where what it stands in gives it none, pixels.
    property real scrollHeight: isHorizontal ? UiConstants.ScrollbarSize : 96
    property real scrollWidth: isHorizontal ? 96 : UiConstants.ScrollbarSize
    readonly property bool isHorizontal: horizontal
    // How often a step or page is repeated while the mouse is pressed, milliseconds.
    property int timerInterval: 50
    // Where the bar is pressed beside its handle, from 0 to 1 of the way between its buttons; -1 while it is not.
    property real originalLocationPercent: -1
    // Whether what is pressed scrolls back: up or to the left.
    property bool isUp: false
    property string trackColorSetName: "scrollbar-track-background"
    property string handleColorSetName: "scrollbar-thumb-background"
    property string arrowBackgroundColorSetName: "scrollbar-arrow-button-background"
    property string arrowColorSetName: "scrollbar-arrow-button-text"
    property var trackColorSet: themeType === undefined ? null : App.getColorSet(trackColorSetName)
    property var handleColorSet: themeType === undefined ? null : App.getColorSet(handleColorSetName)
    property var arrowBackgroundColorSet: themeType === undefined ? null : App.getColorSet(arrowBackgroundColorSetName)
    property var arrowColorSet: themeType === undefined ? null : App.getColorSet(arrowColorSetName)
    // Pixels.
    property int handleThickness: 8
    readonly property real thickness: isHorizontal ? height : width
    readonly property real arrowRoom: arrowVisible ? thickness : 0
    readonly property real trackLength: Math.max(0, (isHorizontal ? width : height) - 2 * arrowRoom)
    readonly property real sidePadding: Math.max(0, Math.round((thickness - handleThickness) / 2))

    // Begins a moment after the press.
    component Repetition: Timer {
        property bool isHeld: false
        property int period: 50
        property bool isRepeating: false

        interval: isRepeating ? period : 300
        running: isHeld
        repeat: true

        onIsHeldChanged: isRepeating = false
        onTriggered: isRepeating = true
    }

    // Scrolls by a part of the content, back if negative, as far as there is something to see.
    function scrollBy(part: real): void {
        position = Math.max(0, Math.min(1 - size, position + part));
    }

    function step(): void {
        const length = stepSize > 0 ? stepSize : size / 8;
        scrollBy(isUp ? -length : length);
    }

    // Ends where the handle has come to the place of the press.
    function page(): void {
        const isReached = isUp ? visualPosition <= originalLocationPercent
                               : visualPosition + visualSize >= originalLocationPercent;
        if (!isReached)
            scrollBy(isUp ? -size : size);
    }

    implicitWidth: scrollWidth
    implicitHeight: scrollHeight
    horizontalPadding: isHorizontal ? arrowRoom : sidePadding
    verticalPadding: isHorizontal ? sidePadding : arrowRoom
    minimumSize: Math.min(1, 24 / Math.max(1, trackLength))
    visible: policy === T.ScrollBar.AlwaysOn || policy === T.ScrollBar.AsNeeded && size < 1
    hoverEnabled: true

    Accessible.focusable: false

    contentItem: Rectangle {
        radius: Math.min(width, height) / 2
        color: ThemeUtils.getColor(control, control.handleColorSet)
    }
    background: Rectangle {
        color: ThemeUtils.getColor(control, control.trackColorSet)
    }

    MouseArea {
        id: track

        x: control.isHorizontal ? control.arrowRoom : 0
        y: control.isHorizontal ? 0 : control.arrowRoom
        width: control.isHorizontal ? control.trackLength : control.width
        height: control.isHorizontal ? control.height : control.trackLength
        enabled: control.interactive

        onPressed: mouse => {
            const place = (control.isHorizontal ? mouse.x : mouse.y) / control.trackLength;
            const isBeyond = place > control.visualPosition + control.visualSize;
            mouse.accepted = place < control.visualPosition || isBeyond; // a press of the handle is the bar's
            if (!mouse.accepted)
                return;
            control.originalLocationPercent = place;
            control.isUp = !isBeyond;
            control.page();
        }
        onReleased: control.originalLocationPercent = -1
        onCanceled: control.originalLocationPercent = -1
        onWheel: wheel => control.scrollBy((wheel.angleDelta.x - wheel.angleDelta.y) / 600 * control.size)

        Repetition {
            period: control.timerInterval
            isHeld: track.pressed
            onTriggered: control.page()
        }
    }
    Repeater {
        model: control.arrowVisible ? [true, false] : []

        MouseArea {
            id: arrow

            required property bool modelData
            readonly property real end: (control.isHorizontal ? control.width : control.height) - control.thickness
            readonly property var look: ({ enabled: control.enabled, pressed: pressed, hovered: containsMouse })

            x: control.isHorizontal && !modelData ? end : 0
            y: control.isHorizontal || modelData ? 0 : end
            width: control.thickness
            height: control.thickness
            enabled: control.interactive
            hoverEnabled: true

            onPressed: {
                control.isUp = modelData;
                control.step();
            }

            Rectangle {
                anchors.fill: parent
                color: ThemeUtils.getColor(arrow.look, control.arrowBackgroundColorSet)
            }
            WSvgIcon {
                anchors.centerIn: parent
                width: 2 * Math.round(control.thickness * 0.375)
                height: width
                svgName: control.isHorizontal ? (arrow.modelData ? "chevron-left-bold" : "chevron-right-bold")
                                              : (arrow.modelData ? "chevron-up-bold" : "chevron-down-bold")
                svgColor: ThemeUtils.getColor(arrow.look, control.arrowColorSet)
            }
            Repetition {
                period: control.timerInterval
                isHeld: arrow.pressed
                onTriggered: control.step()
            }
        }
    }
}
