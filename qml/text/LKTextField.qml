pragma ComponentBehavior: Bound

// A field for one line of text with an icon before it and behind it a button: it clears what is written or, for a
// password, shows it.
//
//     LKTextField {
//         placeholderText: "Meeting password"
//         leftIcon: "lock"
//         isPasswordInput: true
//         showErrorState: meeting.passwordIsWrong
//         onAccepted: meeting.join(text)
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

T.Control {
    id: control

    property alias placeholderText: field.placeholderText
    // The name of an icon.
    property string leftIcon: ""
    property string accessibleName: placeholderText
    property alias text: field.text
    // The field itself, for all that a text field has.
    readonly property alias textField: field
    // What is written is hidden, until the user asks to see it.
    property bool isPasswordInput: false
    property bool isLeftIconVisible: leftIcon !== ""
    // What is written is wrong: frame and text say so by their colours.
    property alias showErrorState: field.showErrorState
    property var themeType: App.themeMode
    property string accessibleDescription: ""
    property alias readOnly: field.readOnly
    property alias maximumLength: field.maximumLength
    // The password is shown.
    property bool isPasswordVisible: false
    // Behind a text is a button that clears it.
    property bool isClearButtonVisible: !isPasswordInput
    property string iconColorSetName: "textinput-placeholder-text"
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)
    // Pixels.
    property int iconSize: 16
    property int buttonSize: 24
    readonly property bool hasButton: (isPasswordInput || isClearButtonVisible)
                                      && enabled && !readOnly && field.length > 0
    readonly property int iconRoom: isLeftIconVisible ? 8 + iconSize + 8 : 8
    readonly property int buttonRoom: hasButton ? 4 + buttonSize + 4 : 8

    // By Enter or Return.
    signal accepted
    // By the user.
    signal textEdited
    // By the button.
    signal cleared

    // Empties the field and gives it the focus.
    function clear(): void {
        field.clear();
        field.forceActiveFocus();
        cleared();
    }

    implicitWidth: field.implicitWidth
    implicitHeight: field.implicitHeight
    font: FontConstants.bodySecondary

    // The focus goes to what is written in.
    onActiveFocusChanged: {
        if (activeFocus)
            field.forceActiveFocus(focusReason);
    }

    // The field is what is written in.
    Accessible.ignored: true

    LKTextFieldBase {
        id: field

        // With the name of a password: a screen reader is told none of that.
        function describing(): string {
            const texts = [echoMode === TextInput.Normal ? "" : control.accessibleName, control.accessibleDescription];
            return texts.filter(text => text !== "").join(", ");
        }

        anchors.fill: parent
        leftPadding: control.mirrored ? control.buttonRoom : control.iconRoom
        rightPadding: control.mirrored ? control.iconRoom : control.buttonRoom
        font: control.font
        themeType: control.themeType
        echoMode: control.isPasswordInput && !control.isPasswordVisible ? TextInput.Password : TextInput.Normal
        inputMethodHints: control.isPasswordInput ? Qt.ImhSensitiveData | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
                                                  : Qt.ImhNone

        onAccepted: control.accepted()
        onTextEdited: control.textEdited()

        Accessible.name: control.accessibleName
        Accessible.description: describing()
        // A text field sets its placeholder when a screen reader starts.
        Accessible.onDescriptionChanged: {
            if (describing() !== "" && Accessible.description !== describing())
                Accessible.description = Qt.binding(describing);
        }
        Accessible.passwordEdit: echoMode !== TextInput.Normal

        Loader {
            anchors.left: parent.left
            anchors.leftMargin: 8
            y: Math.round((parent.height - height) / 2)
            active: control.isLeftIconVisible
            sourceComponent: WSvgIcon {
                width: control.iconSize
                height: control.iconSize
                svgName: control.leftIcon
                svgColor: ThemeUtils.getColor(field, control.iconColorSet)
            }
        }
        Loader {
            anchors.right: parent.right
            anchors.rightMargin: 4
            y: Math.round((parent.height - height) / 2)
            active: control.hasButton
            sourceComponent: WSvgIconButton {
                implicitWidth: control.buttonSize
                implicitHeight: control.buttonSize
                iconWidth: control.iconSize
                iconHeight: control.iconSize
                iconName: !control.isPasswordInput ? "close-bold" : control.isPasswordVisible ? "eye-off" : "eye"
                tooltip: !control.isPasswordInput ? qsTr("Clear")
                       : control.isPasswordVisible ? qsTr("Hide password") : qsTr("Show password")
                borderColorSetName: ""
                focusPolicy: Qt.TabFocus

                onTriggered: {
                    if (control.isPasswordInput)
                        control.isPasswordVisible = !control.isPasswordVisible;
                    else
                        control.clear();
                }

                HoverHandler {
                    cursorShape: Qt.ArrowCursor
                }
            }
        }
    }
}
