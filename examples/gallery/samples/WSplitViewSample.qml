import QtQuick
import QtQuick.Templates as T
import LumakitQml 1.0

GallerySample {
    subject: view

    WSplitView {
        id: view
        width: 528
        height: 120

        WPane {
            T.SplitView.preferredWidth: 160
            T.SplitView.minimumWidth: 80
            backgroundColorSetName: "panel-secondary-background"

            WText {
                width: parent.width
                text: "Rooms"
                elide: Text.ElideRight
            }
        }
        WPane {
            T.SplitView.fillWidth: true
            T.SplitView.minimumWidth: 80

            WText {
                width: parent.width
                text: "Messages"
                elide: Text.ElideRight
            }
        }
        WPane {
            T.SplitView.preferredWidth: 120
            T.SplitView.maximumWidth: 200
            backgroundColorSetName: "panel-secondary-background"

            WText {
                width: parent.width
                text: "People"
                elide: Text.ElideRight
            }
        }
        handleAccessibleName: "Width"
    }
    WSplitView {
        width: 248
        height: 120
        orientation: Qt.Vertical

        WPane {
            T.SplitView.preferredHeight: 48
        }
        WPane {
            T.SplitView.fillHeight: true
        }
        handleAccessibleName: "Height"
    }
    WSplitView {
        width: 248
        height: 120
        enabled: false

        WPane {
            T.SplitView.preferredWidth: 120
        }
        WPane {
            T.SplitView.fillWidth: true
        }
        handleAccessibleName: "Disabled"
    }
}
