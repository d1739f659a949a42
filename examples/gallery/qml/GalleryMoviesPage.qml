// Animated images: one that arrives after a moment, one that fails, and one that is replaced by another.
import QtQuick

GalleryPage {
    id: root

    readonly property list<string> others: ["wave", "pulse"]
    property int other: 0

    Flow {
        anchors.fill: parent
        anchors.margins: 16
        spacing: 16

        GalleryMovie {
            objectName: "arrives"
            text: "Arrives after a moment"
            source: "orbit"
            action: "Fetch again"
            onAsked: fetch()
        }
        GalleryMovie {
            objectName: "fails"
            text: "Fails, with a fallback"
            source: "nowhere"
            action: "Try again"
            onAsked: fetch()
        }
        GalleryMovie {
            objectName: "replaced"
            text: "Replaced by another"
            source: root.others[root.other]
            action: "Fetch another"
            onAsked: root.other = 1 - root.other
        }
    }
}
