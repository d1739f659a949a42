import QtQuick

GallerySample {
    subject: group

    LKKeyboardShortcutsGroupDelegate {
        id: group
        width: 480
        title: "Call"
        items: [
            { title: "Mute or unmute", keySequence: "Ctrl+M", moreButtonIsVisible: true },
            { title: "Leave the meeting", addButtonIsVisible: true, addButtonText: "Add" }
        ]
    }
    LKKeyboardShortcutsGroupDelegate {
        width: 480
        title: "Messages"
        collapsed: true
        items: [{ title: "Search", keySequence: "Ctrl+F" }]
    }
    LKKeyboardShortcutsGroupDelegate {
        width: 480
        title: "Disabled"
        enabled: false
        items: [{ title: "Record", keySequence: "Ctrl+R" }]
    }
}
