import QtQuick

GallerySample {
    subject: row

    LKKeyboardShortcutsItemDelegate {
        id: row
        width: 520
        title: "Mute or unmute"
        keySequence: "Ctrl+M"
        globalLabelIsVisible: true
        globalLabelText: "Global"
        moreButtonIsVisible: true
        moreButtonTooltipText: "More"
    }
    LKKeyboardShortcutsItemDelegate {
        width: 520
        title: "Leave the meeting"
        addButtonIsVisible: true
        addButtonText: "Add"
    }
    LKKeyboardShortcutsItemDelegate {
        width: 520
        title: "Raise a hand"
        keySequence: "Ctrl+Shift+R"
        moreButtonIsVisible: true
        enabled: false
    }
    LKKeyboardShortcutsItemDelegate {
        width: 320
        title: "Show everybody who takes part in the meeting"
        keySequence: "Ctrl+Alt+P"
        moreButtonIsVisible: true
        checked: true
    }
}
