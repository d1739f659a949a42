import QtQuick

WRectangle {
    implicitWidth: 120
    implicitHeight: 80
    backgroundColorSetName: "transparent"
}
