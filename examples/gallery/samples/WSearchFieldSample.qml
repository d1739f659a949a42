import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: field

    WSearchField {
        id: field
        serachFieldPlaceHolderText: "Search people"
    }
    WSearchField {
        searchText: "Ada"
    }
    WSearchField {
        searchText: "A text that is longer than the field is wide"
    }
    WSearchField {
        searchText: "Rectangle"
        borderRadius: 4
    }
    WSearchField {
        serachFieldPlaceHolderText: "Disabled"
        enabled: false
    }
    WSearchField {
        serachFieldPlaceHolderText: "Teilnehmende und Besprechungen durchsuchen"
    }
}
