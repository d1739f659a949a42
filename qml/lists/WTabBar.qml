// A row of tabs, one of which is the current one. Left, Right, Home and End choose the tab; where the tabs do not fit,
// they scroll.
//
//     WTabBar {
//         WTabButton { text: "Messages" }
//         WTabButton { text: "Files" }
//         onCurrentIndexChanged: pages.currentIndex = currentIndex
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

T.TabBar {
    id: control

    property string backgroundColorSetName: ""
    // Of the corners, pixels.
    property real radius: 0
    property string borderColorSetName: ""
    property int borderWidth: 1
    property var themeType: App.themeMode
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)

    // Chooses the next tab from `start` that can be chosen, in steps of `step`, and gives it the focus.
    function moveTo(start: int, step: int): void {
        for (let i = start; i >= 0 && i < count; i += step) {
            if (itemAt(i).enabled) {
                setCurrentIndex(i);
                itemAt(i).forceActiveFocus(Qt.TabFocusReason);
                return;
            }
        }
    }

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    spacing: 4

    Keys.onPressed: event => {
        const next = mirrored ? -1 : 1;
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left:
            moveTo(currentIndex - next, -next);
            break;
        case Qt.Key_Right:
            moveTo(currentIndex + next, next);
            break;
        case Qt.Key_Home:
            moveTo(0, 1);
            break;
        case Qt.Key_End:
            moveTo(count - 1, -1);
            break;
        default:
            event.accepted = false;
        }
    }

    contentItem: ListView {
        id: view

        function showCurrent(): void {
            positionViewAtIndex(control.currentIndex, ListView.Contain);
        }

        LayoutMirroring.enabled: control.mirrored
        model: control.contentModel
        // A current item of the view would take the focus.
        currentIndex: -1
        spacing: control.spacing
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width
        clip: interactive
        keyNavigationEnabled: false

        onWidthChanged: showCurrent()
        Component.onCompleted: showCurrent()

        WScrollHelper {
            parent: view
            anchors.fill: parent
            flickable: view
        }
        Connections {
            target: control

            function onCurrentIndexChanged(): void {
                view.showCurrent();
            }
        }
    }
    background: Rectangle {
        radius: control.radius
        color: ThemeUtils.getColor(control, control.backgroundColorSet)
        border.width: control.borderColorSetName === "" ? 0 : control.borderWidth
        border.color: ThemeUtils.getColor(control, control.borderColorSet)
    }
}
