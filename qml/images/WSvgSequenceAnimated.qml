// An animation of icons: "<imagePrefixName>1" to "<imagePrefixName><frameCount>", one after the other. It waits while
// it cannot be seen, and stands still where the system asks for no animations.
//
//     WSvgSequenceAnimated {
//         imagePrefixName: "typing-"
//         frameCount: 4
//         running: contact.isTyping
//     }
import QtQuick
import Corvane 1.0

WSvgImage {
    id: root

    property string imagePrefixName: ""
    property int frameCount: 0
    // From 1; what is out of range shows the nearest frame.
    property int currentFrame: 1
    // Milliseconds.
    property int frameDuration: 250
    property string svgColorSetName: "label-primary-text"
    // How often the frames are shown; a negative number for ever.
    property int loops: Animation.Infinite
    // Stays at the current frame; goes on from there.
    property bool paused: false
    // Setting it starts with the first frame. It stays set after the last loop, so that a binding to it stays.
    property bool running: true
    property var themeType: App.themeMode
    property var svgColorSet: themeType === undefined ? null : App.getColorSet(svgColorSetName)
    property color svgColor: svgColorSet?.isValid ? svgColorSet.normal : "transparent"
    readonly property string currentFrameName: frameCount < 1
                                              ? "" : imagePrefixName + Math.max(1, Math.min(currentFrame, frameCount))
    // The loops that are over since the start.
    property int finishedLoops: 0
    readonly property bool isPlaying: running && !paused && visible && frameCount > 1 && frameDuration > 0
                                      && (loops < 0 || finishedLoops < loops) && !App.animationsDisabled()

    // After the last loop; the last frame stays.
    signal finished

    // Also the end of a loop.
    function showNextFrame(): void {
        if (currentFrame < frameCount) {
            ++currentFrame;
            return;
        }
        ++finishedLoops;
        if (loops < 0 || finishedLoops < loops)
            currentFrame = 1;
        else
            finished();
    }

    width: 24
    height: 24
    svgName: currentFrameName
    source: svgName === "" || width < 1 || height < 1 || svgColor.a === 0
            ? "" : "image://svg/" + svgColor + "/" + svgName
    // Never empty, also not while only one of the sides has changed yet: the provider would complain.
    sourceSize: Qt.size(Math.max(1, width), Math.max(1, height))

    onRunningChanged: {
        if (!running)
            return;
        finishedLoops = 0;
        currentFrame = 1;
    }

    Timer {
        interval: Math.max(1, root.frameDuration)
        repeat: true
        running: root.isPlaying
        onTriggered: root.showNextFrame()
    }
}
