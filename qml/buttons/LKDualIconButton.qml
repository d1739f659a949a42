// Two round icon buttons in one frame, side by side or one above the other, such as those that zoom in and out. The
// arrow keys go from one to the other.
//
//     LKDualIconButton {
//         horizontal: false
//         leftButtonIcon: "plus-bold"
//         leftAccessibleName: "Zoom in"
//         rightButtonIcon: "minus-bold"
//         rightAccessibleName: "Zoom out"
//         leftButton.onClicked: map.zoom(1)
//         rightButton.onClicked: map.zoom(-1)
//     }
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0

RowLayout {
    id: root

    // In colours for what lies over pictures and videos.
    property bool isOverlay: false
    // Side by side; otherwise the left button stands above the right one.
    property bool horizontal: true
    // Names of icons; none without.
    property string leftButtonIcon: ""
    property string rightButtonIcon: ""
    property string leftAccessibleName: ""
    property string rightAccessibleName: ""
    property var themeType: App.themeMode
    property alias leftButton: left
    property alias rightButton: right
    property string backgroundColorSetName: isOverlay ? "dualbutton-overlay-background"
        : "dualbutton-standard-background"
    property string borderColorSetName: isOverlay ? "dualbutton-overlay-border" : "dualbutton-standard-border"
    property string buttonBackgroundColorSetName: isOverlay ? "dualbutton-overlay-button-background"
        : "dualbutton-standard-button-background"
    property string textColorSetName: isOverlay ? "dualbutton-overlay-button-text" : "dualbutton-standard-button-text"

    spacing: 0

    component Cell: LKRoundButton {
        required property string backgroundColorSetName
        required property string textColorSetName

        LKRoundButtonData.backgroundColorData.token: backgroundColorSetName
        LKRoundButtonData.textColorData.token: textColorSetName

        buttonStyle: LKButtonStyle.None
        buttonSize: LKButtonSize.XS
    }

    WFrame {
        implicitWidth: grid.implicitWidth + 4
        implicitHeight: grid.implicitHeight + 4
        radius: Math.min(width, height) / 2
        themeType: root.themeType
        backgroundColorSetName: root.backgroundColorSetName
        borderColorSetName: root.borderColorSetName

        Grid {
            id: grid

            anchors.centerIn: parent
            columns: root.horizontal ? 3 : 1
            spacing: 2
            horizontalItemAlignment: Grid.AlignHCenter
            verticalItemAlignment: Grid.AlignVCenter

            Cell {
                id: left

                themeType: root.themeType
                backgroundColorSetName: root.buttonBackgroundColorSetName
                textColorSetName: root.textColorSetName
                buttonIcon: root.leftButtonIcon
                KeyNavigation.right: root.horizontal ? right : null
                KeyNavigation.down: root.horizontal ? null : right
                Accessible.name: root.leftAccessibleName
            }
            Item {
                width: root.horizontal ? 1 : 16
                height: root.horizontal ? 16 : 1

                WSeparator {
                    width: root.horizontal ? thickness : parent.width
                    height: root.horizontal ? parent.height : thickness
                    themeType: root.themeType
                    backgroundColorSetName: root.borderColorSetName
                    Accessible.ignored: true
                }
            }
            Cell {
                id: right

                themeType: root.themeType
                backgroundColorSetName: root.buttonBackgroundColorSetName
                textColorSetName: root.textColorSetName
                buttonIcon: root.rightButtonIcon
                Accessible.name: root.rightAccessibleName
            }
        }
    }
}
