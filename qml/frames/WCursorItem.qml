// The text cursor of an editable text. It blinks as the desktop's does, and stands still where animations are disabled.
//
//     TextInput {
//         cursorDelegate: WCursorItem {}
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0

Item {
    id: root

    property var themeType: App.themeMode
    property string cursorColorSetName: "textinput-text"
    property var cursorColorSet: themeType === undefined ? null : App.getColorSet(cursorColorSetName)
    // As it is while it does not blink.
    readonly property bool isBlinking: blinking.running

    // Shows the cursor and begins to blink anew.
    function restart() {
        line.visible = true;
        if (blinking.running)
            blinking.restart();
    }

    implicitWidth: 1
    implicitHeight: FontConstants.medium
    visible: (parent as TextInput)?.cursorVisible ?? (parent as TextEdit)?.cursorVisible ?? true

    onXChanged: restart()
    onYChanged: restart()

    Rectangle {
        id: line
        anchors.fill: parent
        color: root.cursorColorSet.normal
    }
    Timer {
        id: blinking
        interval: Application.styleHints.cursorFlashTime / 2
        repeat: true
        running: root.visible && interval > 0 && !App.animationsDisabled()
        onTriggered: line.visible = !line.visible
        onRunningChanged: line.visible = true
    }
}
