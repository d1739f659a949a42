import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: row

    PeopleSummaryBricklet {
        id: row
        width: 256
        text: "Design team"
        names: ["Anna", "Ben", "Christine", "David", "Emil"]
    }
    PeopleSummaryBricklet {
        width: 256
        text: "Current item"
        names: ["Anna", "Ben"]
        isCurrentItem: true
    }
    PeopleSummaryBricklet {
        width: 256
        text: "Disabled"
        names: ["Anna"]
        enabled: false
    }
    PeopleSummaryBricklet {
        width: 256
        text: "Nobody yet"
    }
    PeopleSummaryBricklet {
        width: 256
        text: "A name that is far too long for the row"
        names: ["Alexander-Maximilian", "Wilhelmina-Charlotte"]
    }
}
