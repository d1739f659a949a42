// A row of the popup lists in the samples.
import QtQuick
import LumakitQml 1.0

WMenuItem {
    required property string modelData
    required property int index

    text: modelData
    indicatorSvgName: index === 0 ? "check-bold" : ""
    hasIndicator: true
}
