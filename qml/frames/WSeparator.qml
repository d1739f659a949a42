// A line between things, one pixel thin. It lies or stands: what uses it sets its width or its height.
//
//     WSeparator {
//         Layout.fillWidth: true
//     }
import QtQuick

WRectangle {
    backgroundColorSetName: "separator-primary"

    implicitWidth: 1
    implicitHeight: 1

    Accessible.role: Accessible.Separator
}
