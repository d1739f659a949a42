import QtQuick
import LumakitQml

Item {
    id: item

    property int size: LKButtonSize.XL
    readonly property int pixelSize: LKPillButtonData.font.pixelSize
    readonly property font textFont: text.font

    LKPillButtonData.size: size

    Text {
        id: text

        font: item.LKPillButtonData.font
        text: "Button"
        textFormat: Text.PlainText
    }
}
