// A keyboard shortcut. It fires once however long the keys are held, and also where another one has the same keys: then
// they take turns.
//
//     WShortcut {
//         sequence: "Ctrl+Shift+M"
//         onActivated: microphone.toggle()
//     }
import QtQuick

Shortcut {
    id: root

    autoRepeat: false

    onActivatedAmbiguously: activated()
}
