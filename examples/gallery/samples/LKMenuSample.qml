import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: menu

    LKMenu {
        id: menu
        arrowAnchor: WBalloon.Top
        model: [
            { text: "Built-in speaker", iconName: "speaker", checked: true },
            { text: "Headset", iconName: "headset", checked: false },
            { text: "Monitor", iconName: "speaker", enabled: false },
            { isSeparator: true },
            { text: "Sound settings", iconName: "settings" }
        ]
    }
    LKMenu {
        arrowAnchor: WBalloon.Left
        arrowAlignment: WBalloon.TopAlignment
        maxListItemSize: 4
        model: ["Small", "Medium", "Large", "Huge", "This one is reached by scrolling"]
    }
}
