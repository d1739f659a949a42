pragma ComponentBehavior: Bound

// An animated image from the application's movie source: a spinner while it is on its way, then the movie, or a
// fallback image where it cannot be had. Where the system asks for no animations the first frame stands still.
//
//     WDynamicAnimatedImage {
//         width: 240
//         height: 135
//         source: "welcome"
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0

Item {
    id: root

    // What the movie source is asked for; nothing is shown without it.
    property string source: ""
    property var themeType: App.themeMode
    // The colour of a fallback image "image://svg/%1/<icon>".
    property string fallbackColorSetName: "label-secondary-text"
    property var fallbackColorSet: themeType === undefined ? null : App.getColorSet(fallbackColorSetName)
    // The page that is shown: -1 none, 0 waiting, 1 the movie, 2 the fallback image.
    readonly property int stackIndex: source === "" ? -1 : provider.stackIndex
    property string fetchedSource: ""

    function fetch(): void {
        if (source === fetchedSource)
            return;
        fetchedSource = source;
        provider.stackIndex = 0;
        if (source !== "")
            provider.fetch(source);
    }

    implicitWidth: movie.implicitWidth
    implicitHeight: movie.implicitHeight

    onSourceChanged: fetch()
    Component.onCompleted: fetch()

    WMovieProvider {
        id: provider

        onMovieChanged: {
            if (!provider.movie || !App.animationsDisabled())
                return;
            provider.movie.start();
            provider.movie.setPaused(true);
        }
    }
    WMovieItem {
        id: movie

        anchors.fill: parent
        visible: root.stackIndex === 1
        movie: provider.movie
    }
    Loader {
        anchors.centerIn: parent
        active: root.stackIndex === 0
        sourceComponent: WSvgSpinner {
            width: 27
            height: 27
        }
    }
    Loader {
        anchors.fill: parent
        active: root.stackIndex === 2
        sourceComponent: WImage {
            source: width < 1 || height < 1
                    ? "" : provider.fallbackSource.replace("%1", root.fallbackColorSet?.normal ?? "")
            sourceSize: Qt.size(width, height)
            asynchronous: true
            fillMode: Image.PreserveAspectFit
        }
    }
}
