// A scroll bar that fades while nothing scrolls. A click beside its handle scrolls by a page. It will be removed: use
// LKScrollBar.
//
//     ListView {
//         T.ScrollBar.vertical: DScrollBar {}
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

T.ScrollBar {
    id: control

    // Of the bar and of its handle, pixels.
    property int thickness: UiConstants.ScrollbarSize
    property int handleThickness: 8
    property real handleRadius: handleThickness / 2
    property var themeType: App.themeMode
    property string backgroundColorSetName: "scrollbar-track-background"
    property string handlerColorSetName: "scrollbar-thumb-background"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var handleColorSet: themeType === undefined ? null : App.getColorSet(handlerColorSetName)
    // The bar's size where what it stands in gives it none, pixels.
    property real scrollHeight: isHorizontal ? thickness : 96
    property real scrollWidth: isHorizontal ? 96 : thickness
    readonly property bool isHorizontal: horizontal
    // How long after the last movement the bar fades, milliseconds; 0 or less keeps it shown.
    property int timerInterval: 1000
    readonly property real length: isHorizontal ? width : height
    readonly property bool isShown: policy === T.ScrollBar.AlwaysOn
                                    || size < 1 && (active || timerInterval <= 0 || idleTimer.running)

    // Scrolls by that many pages, back if negative.
    function scrollByPages(pages: real): void {
        position = Math.max(0, Math.min(1 - size, position + pages * size));
    }

    implicitWidth: scrollWidth
    implicitHeight: scrollHeight
    padding: Math.max(0, (thickness - handleThickness) / 2)
    minimumSize: Math.min(1, 24 / Math.max(1, length))
    visible: policy !== T.ScrollBar.AlwaysOff
    hoverEnabled: true

    Accessible.focusable: false

    onActiveChanged: idleTimer.restart()
    onPositionChanged: idleTimer.restart()

    contentItem: Rectangle {
        id: handle

        radius: control.handleRadius
        opacity: 0
        color: ThemeUtils.getColor(control, control.handleColorSet)
    }
    background: Rectangle {
        opacity: handle.opacity
        color: ThemeUtils.getColor(control, control.backgroundColorSet)
    }

    MouseArea {
        id: track

        // From the handle to the cursor: -1 back, 1 forth, 0 on the handle.
        function direction(): int {
            const cursor = control.isHorizontal ? mouseX - handle.x : mouseY - handle.y;
            return cursor < 0 ? -1 : cursor > (control.isHorizontal ? handle.width : handle.height) ? 1 : 0;
        }

        anchors.fill: parent
        enabled: control.interactive

        onPressed: mouse => {
            mouse.accepted = direction() !== 0;
            repeatTimer.interval = 300;
            control.scrollByPages(direction());
        }
        onWheel: wheel => control.scrollByPages((-wheel.angleDelta.x || -wheel.angleDelta.y) / 600)
    }
    Timer {
        id: repeatTimer

        running: track.pressed
        repeat: true
        onTriggered: {
            interval = 50;
            control.scrollByPages(track.direction());
        }
    }
    Timer {
        id: idleTimer

        interval: Math.max(0, control.timerInterval)
    }

    states: State {
        name: "shown"
        when: control.isShown

        PropertyChanges {
            handle.opacity: 1
        }
    }
    transitions: Transition {
        from: "shown"

        NumberAnimation {
            target: handle
            property: "opacity"
            duration: App.animationsDisabled() ? 0 : 150
        }
    }
}
