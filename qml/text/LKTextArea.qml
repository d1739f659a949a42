pragma ComponentBehavior: Bound

// A field for many lines of text that can count and limit its characters. It grows with its text; where its size is
// limited the text scrolls inside, with a scroll bar.
//
//     LKTextArea {
//         height: 120
//         placeholderText: "What was good, what was not?"
//         maxCharacters: 500
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0

T.Control {
    id: control

    // The entries of the context menu, for menuTriggered(): texts, or objects or rows with `text` and, if wanted,
    // `enabled`. Null has the usual ones, an empty list opens no menu.
    property var menuModel: null
    property alias placeholderText: area.placeholderText
    property string accessibleName: placeholderText
    property alias text: area.text
    property var themeType: App.themeMode
    // The area itself, for all that a text area has.
    readonly property alias textArea: area
    // More is cut off, and a counter shows how many there are; 0 is without limit. Counted as in a string's length.
    property int maxCharacters: 0
    property alias readOnly: area.readOnly
    property string counterColorSetName: area.length < maxCharacters ? "label-secondary-text" : "label-error-text"
    readonly property bool isLimited: maxCharacters > 0

    // An entry of menuModel was chosen.
    signal menuTriggered(int index)

    // As much of the text as there is room for: half a surrogate pair has none.
    function fitting(wanted: string): string {
        const room = Math.max(0, maxCharacters - area.length + area.selectionEnd - area.selectionStart);
        if (maxCharacters <= 0 || wanted.length <= room)
            return wanted;
        return wanted.slice(0, room).replace(/[\uD800-\uDBFF]$/, "");
    }

    // Cuts off before the cursor, where what is too much was written, or else at the end.
    function cutOff(): void {
        const excess = area.length - maxCharacters;
        if (maxCharacters <= 0 || excess <= 0)
            return;
        const end = area.cursorPosition >= excess ? area.cursorPosition : area.length;
        const isHalf = /[\uDC00-\uDFFF]/.test(area.getText(end - excess, end - excess + 1));
        area.remove(end - excess - (isHalf ? 1 : 0), end);
    }

    implicitWidth: area.implicitWidth
    implicitHeight: area.implicitHeight + area.anchors.bottomMargin
    font: FontConstants.bodySecondary

    onMaxCharactersChanged: cutOff()
    // The focus goes to what is written in.
    onActiveFocusChanged: {
        if (activeFocus)
            area.forceActiveFocus(focusReason);
    }

    // The area is what is written in.
    Accessible.ignored: true

    LKTextAreaBase {
        id: area

        readonly property real fullHeight: contentHeight + 2 * padding
        readonly property bool isScrolling: fullHeight > height && height > 0

        function paste(): void {
            const wanted = control.fitting(clipboardText());
            remove(selectionStart, selectionEnd);
            insert(cursorPosition, wanted);
        }

        function clipboardText(): string {
            return Utils.pasteFromClipboard(Utils.RichText, Utils.Clipboard);
        }

        // AltGr is Ctrl and Alt.
        function writes(event: var): bool {
            const isCommand = !(event.modifiers & Qt.ControlModifier) !== !(event.modifiers & Qt.AltModifier);
            return !isCommand && event.text !== "" && !/[\x00-\x08\x0b\x0c\x0e-\x1f\x7f]/.test(event.text);
        }

        contextMenu: control.menuModel === null ? editMenu : modelMenu
        anchors.fill: parent
        anchors.bottomMargin: counter.active ? counter.height + 4 : 0
        font: control.font
        themeType: control.themeType
        tabChangesFocus: true

        onTextChanged: control.cutOff()

        // What is not written needs not be cut off, and cannot come back by undo.
        Keys.onPressed: event => {
            if (readOnly || !control.isLimited)
                return;
            // What fits is pasted as usual: it is undone by itself.
            const isPaste = event.matches(StandardKey.Paste) && clipboardText() !== control.fitting(clipboardText());
            if (isPaste)
                paste();
            if (isPaste || writes(event) && control.fitting(event.text) === "")
                event.accepted = true;
        }

        Accessible.name: control.accessibleName
    }
    Loader {
        id: counter
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        active: control.isLimited
        sourceComponent: LKLabelBase {
            text: area.length + "/" + control.maxCharacters
            textColorSetName: control.counterColorSetName
            font: FontConstants.bodyTertiary
        }
    }
    Loader {
        anchors.right: parent.right
        anchors.top: area.top
        anchors.bottom: area.bottom
        anchors.margins: 2
        active: area.isScrolling
        sourceComponent: LKScrollBar {
            id: bar
            size: area.height / area.fullHeight

            onPositionChanged: area.scrollBy(0, Math.round(position * area.fullHeight) - area.scrollY)

            Binding {
                target: bar
                property: "position"
                value: area.scrollY / area.fullHeight
            }
        }
    }
    Component {
        id: editMenu

        LKTextFieldBase.EditMenu {}
    }
    Component {
        id: modelMenu

        LKContextMenu {
            Repeater {
                model: control.menuModel
                delegate: LKContextMenuItem {
                    required property int index
                    required property var model
                    readonly property var entry: model.modelData ?? model

                    text: typeof entry === "string" ? entry : entry.text ?? ""
                    enabled: entry.enabled ?? true

                    onTriggered: control.menuTriggered(index)
                }
            }
        }
    }
}
