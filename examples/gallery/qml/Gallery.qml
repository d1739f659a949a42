// The gallery's window: a list of pages, the theme, the font scale and the direction, and the current page.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import Gallery 1.0

WRectangle {
    id: root

    // Behind the pages of their own a page for each family of components.
    readonly property list<string> ownPages: ["Tokens", "Fonts", "Icons", "Balloons", "Popups", "Movies"]
    readonly property list<string> pages: [...ownPages, ...Components.families]
    readonly property bool isFamily: currentPage >= ownPages.length
    readonly property list<real> fontScales: [0.5, 0.75, 1, 1.25, 1.5]
    readonly property int pageCount: pages.length
    readonly property string pageName: pages[currentPage].toLowerCase()
    readonly property GalleryPage page: loader.item as GalleryPage
    readonly property int screenfuls: page ? page.screenfuls : 0
    property int currentPage: 0
    property int screenful: 0

    implicitWidth: 1280
    implicitHeight: 840
    backgroundColorSetName: "panel-primary-background"

    LayoutMirroring.enabled: Gallery.mirrored
    LayoutMirroring.childrenInherit: true

    Binding {
        target: root.page
        property: "screenful"
        value: root.screenful
    }
    Binding {
        target: root.page
        property: "family"
        value: root.pages[root.currentPage]
        when: root.isFamily && root.page instanceof GalleryComponentsPage
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        WRectangle {
            Layout.fillWidth: true
            implicitHeight: toolbar.implicitHeight + 24
            backgroundColorSetName: "panel-secondary-background"

            Flow {
                id: toolbar

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                anchors.margins: 16
                spacing: 24

                GalleryChoice {
                    options: ["Light", "Dark", "High contrast"]
                    current: Gallery.themeModes.indexOf(App.themeMode)
                    onChosen: index => App.themeMode = Gallery.themeModes[index]
                }
                GalleryChoice {
                    options: ["50 %", "75 %", "100 %", "125 %", "150 %"]
                    current: root.fontScales.indexOf(App.fontScaleFactor)
                    onChosen: index => App.fontScaleFactor = root.fontScales[index]
                }
                GalleryButton {
                    text: "Right to left"
                    checkable: true
                    checked: Gallery.mirrored
                    onToggled: Gallery.mirrored = checked
                }
            }
        }
        WRectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            backgroundColorSetName: "separator-primary"
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            GalleryNavigation {
                Layout.fillHeight: true
                pages: root.pages
                current: root.currentPage
                onChosen: index => root.currentPage = index
            }
            WRectangle {
                Layout.fillHeight: true
                implicitWidth: 1
                backgroundColorSetName: "separator-primary"
            }
            Loader {
                id: loader

                Layout.fillWidth: true
                Layout.fillHeight: true
                source: "qrc:/Qml/Gallery" + (root.isFamily ? "Components" : root.pages[root.currentPage]) + "Page.qml"
            }
        }
    }
}
