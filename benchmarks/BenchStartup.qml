pragma ComponentBehavior: Bound

// Fifty components: ten rows of a button, a label, an icon, a field and a check box.
import QtQuick
import LumakitQml 1.0

WRectangle {
    width: 800
    height: 480
    backgroundColorSetName: "panel-primary-background"

    Column {
        Repeater {
            model: 10

            Row {
                id: row

                required property int index

                height: 48
                spacing: 16

                LKPillButton {
                    text: "Join " + row.index
                }
                WLabel {
                    text: "Name " + row.index
                }
                WSvgIcon {
                    svgName: "video-bold"
                }
                WTextField {
                    text: "Text " + row.index
                }
                WCheckBox {
                    text: "Choice " + row.index
                }
            }
        }
    }
}
