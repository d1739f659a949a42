import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: background

    component State: QtObject {
        property bool enabled: true
        property bool hovered: false
        property bool pressed: false
        property bool checked: false
    }

    ListItemBackground {
        id: background
        width: 160

        WText {
            anchors.centerIn: parent
            text: "At rest"
        }
    }
    ListItemBackground {
        width: 160
        controlsTarget: State { hovered: true }

        WText {
            anchors.centerIn: parent
            text: "Hovered"
        }
    }
    ListItemBackground {
        width: 160
        controlsTarget: State { pressed: true }

        WText {
            anchors.centerIn: parent
            text: "Pressed"
        }
    }
    ListItemBackground {
        width: 160
        controlsTarget: State { checked: true }

        WText {
            anchors.centerIn: parent
            text: "Checked"
        }
    }
    ListItemBackground {
        width: 160
        borderColorSetName: "separator-primary"
        radius: 8

        WText {
            anchors.centerIn: parent
            text: "With a border"
        }
    }
}
