import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: row

    component Row: WExpandableListViewItem {
        id: item

        property alias text: label.text

        width: 264

        Accessible.name: text

        nextSibVisualFocusItem: visualFocusItem === item ? callButton : null
        prevSibVisualFocusItem: visualFocusItem === item ? null : item

        WText {
            id: label
            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.right: callButton.left
            anchors.verticalCenter: parent.verticalCenter
            textColorSetName: "listitem-textprimary"
            controlsTarget: item
            elide: Text.ElideRight
        }
        WSvgIconButton {
            id: callButton
            anchors.right: parent.right
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            implicitHeight: 28
            focusPolicy: Qt.NoFocus
            iconName: "phone-bold"
            tooltip: "Call"
        }
    }

    Row {
        id: row
        text: "Ada"
    }
    Row {
        text: "Chosen"
        checked: true
    }
    Row {
        text: "Disabled"
        enabled: false
    }
    Row {
        text: "Ein sehr langer Name, der keinen Platz hat"
    }
}
