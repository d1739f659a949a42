// A name and its value in one line, such as "Codec: H.264". Where both are wider than the maximum width the value is
// shortened, and a tooltip shows all of it.
//
//     WNamedValue {
//         name: "Codec"
//         value: "H.264"
//     }
import QtQuick
import LumakitQml.Private 1.0

WItem {
    id: root

    property string name: ""
    property string value: ""
    // Pixels; negative for no limit.
    property real maximumWidth: -1
    property string nameColorSetName: "label-secondary-text"
    property string valueColorSetName: "label-primary-text"
    // The width in which nothing is shortened, pixels.
    readonly property real preferredWidth: Math.ceil(nameText.implicitWidth) + gap + Math.ceil(valueText.implicitWidth)
    // Both in one text as they stand from left to right: the name first, and for mirrored layouts the value first.
    readonly property string nameValue: name === "" || value === "" ? name + value : name + ": " + value
    readonly property string valueName: name === "" || value === "" ? name + value : value + " :" + name
    // The one of the present direction.
    readonly property string text: LayoutMirroring.enabled ? valueName : nameValue
    readonly property int gap: name === "" || value === "" ? 0 : 4

    implicitWidth: maximumWidth < 0 ? preferredWidth : Math.min(preferredWidth, maximumWidth)
    implicitHeight: Math.ceil(Math.max(nameText.implicitHeight, valueText.implicitHeight))

    Accessible.role: Accessible.StaticText
    Accessible.name: nameValue

    WText {
        id: nameText
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(Math.ceil(implicitWidth), root.width)
        text: root.name === "" || root.value === "" ? root.name : root.name + ":"
        textColorSetName: root.nameColorSetName
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
    WText {
        id: valueText
        anchors.left: nameText.right
        anchors.leftMargin: root.gap
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.value
        textColorSetName: root.valueColorSetName
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
    ToolTipTrigger {
        text: nameText.truncated || valueText.truncated ? root.nameValue : ""
    }
}
