import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: list

    WExpandableListView {
        id: list
        width: 264
        height: 240
        currentIndex: 2
        scrollBar.timerInterval: 0
        expandedStatusList: ({ "Offline": false })
        model: ListModel {
            ListElement { session: "Favourites"; text: "Ada" }
            ListElement { session: "Favourites"; text: "Bertrand" }
            ListElement { session: "Offline"; text: "Grace" }
            ListElement { session: "Everybody"; text: "Kurt" }
            ListElement { session: "Everybody"; text: "Lise Benachrichtigungseinstellungen" }
            ListElement { session: "Everybody"; text: "Max" }
        }
        Accessible.name: "Contacts"
    }
    WExpandableListView {
        width: 240
        height: 240
        model: ListModel {}
        emptyStateHeader: "No contacts yet"
        emptyStateImage: "users"
        emptyStateImageSize: 40
        emptyStateImageColorSetName: "label-secondary-text"
    }
}
