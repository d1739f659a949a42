pragma ComponentBehavior: Bound

// A field for one line of text with a title above it and an information below.
//
//     LKTextInputField {
//         titleText: "Meeting number"
//         infoTest: showErrorState ? "There is no such meeting" : "Nine digits"
//         showErrorState: meeting.isUnknown
//         onAccepted: meeting.join(text)
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0

Item {
    id: root

    property string titleText: ""
    // Below the field. The spelling is the name that hosts know.
    property string infoTest: ""
    property alias placeholderText: input.placeholderText
    property string accessibleName: titleText !== "" ? titleText : placeholderText
    property alias text: input.text
    property alias isPasswordInput: input.isPasswordInput
    property bool searchIconVisible: false
    // What is written is wrong: field and information say so by their colours.
    property alias showErrorState: input.showErrorState
    // The field itself, for all that a text field has.
    readonly property alias textField: input.textField
    property var themeType: App.themeMode
    property alias readOnly: input.readOnly
    property alias maximumLength: input.maximumLength
    property string titleColorSetName: "label-primary-text"
    property string infoColorSetName: showErrorState ? "label-error-text" : "label-secondary-text"

    // By Enter or Return.
    signal accepted
    // By the user.
    signal textEdited

    implicitWidth: input.implicitWidth
    implicitHeight: column.implicitHeight

    // The focus goes to what is written in.
    onActiveFocusChanged: {
        if (activeFocus)
            textField.forceActiveFocus();
    }

    Column {
        id: column
        width: root.width
        spacing: 4

        Loader {
            width: parent.width
            active: root.titleText !== ""
            visible: active
            sourceComponent: LKLabelBase {
                text: root.titleText
                themeType: root.themeType
                textColorSetName: root.titleColorSetName
                font: FontConstants.subheaderSecondary
                wrapMode: Text.Wrap
                // The field has it as its name.
                Accessible.ignored: true

                TapHandler {
                    onTapped: root.textField.forceActiveFocus(Qt.MouseFocusReason)
                }
            }
        }
        LKTextField {
            id: input
            width: parent.width
            themeType: root.themeType
            leftIcon: "search"
            isLeftIconVisible: root.searchIconVisible
            accessibleName: root.accessibleName
            accessibleDescription: root.infoTest

            onAccepted: root.accepted()
            onTextEdited: root.textEdited()
        }
        Loader {
            width: parent.width
            active: root.infoTest !== ""
            visible: active
            sourceComponent: LKLabelBase {
                text: root.infoTest
                themeType: root.themeType
                textColorSetName: root.infoColorSetName
                font: FontConstants.bodyTertiary
                wrapMode: Text.Wrap
            }
        }
    }
}
