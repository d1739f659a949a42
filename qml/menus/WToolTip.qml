// A balloon with a text whose arrow points at the item it is declared in. Where it does not fit beside the item it goes
// to the other side; moved by the window's edge, its arrow still points at the item.
//
//     WButton {
//         id: button
//         text: "Mute"
//
//         WToolTip {
//             text: "Nobody hears you while you are muted"
//             visible: button.hovered
//         }
//     }
import QtQuick
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

T.ToolTip {
    id: control

    // Where along its edge the arrow stands.
    property int arrowAlignment: WBalloon.CenterAlignment
    // The edge that the arrow stands on: Bottom puts the balloon above the item, Left to the right of it, and so on.
    // None has no arrow and stands above.
    property int arrowAnchor: WBalloon.Bottom
    // How far the arrow stands right of or below the place that its alignment gives it, pixels.
    property int arrowOffset: 0
    property int arrowSize: 8
    // Times the font's.
    property real lineHeight: 1
    property int textPadding: 8
    property int textVerticalPadding: textPadding
    property int textHorizontalPadding: textPadding
    property int borderWidth: 1
    property var themeType: App.themeMode
    property string backgroundColorSetName: "popover-primary-background"
    property string borderColorSetName: "menulistbackground-primary-border"
    property string textColorSetName: "label-primary-text"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var borderColorSet: themeType === undefined ? null : App.getColorSet(borderColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property int radius: 8
    // A longer text wraps, pixels.
    property real maximumWidth: 320
    // Where the arrow points, in the coordinates of the item; its middle if not set.
    property real targetX: parent ? parent.width / 2 : 0
    property real targetY: parent ? parent.height / 2 : 0
    // Whether the balloon may go to the other side of the item.
    property bool canFlip: true
    readonly property int gap: arrowAnchor === WBalloon.None ? 4 : 0
    readonly property bool isBeside: arrowAnchor === WBalloon.Left || arrowAnchor === WBalloon.Right
    readonly property real windowWidth: parent ? parent.Window.width : 0
    readonly property real windowHeight: parent ? parent.Window.height : 0
    readonly property bool flipped: visible && canFlip && popupType === T.Popup.Item && fitsOnlyOpposite()
    // The edge that the arrow stands on at present.
    readonly property int shownArrowAnchor: !flipped ? arrowAnchor
                                          : arrowAnchor === WBalloon.Top ? WBalloon.Bottom
                                          : arrowAnchor === WBalloon.Bottom ? WBalloon.Top
                                          : arrowAnchor === WBalloon.Left ? WBalloon.Right : WBalloon.Left

    // A balloon with a line inside its edge, for the library's other popups. Its colours are opaque or transparent.
    component Balloon: WBalloon {
        id: balloon

        property color fillColor
        property color lineColor
        property int lineWidth: 1

        radius: 8
        backgroundColor: lineColor

        WBalloon {
            anchors.fill: parent
            anchors.margins: balloon.lineWidth
            arrowAlignment: balloon.arrowAlignment
            arrowAnchor: balloon.arrowAnchor
            arrowOffset: balloon.arrowOffset
            arrowSize: balloon.arrowSize
            radius: Math.max(0, balloon.radius - balloon.lineWidth)
            backgroundColor: balloon.fillColor
        }
    }

    // How far the arrow's tip is from the start of an edge of that length.
    function tip(edgeLength: real): real {
        const corner = arrowSize + radius;
        let wanted = edgeLength / 2;
        if (arrowAlignment === (isBeside ? WBalloon.TopAlignment : WBalloon.LeftAlignment))
            wanted = corner;
        else if (arrowAlignment === (isBeside ? WBalloon.BottomAlignment : WBalloon.RightAlignment))
            wanted = edgeLength - corner;
        return Math.max(corner, Math.min(edgeLength - corner, wanted + arrowOffset));
    }

    function fitsOnlyOpposite(): bool {
        const origin = parent.mapToItem(null, 0, 0);
        const before = isBeside ? origin.x : origin.y;
        const after = isBeside ? windowWidth - before - parent.width : windowHeight - before - parent.height;
        const needed = isBeside ? width : height;
        switch (arrowAnchor) {
        case WBalloon.Top:
        case WBalloon.Left:
            return after < needed && before >= needed;
        case WBalloon.Bottom:
        case WBalloon.Right:
            return before < needed && after >= needed;
        default:
            return false;
        }
    }

    x: {
        if (shownArrowAnchor === WBalloon.Left)
            return parent ? Math.round(parent.width) : 0;
        return Math.round(shownArrowAnchor === WBalloon.Right ? -width : targetX - tip(width));
    }
    y: {
        if (shownArrowAnchor === WBalloon.Top)
            return parent ? Math.round(parent.height) : 0;
        return Math.round(isBeside ? targetY - tip(height) : -height - gap);
    }
    // The same on both sides, or choosing the side would depend on the side.
    implicitWidth: Math.min(maximumWidth, Math.ceil(implicitContentWidth) + 2 * textHorizontalPadding)
                   + (isBeside ? arrowSize : 0)
    implicitHeight: Math.ceil(implicitContentHeight) + 2 * textVerticalPadding
                    + (isBeside || arrowAnchor === WBalloon.None ? 0 : arrowSize)
    margins: 4
    topPadding: textVerticalPadding + (shownArrowAnchor === WBalloon.Top ? arrowSize : 0)
    bottomPadding: textVerticalPadding + (shownArrowAnchor === WBalloon.Bottom ? arrowSize : 0)
    leftPadding: textHorizontalPadding + (shownArrowAnchor === WBalloon.Left ? arrowSize : 0)
    rightPadding: textHorizontalPadding + (shownArrowAnchor === WBalloon.Right ? arrowSize : 0)
    font: FontConstants.bodySecondary
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    onAboutToShow: contentItem.parent.Accessible.name = Qt.binding(() => text)

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        font: control.font
        color: ThemeUtils.getColor(control, control.textColorSet)
        lineHeight: control.lineHeight
        wrapMode: Text.Wrap
    }
    background: Balloon {
        arrowAnchor: control.shownArrowAnchor
        // From the middle, so that the tip stays at the target when the window's edge moves the balloon.
        arrowOffset: Math.round(control.isBeside ? control.targetY - control.y - height / 2
                                                 : control.targetX - control.x - width / 2)
        arrowSize: control.arrowSize
        radius: control.radius
        lineWidth: control.borderWidth
        lineColor: ThemeUtils.getColor(control, control.borderColorSet)
        fillColor: ThemeUtils.getColor(control, control.backgroundColorSet)
    }
}
