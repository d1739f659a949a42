pragma ComponentBehavior: Bound

import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: grid

    WGridView {
        id: grid
        width: 4 * cellWidth + 16
        height: 200
        cellWidth: 96
        cellHeight: 80
        scrollBar.timerInterval: 0
        model: 20

        Accessible.name: "Pages"

        delegate: Item {
            id: cell

            required property int index

            width: 96
            height: 80

            WFrame {
                anchors.fill: parent
                anchors.margins: 4
                radius: 8
                backgroundColorSetName: "listitem-background"
                borderColorSetName: "separator-primary"
                controlsTarget: ({ enabled: true, checked: cell.GridView.isCurrentItem })

                WText {
                    anchors.centerIn: parent
                    text: cell.index + 1
                }
            }
            MouseArea {
                anchors.fill: parent
                onClicked: cell.GridView.view.currentIndex = cell.index
            }
        }
    }
}
