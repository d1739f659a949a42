// A round key of a dial pad, with a large character and small ones below.
//
//     WKeyButton {
//         primary: "2"
//         secondary: "ABC"
//         onTriggered: call.sendTone(primary)
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

WButton {
    id: control

    property string primary: ""
    property string secondary: ""
    // Pixels, with fonts of their regular size; larger with larger ones.
    property int diameter: 56
    property string secondaryTextColorSetName: "button-dialpad-text-characters"
    property var secondaryTextColorSet: themeType === undefined ? null : App.getColorSet(secondaryTextColorSetName)
    property font secondaryFont: FontConstants.bodyTertiary

    implicitWidth: Math.max(Math.round(diameter * Math.max(1, App.fontScaleFactor)),
                            Math.ceil(Math.max(implicitContentWidth, implicitContentHeight)) + 2 * verticalPadding)
    implicitHeight: implicitWidth
    horizontalPadding: 8
    verticalPadding: 2 // the texts stand in the middle of the circle, where it is wide
    isRectangle: false
    backgroundColorSetName: "button-dialpad-background"
    borderColorSetName: "button-dialpad-border"
    textColorSetName: "button-dialpad-text-number"
    font: FontConstants.title

    Accessible.name: secondary === "" ? primary : primary + " " + secondary

    contentItem: Item {
        implicitWidth: texts.implicitWidth
        implicitHeight: texts.implicitHeight

        Column {
            id: texts

            anchors.centerIn: parent

            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: control.primary
                textFormat: Text.PlainText
                font: control.font
                color: control.textColor
            }
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: text !== ""
                text: control.secondary
                textFormat: Text.PlainText
                font: control.secondaryFont
                color: ThemeUtils.getColor(control, control.secondaryTextColorSet)
            }
        }
    }
}
