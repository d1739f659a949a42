pragma ComponentBehavior: Bound

// A row of a list of keyboard shortcuts: what the keys do, the keys, and buttons to give it keys and for more.
//
//     LKKeyboardShortcutsItemDelegate {
//         title: "Mute"
//         keySequence: "Ctrl+M"
//         globalLabelIsVisible: true
//         globalLabelText: "Global"
//         moreButtonIsVisible: true
//         moreButtonTooltipText: "More"
//         onMoreButtonClicked: around => menu.open(around)
//     }
import QtQuick
import QtQuick.Layouts
import LumakitQml 1.0
import LumakitQml.Private 1.0

WRectangle {
    id: root

    property string title: ""
    property bool moreButtonIsVisible: false
    property bool moreButtonIsEnabled: true
    property string moreButtonTooltipText: qsTr("More")
    // The button that stands in for the keys where there are none.
    property bool addButtonIsVisible: false
    property bool addButtonIsEnabled: true
    property string addButtonText: ""
    // Says that the keys are heard in other applications too.
    property bool globalLabelIsVisible: false
    property string globalLabelText: ""
    // As it is shown, such as "Ctrl+M"; none if empty.
    property string keySequence: ""
    readonly property bool pressed: mouseArea.pressed
    readonly property bool hovered: hoverHandler.hovered
    // Whether the row is shown as chosen.
    property bool checked: false
    property string titleColorSetName: "listitem-textprimary"
    property string focusColorSetName: "global-focus-outline"

    // The row, by mouse, Space, Enter, Return or a screen reader.
    signal clicked
    signal addButtonClicked
    // `around` is the button.
    signal moreButtonClicked(around: Item)

    function clickByKey(event: KeyEvent): void {
        if (!event.isAutoRepeat)
            clicked();
    }

    // The width beside the title, less than what it needs only where there is no more; `others` come first.
    function widthFor(part: Item, others: list<Item>): real {
        const taken = others.reduce((sum, other) => sum + (other.visible ? other.width + row.spacing : 0), row.spacing);
        return Math.max(0, Math.min(part.implicitWidth, row.width - taken));
    }

    implicitWidth: Math.ceil(row.implicitWidth) + row.anchors.leftMargin + row.anchors.rightMargin
    implicitHeight: Math.max(40, Math.ceil(row.implicitHeight) + 8)
    radius: 4
    activeFocusOnTab: true
    backgroundColorSetName: "listitem-background"

    Keys.onSpacePressed: event => clickByKey(event)
    Keys.onReturnPressed: event => clickByKey(event)
    Keys.onEnterPressed: event => clickByKey(event)

    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: globalLabelIsVisible && globalLabelText !== "" ? keySequence + ", " + globalLabelText
                                                                           : keySequence
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: checked
    Accessible.onPressAction: {
        if (enabled)
            clicked();
    }

    HoverHandler {
        id: hoverHandler
    }
    MouseArea {
        id: mouseArea

        anchors.fill: parent
        onClicked: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.clicked();
        }
    }
    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 8
        spacing: 8

        WTextElide {
            Layout.fillWidth: true
            text: root.title
            controlsTarget: root
            textColorSetName: root.titleColorSetName
            Accessible.ignored: true
        }
        Loader {
            id: globalLabel

            Layout.fillWidth: true
            Layout.minimumWidth: root.widthFor(globalLabel, [keys, addButton, moreButton])
            Layout.maximumWidth: implicitWidth
            active: root.globalLabelIsVisible
            visible: active
            sourceComponent: LKTag {
                text: root.globalLabelText
                enabled: root.enabled
                Accessible.ignored: true
            }
        }
        Loader {
            id: keys

            Layout.fillWidth: true
            Layout.minimumWidth: root.widthFor(keys, [moreButton])
            Layout.maximumWidth: implicitWidth
            active: root.keySequence !== ""
            visible: active
            sourceComponent: WFrame {
                implicitWidth: Math.ceil(label.implicitWidth) + 16
                implicitHeight: Math.max(24, Math.ceil(label.implicitHeight) + 4)
                radius: 4
                backgroundColorSetName: "shortcutinput-inactive-background"
                borderColorSetName: "shortcutinput-inactive-border"

                WTextElide {
                    id: label

                    anchors.centerIn: parent
                    width: Math.min(implicitWidth, parent.width - 16)
                    text: root.keySequence
                    textColorSetName: "shortcutinput-inactive-text"
                    Accessible.ignored: true
                }
            }
        }
        Loader {
            id: addButton

            Layout.fillWidth: true
            Layout.minimumWidth: root.widthFor(addButton, [moreButton])
            Layout.maximumWidth: implicitWidth
            active: root.addButtonIsVisible && root.keySequence === ""
            visible: active
            sourceComponent: WButton {
                implicitHeight: Math.max(28, Math.ceil(implicitContentHeight) + 4)
                verticalPadding: 2
                isRectangle: false
                text: root.addButtonText
                enabled: root.addButtonIsEnabled
                onTriggered: root.addButtonClicked()
            }
        }
        Loader {
            id: moreButton

            active: root.moreButtonIsVisible
            visible: active
            sourceComponent: LKRoundButton {
                id: button

                buttonIcon: "more-horizontal-bold"
                buttonStyle: LKButtonStyle.Ghost
                buttonSize: LKButtonSize.XS
                enabled: root.moreButtonIsEnabled
                onClicked: root.moreButtonClicked(button)

                Accessible.name: root.moreButtonTooltipText

                ToolTipTrigger {
                    text: root.moreButtonTooltipText
                }
            }
        }
    }
    FocusRing {
        target: root
        radius: root.radius
        offset: -2
        colorSetName: root.focusColorSetName
    }
}
