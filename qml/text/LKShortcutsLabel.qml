pragma ComponentBehavior: Bound

// Shows a shortcut and, while it is edited, takes the keys that the user presses as the new one. A click, Enter, Return
// or Space begins. Enter, Return or leaving it ends, Escape ends without the new one, Backspace and Delete leave none.
//
//     LKShortcutsLabel {
//         labelText: "Ctrl + Shift + M"
//         accessibleName: "Mute"
//         isUnavailable: shortcuts.isTaken(labelText)
//         onEditFinished: shortcuts.save(labelText)
//     }
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

RowLayout {
    id: root

    // The shortcut. What is captured changes it.
    property string labelText: ""
    // Painted as while it is edited.
    property bool isSelected: false
    // Keys are captured. The user changes it too.
    property bool isInEditMode: false
    // What is known of the shortcut; all false says nothing.
    property bool isUnavailable: false
    property bool isAvailable: false
    property bool isChecking: false
    // It cannot be edited.
    property bool isReadOnly: false
    // Shown while there is no shortcut: at rest, and while it is edited.
    property string placeholderText: qsTr("None")
    property string editPlaceholderText: qsTr("Press keys")
    // What the shortcut is for.
    property string accessibleName: ""
    property string focusColorSetName: "global-focus-outline"
    property var themeType: App.themeMode
    readonly property string status: isReadOnly ? "read-only" : isUnavailable ? "unavailable"
                                   : isAvailable ? "available" : isChecking ? "checking" : ""
    readonly property string colorSetGroup: isReadOnly ? "shortcutinput-inactive-"
                                          : status !== "" ? "shortcutinput-active-" + status + "-"
                                          : isInEditMode || isSelected ? "shortcutinput-active-populated-"
                                                                       : "shortcutinput-inactive-"
    property string backgroundColorSetName: colorSetGroup + "background"
    property string borderColorSetName: colorSetGroup + "border"
    property string textColorSetName: labelText === "" ? "textinput-placeholder-text" : colorSetGroup + "text"
    property string textBackgroundColorSetName: labelText === "" ? "" : colorSetGroup + "textBackground"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property var textBackgroundColorSet: themeType === undefined ? null : App.getColorSet(textBackgroundColorSetName)
    readonly property string shownText: labelText !== "" ? labelText
                                      : isInEditMode ? editPlaceholderText : placeholderText
    // As it was when the editing began.
    property string oldLabelText: ""

    // The user pressed a shortcut; without a key: removed it.
    signal captured(int modifiers, int key)
    signal editFinished
    signal editCanceled

    function statusText(): string {
        const texts = {
            "read-only": qsTr("Read-only"),
            "unavailable": qsTr("Not available"),
            "available": qsTr("Available"),
            "checking": qsTr("Checking")
        };
        return texts[status] ?? "";
    }

    function edit(): void {
        if (!isReadOnly && enabled)
            isInEditMode = true;
    }

    function finish(): void {
        isInEditMode = false;
        editFinished();
    }

    function cancel(): void {
        labelText = oldLabelText;
        isInEditMode = false;
        editCanceled();
    }

    function capture(modifiers: int, key: int): void {
        const text = Utils.getKeySequence(modifiers, key);
        if (text === "")
            return;
        labelText = text;
        captured(modifiers, key);
    }

    function remove(): void {
        labelText = "";
        captured(Qt.NoModifier, 0);
    }

    // Tab and its like go on to the next item, everything else is a shortcut or nothing.
    function takes(event: var): bool {
        const leaves = event.key === Qt.Key_Backtab || event.key === Qt.Key_Tab && event.modifiers === Qt.NoModifier;
        return isInEditMode && !isReadOnly && !leaves;
    }

    spacing: 8
    activeFocusOnTab: true

    onIsInEditModeChanged: {
        if (!isInEditMode)
            return;
        oldLabelText = labelText;
        forceActiveFocus();
    }
    onIsReadOnlyChanged: {
        if (isInEditMode && isReadOnly)
            cancel();
    }
    onActiveFocusChanged: {
        if (isInEditMode && !activeFocus)
            finish();
    }

    // The window's own shortcuts are typed here like any other.
    Keys.onShortcutOverride: event => event.accepted = takes(event)
    Keys.onPressed: event => {
        const modifiers = event.modifiers & (Qt.ShiftModifier | Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier);
        const isEnter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = takes(event) || !isReadOnly && modifiers === 0 && (isEnter || event.key === Qt.Key_Space);
        if (!event.accepted || event.isAutoRepeat)
            return;
        if (!isInEditMode)
            edit();
        else if (modifiers !== 0)
            capture(modifiers, event.key);
        else if (isEnter)
            finish();
        else if (event.key === Qt.Key_Escape)
            cancel();
        else if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete)
            remove();
        else
            capture(modifiers, event.key);
    }

    Accessible.role: Accessible.HotkeyField
    Accessible.name: accessibleName !== "" ? accessibleName : shownText
    Accessible.description: [accessibleName === "" ? "" : shownText, statusText()].filter(text => text).join(", ")
    Accessible.focusable: true
    Accessible.readOnly: isReadOnly
    Accessible.onPressAction: edit()

    Rectangle {
        id: frame

        readonly property var look: ({ enabled: root.enabled, hovered: hover.hovered, activeFocus: root.activeFocus })
        readonly property real iconRoom: 16 + 2 * 8

        Layout.fillWidth: true
        implicitWidth: Math.max(160, 4 + chip.implicitWidth + iconRoom)
        implicitHeight: Math.max(32, chip.implicitHeight + 8)
        radius: 4
        color: ThemeUtils.getColor(frame.look, root.backgroundColorSet)
        border.width: 1
        border.color: ThemeUtils.getColor(frame.look, root.borderColorSet)

        Rectangle {
            id: chip
            anchors.left: parent.left
            anchors.leftMargin: 4
            y: Math.round((parent.height - height) / 2)
            width: Math.min(implicitWidth, Math.max(0, parent.width - 4 - parent.iconRoom))
            implicitWidth: Math.ceil(label.implicitWidth) + 2 * 8
            implicitHeight: Math.max(24, Math.ceil(label.implicitHeight) + 4)
            radius: 4
            color: ThemeUtils.getColor(frame.look, root.textBackgroundColorSet)

            Text {
                id: label
                anchors.fill: parent
                anchors.leftMargin: 8
                anchors.rightMargin: 8
                text: root.shownText
                textFormat: Text.PlainText
                font: FontConstants.bodySecondary
                color: ThemeUtils.getColor(frame.look, root.textColorSet)
                elide: Text.ElideRight
                horizontalAlignment: Text.AlignLeft
                verticalAlignment: Text.AlignVCenter
            }
        }
        Loader {
            anchors.right: parent.right
            anchors.rightMargin: 8
            y: Math.round((parent.height - height) / 2)
            sourceComponent: root.status === "" ? null : root.status === "checking" ? spinner : icon
        }
        TapHandler {
            onTapped: {
                root.edit();
                root.forceActiveFocus(Qt.MouseFocusReason);
            }
        }
        HoverHandler {
            id: hover
        }
    }
    Component {
        id: spinner

        WSvgSpinner {
            width: 16
            height: 16
        }
    }
    Component {
        id: icon

        WSvgIcon {
            width: 16
            height: 16
            svgName: root.isReadOnly ? "lock" : root.isUnavailable ? "error-filled" : "check-bold"
            svgColorSetName: root.isReadOnly ? "label-secondary-text" : root.isUnavailable ? "label-error-text"
                                                                                           : "label-success-text"
        }
    }
    FocusRing {
        target: root
        around: frame
        radius: frame.radius
        colorSetName: root.focusColorSetName
    }
}
