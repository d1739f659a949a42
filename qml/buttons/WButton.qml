// A push button with a text, painted from colour sets by its state.
//
//     WButton {
//         text: "Join"
//         backgroundColorSetName: "button-join-fill-background"
//         textColorSetName: "button-join-fill-text"
//         onTriggered: meeting.join()
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.Button {
    id: control

    property string backgroundColorSetName: "button-secondary-background"
    property string borderColorSetName: "button-secondary-border"
    property string textColorSetName: "button-secondary-text"
    property string focusColorSetName: "global-focus-outline"
    // Shown when the cursor or the keyboard's focus rests on the button; its accessible name where it has no text.
    property string tooltip: ""
    property int horizontalAlignment: Text.AlignHCenter
    property int verticalAlignment: Text.AlignVCenter
    property int borderWidth: 1
    // The corners of a rectangle, pixels; a button that is no rectangle has round ends.
    property real radius: 4
    property bool isRectangle: true
    // The background in the present state.
    property color colour: ThemeUtils.getColor(control, backgroundColorSet)
    property int elide: Text.ElideRight
    property var themeType: App.themeMode
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property color textColor: ThemeUtils.getColor(control, textColorSet)
    readonly property real cornerRadius: isRectangle ? radius : height / 2

    // By mouse, touch, Space, Enter, Return or a screen reader.
    signal triggered

    // What a screen reader calls, where the role is one that is pressed.
    function accessiblePressAction(): void {
        click();
    }

    function accessibleToggleAction(): void {
        click();
    }

    implicitWidth: Math.max(implicitHeight, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(32, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: 12
    verticalPadding: 4
    spacing: 6
    font: FontConstants.subheaderSecondary
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    onClicked: triggered()

    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            click();
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            click();
    }

    onTooltipChanged: ToolTips.set(control, tooltip)

    Accessible.role: Accessible.Button
    Accessible.name: text === "" ? tooltip : text
    Accessible.checkable: checkable
    Accessible.checked: checked

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: control.textColor
        elide: control.elide
        horizontalAlignment: control.horizontalAlignment
        verticalAlignment: control.verticalAlignment
    }
    background: Rectangle {
        radius: control.cornerRadius
        color: control.colour
        border.width: control.borderColorSetName === "" ? 0 : control.borderWidth
        border.color: ThemeUtils.getColor(control, control.borderColorSet)
    }

    FocusRing {
        radius: control.cornerRadius
        colorSetName: control.focusColorSetName
    }}
