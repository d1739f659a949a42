pragma ComponentBehavior: Bound

// A choice of one among several, with a text beside it. Those with the same parent, or of the same ButtonGroup, exclude
// each other and are one stop of Tab: the arrows choose among them.
//
//     Column {
//         LKRadioButton { text: "Speaker"; checked: true }
//         LKRadioButton { text: "Headset" }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.RadioButton {
    id: control

    // The text's font, by its name in FontConstants.
    property string textFontName: "radioButtonLabelSecondary"
    // The item that shows the text.
    readonly property Text radioTextId: contentItem as Text
    property int elide: Text.ElideRight
    // How a text that is wider than its room wraps: a Text.WrapMode. With Text.NoWrap it is elided.
    property int autoWrapMode: Text.Wrap
    // The accessible name where the text alone does not say enough.
    property string accessibleText: ""
    // Beyond the end of the text, pixels.
    property real radioButtonRightPadding: 0
    property var themeType: App.themeMode
    // The room for the text, pixels; what it needs, if none is set.
    property real textWidth: Math.ceil(implicitContentWidth) - textOffset
    // Of the circle, pixels.
    property int radioButtonSize: 20
    property string indicatorColorSetName: checked ? "radio-checked-background" : "radio-unchecked-background"
    property string borderColorSetName: checked ? "radio-checked-border" : "radio-unchecked-border"
    property string iconColorSetName: "radio-checked-icon"
    property string textColorSetName: checked ? "radio-checked-text" : "radio-unchecked-text"
    property string focusColorSetName: "global-focus-outline"
    // Shown when the cursor or the keyboard's focus rests on the button; its accessible name where it has no text.
    property string tooltip: ""
    property var indicatorColorSet: themeType === undefined ? null : App.getColorSet(indicatorColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    // From the edge where the circle stands to the text.
    readonly property real textOffset: text === "" ? 0 : radioButtonSize + spacing

    // The buttons that exclude each other and can take the focus, in their order.
    function choices(): list<var> {
        const group = T.ButtonGroup.group;
        const isPeer = item => item instanceof T.RadioButton && item.autoExclusive;
        const all = group ? Array.from(group.buttons)
                          : autoExclusive && parent ? Array.from(parent.children).filter(isPeer) : [control];
        return all.filter(item => item.visible && item.enabled);
    }

    // Chooses the next one, or the previous if `step` is -1, around the ends.
    function chooseNext(step: int): void {
        const all = choices();
        const next = all[(all.indexOf(control) + step + all.length) % all.length];
        if (!next.checked)
            next.click();
        next.forceActiveFocus(step < 0 ? Qt.BacktabFocusReason : Qt.TabFocusReason);
    }

    // Moves the focus to the next item that is none of the choices, or to the previous one.
    function leave(forward: bool): void {
        const all = choices();
        let next = nextItemInFocusChain(forward);
        while (next !== control && all.includes(next))
            next = next.nextItemInFocusChain(forward);
        next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    implicitWidth: radioButtonSize + (text === "" ? 0 : spacing + textWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(radioButtonSize, Math.ceil(implicitContentHeight)) + topPadding + bottomPadding
    verticalPadding: 2
    leftPadding: mirrored ? radioButtonRightPadding : 0
    rightPadding: mirrored ? 0 : radioButtonRightPadding
    spacing: 8
    font: FontConstants[textFontName] ?? FontConstants.radioButtonLabelSecondary
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    // Tab comes to the one that is chosen.
    onActiveFocusChanged: {
        if (!activeFocus || checked || focusReason !== Qt.TabFocusReason && focusReason !== Qt.BacktabFocusReason)
            return;
        choices().find(item => item.checked)?.forceActiveFocus(focusReason);
    }

    Keys.onPressed: event => {
        const isPlain = (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) === 0;
        event.accepted = isPlain;
        if (!isPlain)
            return;
        switch (event.key) {
        case Qt.Key_Up:
            chooseNext(-1);
            break;
        case Qt.Key_Down:
            chooseNext(1);
            break;
        case Qt.Key_Left:
            chooseNext(mirrored ? 1 : -1);
            break;
        case Qt.Key_Right:
            chooseNext(mirrored ? -1 : 1);
            break;
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            leave(event.key === Qt.Key_Tab);
            break;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            if (!event.isAutoRepeat)
                click();
            break;
        case Qt.Key_Space: // one that is held down clicks once
            event.accepted = event.isAutoRepeat;
            break;
        default:
            event.accepted = false;
        }
    }
    Keys.onReleased: event => event.accepted = event.key === Qt.Key_Space && event.isAutoRepeat

    Accessible.name: accessibleText !== "" ? accessibleText : text !== "" ? text : tooltip
    Accessible.onPressAction: click()
    Accessible.onToggleAction: click()

    indicator: Rectangle {
        id: circle

        // The control's state without `checked`, for which there are colour sets of their own.
        readonly property bool pressed: control.pressed
        readonly property bool hovered: control.hovered

        x: control.mirrored ? control.width - width - control.rightPadding : control.leftPadding
        y: Math.round((control.topPadding + (control.availableHeight - height) / 2) * Screen.devicePixelRatio)
           / Screen.devicePixelRatio
        implicitWidth: control.radioButtonSize
        implicitHeight: control.radioButtonSize
        radius: height / 2
        color: ThemeUtils.getColor(circle, control.indicatorColorSet)
        border.width: 1
        border.color: ThemeUtils.getColor(circle, control.borderColorSet)

        Loader {
            anchors.centerIn: parent
            active: control.checked
            sourceComponent: Rectangle {
                implicitWidth: control.radioButtonSize - 12
                implicitHeight: implicitWidth
                radius: height / 2
                color: ThemeUtils.getColor(circle, control.iconColorSet)
            }
        }
    }
    contentItem: Text {
        leftPadding: control.mirrored ? 0 : control.textOffset
        rightPadding: control.mirrored ? control.textOffset : 0
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: ThemeUtils.getColor(control.indicator, control.textColorSet)
        wrapMode: control.autoWrapMode
        elide: control.elide
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }

    FocusRing {
        around: control.indicator
        radius: control.radioButtonSize / 2
        colorSetName: control.focusColorSetName
    }
    ToolTipTrigger {
        text: control.tooltip
    }
}
