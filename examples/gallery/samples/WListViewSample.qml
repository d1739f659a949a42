pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import LumakitQml 1.0

GallerySample {
    subject: list

    component Row: T.ItemDelegate {
        id: row

        required property int index

        width: ListView.view?.width ?? 0
        implicitHeight: Math.max(40, contentItem.implicitHeight + 8)
        horizontalPadding: 12
        text: "Contact " + (index + 1)
        highlighted: ListView.isCurrentItem
        hoverEnabled: true
        onClicked: ListView.view.currentIndex = index

        contentItem: WText {
            text: row.text
            textColorSetName: "listitem-textprimary"
            controlsTarget: row
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
        background: ListItemBackground {
            controlsTarget: ({ enabled: row.enabled, pressed: row.down, hovered: row.hovered, checked: row.highlighted })
        }
    }

    WListView {
        id: list
        width: 240
        height: 200
        scrollBar.timerInterval: 0
        listView.model: 12
        listView.delegate: Row {}
        Accessible.name: "Contacts"
    }
    WListView {
        width: 264
        height: 200
        listView.model: 0
        emptyStateHeader: "No contacts yet"
        emptyStateSubtitle: "People whom you add are shown here."
        emptyStateImage: "users"
        emptyStateImageSize: 40
        emptyStateImageColorSetName: "label-secondary-text"
        emptyStateBorderWidth: 1
    }
    WListView {
        width: 240
        enabled: false
        scrollable: false
        listView.model: 3
        listView.delegate: Row {}
        Accessible.name: "Contacts that cannot be chosen"
    }
}
