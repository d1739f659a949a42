// A component in its states, one beside the other; what is live in the gallery and in the pictures of the tests.
//
//     GallerySample {
//         subject: tag
//         WTag { id: tag; text: "Draft" }
//         WTag { text: "Disabled"; enabled: false }
//     }
import QtQuick

Flow {
    // The one whose properties the gallery's inspector shows.
    property QtObject subject: null
    // Popups are open from the start, as in pictures; where people look they wait to be opened.
    property bool opensPopups: true

    width: 560
    padding: 16
    spacing: 16

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
}
