// An animated image on a card: a spinner while it is on its way, the movie, or the fallback image where there is none. A
// movie that is replaced stays until the next one is there.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import Gallery 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0

WRectangle {
    id: root

    property string text: ""
    property string source: ""
    property string action: ""
    readonly property string status: ["Waiting", "Movie: " + source, "Fallback image"][provider.stackIndex]

    signal asked()

    function fetch(): void {
        provider.stackIndex = 0;
        provider.fetch(source);
    }

    implicitWidth: Math.max(256, column.implicitWidth + 32)
    implicitHeight: column.implicitHeight + 32
    radius: 12
    border.width: 1
    border.color: Gallery.colorSet("separator-primary", App.themeMode).normal
    backgroundColorSetName: "panel-tertiary-background"

    onSourceChanged: provider.fetch(source)

    WMovieProvider {
        id: provider
    }
    Connections {
        target: App

        function onThemeModeChanged(): void {
            root.fetch(); // the movies have the theme's colours
        }
    }
    ColumnLayout {
        id: column

        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        GalleryText {
            Layout.fillWidth: true
            token: 4 // SubheaderSecondary
            text: root.text
        }
        StackLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: 192
            currentIndex: provider.stackIndex

            Item {
                GalleryIcon {
                    anchors.centerIn: parent
                    width: 32
                    height: 32
                    name: "spinner"
                    color: Gallery.colorSet("spinner-loading-cursor", App.themeMode).normal

                    RotationAnimator on rotation {
                        running: provider.stackIndex === 0 && !App.animationsDisabled()
                        from: 0
                        to: 360
                        duration: 1000
                        loops: Animation.Infinite
                    }
                }
            }
            WMovieItem {
                objectName: "movie"
                movie: provider.movie

                Accessible.role: Accessible.Animation
                Accessible.name: root.text
            }
            Item {
                Image {
                    objectName: "fallback"
                    anchors.centerIn: parent
                    width: 96
                    height: 96
                    sourceSize: Qt.size(width, height)
                    source: provider.fallbackSource === ""
                            ? "" : provider.fallbackSource.arg(Gallery.colorSet("label-secondary-text", App.themeMode).normal)

                    Accessible.role: Accessible.Graphic
                    Accessible.name: root.text
                }
            }
        }
        GalleryText {
            Layout.fillWidth: true
            objectName: "state"
            colorSetName: "label-secondary-text"
            text: root.status
        }
        GalleryButton {
            text: root.action
            onClicked: root.asked()
        }
    }
}
