pragma ComponentBehavior: Bound

// The buttons at the bottom of a dialog: OK, Cancel and one between them. It emits accepted() and rejected(); the
// button between them only clicked(). A button exists only while it is visible.
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

    contentWidth: (contentItem as ListView)?.contentWidth ?? 0
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    padding: 16
    spacing: 8
    alignment: Qt.AlignRight | Qt.AlignVCenter
    buttonLayout: T.DialogButtonBox.WinLayout
    delegate: DialogButton {}

    Accessible.role: Accessible.Grouping

    component DialogButton: WButton {
        isRectangle: false
        horizontalPadding: 16
    }

    contentItem: ListView {
        implicitWidth: contentWidth
        model: control.contentModel
        spacing: control.spacing
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width
    }
    background: WRectangle {
        backgroundColorSetName: control.backgroundColorSetName
        controlsTarget: control
    }

    Repeater {
        model: control.okVisible ? 1 : 0

        DialogButton {
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
