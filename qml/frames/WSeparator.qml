// A line between things, one pixel thin. It lies or stands: what uses it sets its width or its height.
//
//     WSeparator {
//         Layout.fillWidth: true
//     }
import QtQuick

WRectangle {
    // Whole pixels of the screen, as many as a border of one pixel: with a fraction the lines would differ.
    readonly property real thickness: Math.max(1, Math.round(Screen.devicePixelRatio)) / Screen.devicePixelRatio

    backgroundColorSetName: "separator-primary"

    implicitWidth: thickness
    implicitHeight: thickness

    Accessible.role: Accessible.Separator
}
