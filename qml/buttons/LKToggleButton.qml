// Two icon buttons in one pill of which one is on, such as a choice of list or grid. The left one is on at first. In a
// mirrored layout they change places; the arrow keys go from one to the other.
//
//     LKToggleButton {
//         leftButtonIcon: "list-bold"
//         leftAccessibleName: "List"
//         rightButtonIcon: "grid-bold"
//         rightAccessibleName: "Grid"
//         rightButton.checked: settings.showsGrid
//         rightButton.onCheckedChanged: settings.showsGrid = rightButton.checked
//     }
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0

RowLayout {
    id: root

    // Names of icons; none without.
    property string leftButtonIcon: ""
    property string rightButtonIcon: ""
    property string leftAccessibleName: ""
    property string rightAccessibleName: ""
    property var themeType: App.themeMode
    // Their `checked` says which one is on.
    property alias leftButton: left
    property alias rightButton: right

    spacing: 0

    component Half: LKRoundButton {
        LKRoundButtonData.backgroundColorData.token: "toggleButton-inactive-background"
        LKRoundButtonData.backgroundColorData.activeToken: "toggleButton-active-background"
        LKRoundButtonData.textColorData.token: "toggleButton-inactive-text"
        LKRoundButtonData.textColorData.activeToken: "toggleButton-active-text"
        LKRoundButtonData.borderColorData.token: checked ? "toggleButton-active-border" : ""

        implicitWidth: LKRoundButtonData.width + 8
        buttonStyle: LKButtonStyle.None
        buttonSize: LKButtonSize.XS
        checkable: true
        autoExclusive: true

        Accessible.role: Accessible.RadioButton
    }

    WFrame {
        implicitWidth: row.implicitWidth + 4
        implicitHeight: row.implicitHeight + 4
        radius: height / 2
        themeType: root.themeType
        backgroundColorSetName: "toggleButton-inactive-background"
        borderColorSetName: "toggleButton-inactive-border"

        Row {
            id: row

            anchors.centerIn: parent
            spacing: 4

            Half {
                id: left

                themeType: root.themeType
                buttonIcon: root.leftButtonIcon
                checked: true
                KeyNavigation.right: right
                Accessible.name: root.leftAccessibleName
            }
            Half {
                id: right

                themeType: root.themeType
                buttonIcon: root.rightButtonIcon
                Accessible.name: root.rightAccessibleName
            }
        }
    }
}
