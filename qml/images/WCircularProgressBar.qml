// Progress as a ring that fills clockwise from the top. It paints when something of it has changed, never by itself.
//
//     WCircularProgressBar {
//         currentValue: upload.percent
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

Canvas {
    id: root

    // From minimumValue to maximumValue; what is beyond counts as the limit.
    property real currentValue: 0
    // Pixels.
    property real lineWidth: 4
    property string backgroundColorSetName: "spinner-progress-track"
    property string barColorSetName: "spinner-progress-cursor"
    // The ring's centre and radius, that of the line's middle, in pixels.
    property real centerWidth: width / 2
    property real radius: Math.max(0, (Math.min(width, height) - lineWidth) / 2)
    // How far the bar reaches, and where it begins: radians, clockwise; 0 points to the right.
    property real angle: 2 * Math.PI * fraction
    property real angleOffset: -Math.PI / 2
    // The control whose state picks the colours; this item itself if null.
    property var controlsTarget: null
    property var themeType: App.themeMode
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var barColorSet: themeType === undefined ? null : App.getColorSet(barColorSetName)
    property real centerHeight: height / 2
    property real minimumValue: 0
    property real maximumValue: 100
    property color backgroundColor: ThemeUtils.getColor(controlsTarget ?? root, backgroundColorSet)
    property color barColor: ThemeUtils.getColor(controlsTarget ?? root, barColorSet)
    // From 0 to 1.
    readonly property real fraction: maximumValue > minimumValue
                                     ? Math.max(0, Math.min(1, (currentValue - minimumValue)
                                                               / (maximumValue - minimumValue)))
                                     : 0

    function drawArc(context: var, color: color, start: real, length: real): void {
        context.beginPath();
        context.strokeStyle = color;
        context.arc(centerWidth, centerHeight, radius, start, start + length, false);
        context.stroke();
    }

    implicitWidth: 32
    implicitHeight: 32

    onAngleChanged: requestPaint()
    onAngleOffsetChanged: requestPaint()
    onRadiusChanged: requestPaint()
    onLineWidthChanged: requestPaint()
    onCenterWidthChanged: requestPaint()
    onCenterHeightChanged: requestPaint()
    onBackgroundColorChanged: requestPaint()
    onBarColorChanged: requestPaint()

    onPaint: {
        const context = getContext("2d");
        context.reset();
        if (radius <= 0 || lineWidth <= 0)
            return;
        context.lineWidth = lineWidth;
        drawArc(context, backgroundColor, 0, 2 * Math.PI);
        if (angle > 0)
            drawArc(context, barColor, angleOffset, Math.min(angle, 2 * Math.PI));
    }

    Accessible.role: Accessible.ProgressBar
    Accessible.description: Math.round(100 * fraction) + Qt.locale().percent
}
