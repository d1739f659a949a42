pragma ComponentBehavior: Bound

// One of several, as a bar with round ends: half-pills at both ends, square pieces between them. The arrow keys go from
// one to the next.
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import Gallery 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

Row {
    id: root

    property var options: [] // texts
    property int current: 0

    signal chosen(int index)

    function step(by: int): void {
        const next = current + by;
        if (next < 0 || next >= segments.count)
            return;
        chosen(next);
        segments.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
    }

    Repeater {
        id: segments

        model: root.options

        T.Button {
            id: segment

            required property int index
            required property string modelData
            readonly property bool first: index === 0
            readonly property bool last: index === segments.count - 1
            readonly property string variant: checked ? "primary" : "secondary"

            implicitWidth: 4 * Math.ceil((implicitContentWidth + leftPadding + rightPadding) / 4) // no seams at 1.25 and 1.5
            implicitHeight: Math.max(32, implicitContentHeight + 12)
            horizontalPadding: 16
            z: visualFocus ? 1 : 0
            checked: index === root.current
            focusPolicy: Qt.StrongFocus
            hoverEnabled: true
            text: modelData
            font: Gallery.font(4, App.fontScaleFactor)

            Accessible.role: Accessible.RadioButton
            Accessible.name: text

            Keys.onLeftPressed: root.step(mirrored ? 1 : -1)
            Keys.onRightPressed: root.step(mirrored ? -1 : 1)
            onClicked: root.chosen(index)

            contentItem: Text {
                text: segment.text
                textFormat: Text.PlainText
                font: segment.font
                color: ThemeUtils.getColor(segment, Gallery.colorSet("button-" + segment.variant + "-text", App.themeMode))
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
            }

            background: WHalfPill {
                id: piece

                readonly property bool atLeft: segment.mirrored ? segment.last : segment.first
                readonly property bool atRight: segment.mirrored ? segment.first : segment.last

                edge: atLeft ? WHalfPill.Left : atRight ? WHalfPill.Right : WHalfPill.None
                borderLeft: atLeft // else it is the neighbour's right border
                backgroundColor:
                    ThemeUtils.getColor(segment, Gallery.colorSet("button-" + segment.variant + "-background", App.themeMode))
                borderColor:
                    ThemeUtils.getColor(segment, Gallery.colorSet("button-" + segment.variant + "-border", App.themeMode))
                // These do not repaint by themselves.
                onEdgeChanged: update()
                onBorderChanged: update()

                Rectangle {
                    readonly property real leftRadius: piece.atLeft ? height / 2 : 4
                    readonly property real rightRadius: piece.atRight ? height / 2 : 4

                    anchors.fill: parent
                    anchors.margins: -4
                    visible: segment.visualFocus
                    topLeftRadius: leftRadius
                    bottomLeftRadius: leftRadius
                    topRightRadius: rightRadius
                    bottomRightRadius: rightRadius
                    color: "transparent"
                    border.width: 2
                    border.color: Gallery.colorSet("global-focus-outline", App.themeMode).normal
                }
            }
        }
    }
}
