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
        serachFieldPlaceHolderText: "Search contacts"
        cancelButtonAccText: "Clear contacts"
    }
    WSearchField {
        searchText: "A text that is longer than the field is wide"
        serachFieldPlaceHolderText: "Search messages"
        cancelButtonAccText: "Clear messages"
    }
    WSearchField {
        searchText: "Rectangle"
        borderRadius: 4
        serachFieldPlaceHolderText: "Search files"
        cancelButtonAccText: "Clear files"
    }
    WSearchField {
        serachFieldPlaceHolderText: "Disabled"
        enabled: false
    }
    WSearchField {
        serachFieldPlaceHolderText: "Teilnehmende und Besprechungen durchsuchen"
    }
}
