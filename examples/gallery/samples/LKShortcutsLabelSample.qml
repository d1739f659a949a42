import "qrc:/Qml"

GallerySample {
    subject: label

    LKShortcutsLabel {
        id: label
        labelText: "Ctrl + Shift + M"
    }
    LKShortcutsLabel {}
    LKShortcutsLabel {
        labelText: "Ctrl + L"
        isSelected: true
    }
    LKShortcutsLabel {
        isSelected: true
        placeholderText: editPlaceholderText
    }
    LKShortcutsLabel {
        labelText: "Ctrl + D"
        isAvailable: true
    }
    LKShortcutsLabel {
        labelText: "Ctrl + C"
        isUnavailable: true
    }
    LKShortcutsLabel {
        labelText: "Ctrl + Alt + K"
        isChecking: true
    }
    LKShortcutsLabel {
        labelText: "F1"
        isReadOnly: true
    }
    LKShortcutsLabel {
        labelText: "Ctrl + R"
        enabled: false
    }
    LKShortcutsLabel {
        width: 160
        labelText: "Ctrl + Alt + Shift + PgDown"
        isAvailable: true
    }
}
