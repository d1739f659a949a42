pragma ComponentBehavior: Bound

// The buttons at the bottom of a dialog: OK, Cancel and one between them. It emits accepted() and rejected(); the
// button between them only clicked(). A button exists only while it is visible. Where the box is too narrow for them
// the widest ones get narrower.
//
//     WDialogButtonBox {
//         okText: "Save"
//         cancelText: "Cancel"
//         onAccepted: form.save()
//         onRejected: dialog.close()
//     }
import QtQuick
import QtQuick.Templates as T
import LumakitQml 1.0

T.DialogButtonBox {
    id: control

    property string okText: ""
    property string middleText: ""
    property string cancelText: ""
    property bool okVisible: okText !== ""
    property bool middleVisible: middleText !== ""
    property bool cancelVisible: cancelText !== ""
    property string backgroundColorSetName: ""
    // The names of the buttons' colour sets.
    property string okBackgroundColor: "button-primary-background"
    property string okBorderColor: "button-primary-border"
    property string okTextColor: "button-primary-text"
    property font okFont: FontConstants.subheaderSecondary
    property string middleBackgroundColor: "button-secondary-background"
    property string middleBorderColor: "button-secondary-border"
    property string middleTextColor: "button-secondary-text"
    property font middleFont: FontConstants.subheaderSecondary
    property string cancelBackgroundColor: "button-secondary-background"
    property string cancelBorderColor: "button-secondary-border"
    property string cancelTextColor: "button-secondary-text"
    property font cancelFont: FontConstants.subheaderSecondary
    property bool okEnabled: true
    property bool middleEnabled: true
    property bool cancelEnabled: true
    // Null while they are not visible.
    property WButton okButton: null
    property WButton middleButton: null
    property WButton cancelButton: null
    readonly property var widths: Array.from({ length: count }, (_, index) => itemAt(index)?.implicitWidth ?? 0)
    readonly property real gaps: Math.max(0, count - 1) * spacing
    readonly property real preferredWidth: widths.reduce((sum, width) => sum + width, gaps)
    readonly property real largestButtonWidth: fittingWidth()

    // The largest width that the buttons may have to have room for all of them.
    function fittingWidth(): real {
        let room = availableWidth - gaps;
        let left = count;
        for (const width of [...widths].sort((a, b) => a - b)) {
            if (width * left > room)
                return Math.max(0, Math.floor(room / left));
            room -= width;
            --left;
        }
        return Infinity;
    }

    contentWidth: Math.min(preferredWidth, Math.max(0, availableWidth))
    implicitWidth: Math.ceil(preferredWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    padding: 16
    spacing: 8
    // By the direction, for the box to place its buttons anew when that changes.
    alignment: (mirrored ? Qt.AlignLeft | Qt.AlignAbsolute : Qt.AlignRight) | Qt.AlignVCenter
    buttonLayout: T.DialogButtonBox.WinLayout
    delegate: DialogButton {
        maximumWidth: control.largestButtonWidth
    }

    Accessible.role: Accessible.Grouping

    component DialogButton: WButton {
        property real maximumWidth: Infinity

        width: Math.min(implicitWidth, maximumWidth)
        isRectangle: false
        horizontalPadding: 16
    }

    contentItem: ListView {
        model: control.contentModel
        spacing: control.spacing
        orientation: ListView.Horizontal
        interactive: false
    }
    background: WRectangle {
        backgroundColorSetName: control.backgroundColorSetName
        controlsTarget: control
    }

    Repeater {
        model: control.okVisible ? 1 : 0

        DialogButton {
            maximumWidth: control.largestButtonWidth
            T.DialogButtonBox.buttonRole: T.DialogButtonBox.AcceptRole
            text: control.okText
            enabled: control.okEnabled
            font: control.okFont
            backgroundColorSetName: control.okBackgroundColor
            borderColorSetName: control.okBorderColor
            textColorSetName: control.okTextColor
        }

        onItemAdded: (index, item) => control.okButton = item as WButton
        onItemRemoved: control.okButton = null
    }

    Repeater {
        model: control.middleVisible ? 1 : 0

        DialogButton {
            maximumWidth: control.largestButtonWidth
            T.DialogButtonBox.buttonRole: T.DialogButtonBox.ActionRole
            text: control.middleText
            enabled: control.middleEnabled
            font: control.middleFont
            backgroundColorSetName: control.middleBackgroundColor
            borderColorSetName: control.middleBorderColor
            textColorSetName: control.middleTextColor
        }

        onItemAdded: (index, item) => control.middleButton = item as WButton
        onItemRemoved: control.middleButton = null
    }

    Repeater {
        model: control.cancelVisible ? 1 : 0

        DialogButton {
            maximumWidth: control.largestButtonWidth
            T.DialogButtonBox.buttonRole: T.DialogButtonBox.RejectRole
            text: control.cancelText
            enabled: control.cancelEnabled
            font: control.cancelFont
            backgroundColorSetName: control.cancelBackgroundColor
            borderColorSetName: control.cancelBorderColor
            textColorSetName: control.cancelTextColor
        }

        onItemAdded: (index, item) => control.cancelButton = item as WButton
        onItemRemoved: control.cancelButton = null
    }
}
