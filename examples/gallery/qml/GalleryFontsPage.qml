pragma ComponentBehavior: Bound

// The font tokens at the application's scale, and the roles that a view scales by itself.
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import Gallery 1.0

GalleryPage {
    id: root

    readonly property var scaledFonts: FontManager.getFont(FontManagerEnum.MessagingView)

    screenfuls: Math.ceil(scroll.contentHeight / Math.max(1, height))

    Flickable {
        id: scroll
        clip: true

        anchors.fill: parent
        contentHeight: columns.implicitHeight + 32
        contentY: Math.min(root.screenful * height, Math.max(0, contentHeight - height))

        RowLayout {
            id: columns

            x: 16
            y: 16
            width: root.width - 32
            spacing: 32

            ColumnLayout {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignTop
                spacing: 6

                GalleryText {
                    token: 2 // Header
                    text: "Tokens"
                }
                Repeater {
                    model: Gallery.fontTokens

                    RowLayout {
                        id: tokenRow

                        required property int index
                        required property string modelData

                        spacing: 16

                        GalleryText {
                            id: sample

                            Layout.fillWidth: true
                            token: tokenRow.index
                            text: tokenRow.modelData
                        }
                        GalleryText {
                            colorSetName: "label-secondary-text"
                            text: Gallery.describe(sample.font)
                        }
                    }
                }
            }
            ColumnLayout {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignTop
                spacing: 6

                GalleryText {
                    token: 2
                    text: "Roles of a messaging view"
                }
                GalleryChoice {
                    id: factors

                    options: ["Small", "Regular", "Medium", "Large"]
                    current: 1
                    onChosen: index => {
                        current = index;
                        FontManager.setScalingFactor(FontManagerEnum.MessagingView, index - 1);
                    }
                }
                Repeater {
                    model: Gallery.fontRoles

                    RowLayout {
                        id: roleRow

                        required property string modelData

                        spacing: 16

                        Text {
                            id: roleSample

                            Layout.fillWidth: true
                            color: Gallery.colorSet("label-primary-text", App.themeMode).normal
                            elide: Text.ElideRight
                            font: root.scaledFonts[roleRow.modelData]
                            text: roleRow.modelData
                            textFormat: Text.PlainText
                            horizontalAlignment: Text.AlignLeft
                        }
                        GalleryText {
                            colorSetName: "label-secondary-text"
                            text: Gallery.describe(roleSample.font)
                        }
                    }
                }
            }
        }
    }
}
