// Two icon buttons in one frame, side by side or one above the other, such as those that zoom in and out.
//
//     WSvgSplitIconButton {
//         horizontalLayout: false
//         leftButton.iconName: "zoom-in"
//         leftButton.tooltip: "Zoom in"
//         rightButton.iconName: "zoom-out"
//         rightButton.tooltip: "Zoom out"
//         onLeftClicked: view.zoom(1)
//         onRightClicked: view.zoom(-1)
//     }
import QtQuick

WFrame {
    id: root

    property alias rightButton: right
    // The upper one if they stand one above the other.
    property alias leftButton: left
    property alias rightChecked: right.checked
    property alias leftChecked: left.checked
    property string cellBackgroundColorSetName: "dualbutton-standard-button-background"
    property string iconColorSetName: "dualbutton-standard-button-text"
    property string cellBorderColorSetName: ""
    // Whether a line stands between the buttons.
    property bool separator: true
    property bool horizontalLayout: true
    // Whether Tab stops at both buttons; otherwise it stops at the left one, and the arrows go to the other.
    property bool processTabFocus: true
    // Between the frame and the buttons, pixels.
    property int contentPadding: 2
    // The length of the line between the buttons, pixels.
    property int splitHeight: 16
    property string separatorColorSetName: "button-group-separator-background"

    signal leftClicked
    signal rightClicked

    implicitWidth: grid.implicitWidth + 2 * contentPadding
    implicitHeight: grid.implicitHeight + 2 * contentPadding
    radius: 8
    backgroundColorSetName: "dualbutton-standard-background"
    borderColorSetName: "dualbutton-standard-border"

    component Cell: WSvgIconButton {
        implicitHeight: 28
        isRectangle: true
        radius: 6
    }

    Grid {
        id: grid

        anchors.centerIn: parent
        columns: root.horizontalLayout ? 3 : 1
        spacing: 2
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        Cell {
            id: left

            backgroundColorSetName: root.cellBackgroundColorSetName
            borderColorSetName: root.cellBorderColorSetName
            iconColorSetName: root.iconColorSetName
            KeyNavigation.right: root.horizontalLayout ? right : null
            KeyNavigation.down: root.horizontalLayout ? null : right

            onTriggered: root.leftClicked()
        }
        Item {
            visible: root.separator
            width: root.horizontalLayout ? 1 : root.splitHeight
            height: root.horizontalLayout ? root.splitHeight : 1

            WSeparator {
                width: root.horizontalLayout ? thickness : parent.width
                height: root.horizontalLayout ? parent.height : thickness
                backgroundColorSetName: root.separatorColorSetName
                Accessible.ignored: true
            }
        }
        Cell {
            id: right

            focusPolicy: root.processTabFocus ? Qt.StrongFocus : Qt.ClickFocus
            backgroundColorSetName: root.cellBackgroundColorSetName
            borderColorSetName: root.cellBorderColorSetName
            iconColorSetName: root.iconColorSetName

            onTriggered: root.rightClicked()
        }
    }
}
