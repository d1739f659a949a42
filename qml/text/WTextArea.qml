pragma ComponentBehavior: Bound

// A field for many lines of text, in a frame. It grows with its text; where its size is limited the text scrolls inside
// by the wheel and with the cursor.
//
//     WTextArea {
//         height: 96
//         placeholderText: "Description"
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.TextArea {
    id: control

    property string textColorSetName: "textinput-text"
    property string placeholderTextColorName: "textinput-placeholder-text"
    property string backgroundColorSetName: "textinput-background"
    property string borderColorSetName: "textinput-border"
    property var themeType: App.themeMode
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property var placeholderTextColorSet: themeType === undefined ? null : App.getColorSet(placeholderTextColorName)
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    // The control whose state picks the colours; this area itself if null.
    property Item stateItem: null
    // The frame's corners, pixels.
    property real radius: 4
    property int borderWidth: 1
    property string focusColorSetName: "global-focus-outline"
    // Tab goes on to the next item instead of writing a tab.
    property bool tabChangesFocus: readOnly
    property real minimumHeight: 64
    // How far the text is scrolled from its left and top, pixels. The paddings there follow it: set `padding`.
    property real scrollX: 0
    property real scrollY: 0
    // Where nothing else sets the width, pixels.
    readonly property real naturalWidth: Math.max(200, Math.ceil(placeholder.implicitWidth) + 2 * padding)

    function stateColor(colorSet: var): color {
        return colorSet?.isValid ? ThemeUtils.getTextFieldColor(stateItem ?? control, colorSet) : "transparent";
    }

    // Scrolls by that much, but not out of the text.
    function scrollBy(x: real, y: real): void {
        scrollX = Math.max(0, Math.min(scrollX + x, contentWidth + 2 * padding - width));
        scrollY = Math.max(0, Math.min(scrollY + y, contentHeight + 2 * padding - height));
    }

    function showCursor(): void {
        // how far the cursor is outside on either side
        const excess = (start, end, size) => Math.min(0, start - padding) + Math.max(0, end - size + padding);
        const cursor = cursorRectangle;
        scrollBy(excess(cursor.x, cursor.x + cursor.width, width), excess(cursor.y, cursor.y + cursor.height, height));
    }

    // Moves the cursor by a page: 1 down, -1 up.
    function movePage(direction: int, select: bool): void {
        const step = Math.max(cursorRectangle.height, height - 2 * padding - cursorRectangle.height);
        const position = positionAt(cursorRectangle.x, cursorRectangle.y + direction * step);
        if (select)
            moveCursorSelection(position);
        else
            cursorPosition = position;
    }

    implicitWidth: naturalWidth
    // Without one the document has none either, to wrap and to align in. The implicit one would cost a second layout.
    width: naturalWidth
    implicitHeight: Math.max(minimumHeight, Math.ceil(contentHeight) + 2 * padding)
    clip: true
    padding: 8
    leftPadding: padding - scrollX
    topPadding: padding - scrollY
    color: stateColor(textColorSet)
    placeholderTextColor: stateColor(placeholderTextColorSet)
    selectionColor: themeType === undefined ? "transparent" : App.getColorSet("button-primary-background").normal
    selectedTextColor: themeType === undefined ? "transparent" : App.getColorSet("button-primary-text").normal
    font: FontConstants.bodySecondary
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    horizontalAlignment: TextEdit.AlignLeft
    selectByKeyboard: true
    hoverEnabled: true

    onCursorRectangleChanged: showCursor()
    onWidthChanged: showCursor()
    onHeightChanged: showCursor()
    onContentSizeChanged: showCursor()

    Keys.onPressed: event => {
        const page = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0;
        const leaves = event.key === Qt.Key_Tab && tabChangesFocus && !(event.modifiers & Qt.ControlModifier);
        if (page !== 0)
            movePage(page, (event.modifiers & Qt.ShiftModifier) !== 0);
        else if (leaves)
            nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason);
        if (page !== 0 || leaves)
            event.accepted = true;
    }

    Accessible.name: placeholderText
    Accessible.readOnly: readOnly
    Accessible.multiLine: true

    background: Rectangle {
        radius: control.radius
        color: control.stateColor(control.backgroundColorSet)
        border.width: control.borderColorSetName === "" ? 0 : control.borderWidth
        border.color: control.stateColor(control.borderColorSet)
    }

    Text {
        id: placeholder
        x: control.padding
        y: control.padding
        width: control.width - 2 * control.padding
        height: control.height - 2 * control.padding
        visible: control.length === 0 && control.preeditText === ""
        text: control.placeholderText
        textFormat: Text.PlainText
        font: control.font
        color: control.placeholderTextColor
        elide: Text.ElideRight
        horizontalAlignment: control.horizontalAlignment
        verticalAlignment: control.verticalAlignment
    }
    // The frame once more, over the text that is scrolled under it.
    Loader {
        anchors.fill: parent
        active: control.scrollX > 0 || control.scrollY > 0
        sourceComponent: Rectangle {
            radius: control.radius
            color: "transparent"
            border.width: control.borderColorSetName === "" ? 0 : control.borderWidth
            border.color: control.stateColor(control.borderColorSet)
        }
    }
    WheelHandler {
        target: null
        enabled: control.contentHeight + 2 * control.padding > control.height
        onWheel: event => {
            const lines = event.angleDelta.y / 40;
            control.scrollBy(0, -(event.pixelDelta.y || lines * control.cursorRectangle.height));
        }
    }
    FocusRing {
        radius: control.radius
        offset: -2
        colorSetName: control.focusColorSetName
    }
}
