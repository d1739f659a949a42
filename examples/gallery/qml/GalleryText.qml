// A line of text in a font token and a colour-set token, elided where it does not fit.
import QtQuick
import Corvane 1.0
import Gallery 1.0

Text {
    property int token: 6 // BodySecondary
    property string colorSetName: "label-primary-text"

    color: Gallery.colorSet(colorSetName, App.themeMode).normal
    font: Gallery.font(token, App.fontScaleFactor)
    elide: Text.ElideRight
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
}
