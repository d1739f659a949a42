pragma ComponentBehavior: Bound

// A file in a conversation or a list: an icon by its type, its name, size, sender and time, the progress of its
// transfer and, where that has failed, a banner.
//
//     LKFileItem {
//         iconType: LKFileItem.Pdf
//         fileNameLabel: "Minutes.pdf"
//         fileSizeLabel: "240 KB"
//         senderNameLabel: "Ada Lovelace"
//         publishedTimeLabel: "10:42"
//         downloadProgress: download.percent
//         onClicked: files.open(fileId)
//     }
import QtQuick
import QtQuick.Layouts
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

ColumnLayout {
    id: root

    enum IconType {
        File,
        Doc, Word, Excel, PowerPoint, OneNote, Pdf, Keynotes, Sheets, Slides,
        Image, Video, Audio, Archive
    }

    property var themeType: App.themeMode
    // Anything else is File.
    property int iconType: LKFileItem.File
    property var iconBackgroundColorSet: themeType === undefined ? null : App.getColorSet(iconLook.colorSetName)
    // Plain texts; what is empty is left out.
    property string fileNameLabel: ""
    property string fileSizeLabel: ""
    property string senderNameLabel: ""
    property string publishedTimeLabel: ""
    // Percent; negative while there is no such transfer.
    property real uploadProgress: -1
    property real downloadProgress: -1
    // A type of LKAlertBanner, and its text; no banner without.
    property int fileTransferFailedBannerType: LKAlertBanner.Error
    property string fileTransferFailedBannerText: ""
    // The banner's button; none without a text.
    property string retryButtonText: ""
    property string cancelButtonTooltip: qsTr("Cancel")
    property string backgroundColorSetName: "attachment-file-" + lookName + "-sent-background"
    property string borderColorSetName: "attachment-file-" + lookName + "-sent-border"
    property string textColorSetName: "attachment-file-" + lookName + "-sent-label-primary"
    property string secondaryTextColorSetName: "attachment-file-" + lookName + "-sent-label-secondary"
    readonly property bool isTransferring: uploadProgress >= 0 || downloadProgress >= 0
    readonly property bool hasFailed: fileTransferFailedBannerText !== ""
    readonly property var iconLook: lookOf(iconType)
    readonly property string lookName: hasFailed ? "error" : "default"
    readonly property string details: [fileSizeLabel, senderNameLabel, publishedTimeLabel]
        .filter(text => text !== "").join(" · ")

    // The file, by mouse, Space, Enter, Return or a screen reader.
    signal clicked
    signal cancelClicked
    signal retryClicked
    signal bannerDismissed

    // The colour set behind the icon, the icon's and the icon.
    function lookOf(type: int): var {
        const branded = (name, icon) => ({
            colorSetName: "attachment-file-branded-sent-previewBox-background-" + name,
            iconColorSetName: "attachment-file-branded-sent-previewBox-icon",
            icon: icon
        });
        const plain = icon => ({
            colorSetName: "attachment-file-default-sent-previewBox-background",
            iconColorSetName: "attachment-file-default-sent-previewBox-icon",
            icon: icon
        });
        switch (type) {
        case LKFileItem.Doc: return branded("doc", "file-text");
        case LKFileItem.Word: return branded("word", "file-text");
        case LKFileItem.Excel: return branded("excel", "grid");
        case LKFileItem.PowerPoint: return branded("powerpoint", "layout");
        case LKFileItem.OneNote: return branded("onenote", "bookmark");
        case LKFileItem.Pdf: return branded("pdf", "file-text");
        case LKFileItem.Keynotes: return branded("keynotes", "layout");
        case LKFileItem.Sheets: return branded("sheets", "grid");
        case LKFileItem.Slides: return branded("slides", "layout");
        case LKFileItem.Image: return plain("image");
        case LKFileItem.Video: return plain("video");
        case LKFileItem.Audio: return plain("speaker");
        case LKFileItem.Archive: return plain("folder");
        default: return plain("file");
        }
    }

    spacing: 4

    WButton {
        id: file

        Layout.fillWidth: true
        implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
        horizontalPadding: 8
        verticalPadding: 8
        spacing: 12
        radius: 8
        themeType: root.themeType
        text: root.fileNameLabel
        backgroundColorSetName: root.backgroundColorSetName
        borderColorSetName: root.borderColorSetName
        textColorSetName: root.textColorSetName
        onTriggered: root.clicked()

        Accessible.description: root.details

        contentItem: RowLayout {
            spacing: file.spacing

            Rectangle {
                implicitWidth: 40
                implicitHeight: 40
                radius: 4
                color: ThemeUtils.getColor(file, root.iconBackgroundColorSet)

                WSvgIcon {
                    anchors.centerIn: parent
                    width: 20
                    height: 20
                    svgName: root.iconLook.icon
                    svgColorSetName: root.iconLook.iconColorSetName
                }
            }
            ColumnLayout {
                spacing: 2

                WTextElide {
                    Layout.fillWidth: true
                    text: root.fileNameLabel
                    controlsTarget: file
                    textColorSetName: root.textColorSetName
                    font: FontConstants.highlightSecondary
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
                WTextElide {
                    Layout.fillWidth: true
                    visible: !empty
                    text: root.details
                    controlsTarget: file
                    textColorSetName: root.secondaryTextColorSetName
                    font: FontConstants.bodyTertiary
                    Accessible.ignored: true
                }
                Loader {
                    Layout.fillWidth: true
                    Layout.topMargin: 2
                    active: root.isTransferring
                    visible: active
                    sourceComponent: ProgressLine {
                        isUpload: root.uploadProgress >= 0
                        percent: isUpload ? root.uploadProgress : root.downloadProgress
                    }
                }
            }
            Loader {
                active: root.isTransferring
                visible: active
                sourceComponent: LKRoundButton {
                    buttonIcon: "close-bold"
                    buttonStyle: LKButtonStyle.Ghost
                    buttonSize: LKButtonSize.XS
                    onClicked: root.cancelClicked()

                    Accessible.name: root.cancelButtonTooltip

                    ToolTipTrigger {
                        text: root.cancelButtonTooltip
                    }
                }
            }
        }
    }
    Loader {
        Layout.fillWidth: true
        active: root.hasFailed
        visible: active
        sourceComponent: LKAlertBanner {
            bannerType: root.fileTransferFailedBannerType
            text: root.fileTransferFailedBannerText
            buttonText: root.retryButtonText
            onButtonClicked: () => root.retryClicked()
            radius: 8
            onBannerDismissed: root.bannerDismissed()
        }
    }

    // The progress of a transfer, with the direction in which it goes.
    component ProgressLine: Item {
        id: line

        property bool isUpload: false
        property real percent: 0
        readonly property real fraction: Math.max(0, Math.min(1, percent / 100))

        implicitWidth: 96
        implicitHeight: 16

        Accessible.role: Accessible.ProgressBar
        Accessible.name: Math.round(100 * fraction) + Qt.locale().percent

        WSvgIcon {
            id: direction

            anchors.left: parent.left
            width: 16
            height: 16
            svgName: line.isUpload ? "upload" : "download"
            svgColorSetName: "spinner-progress-cursor"
        }
        WRectangle {
            anchors.left: direction.right
            anchors.right: parent.right
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            height: 4
            radius: 2
            backgroundColorSetName: "spinner-progress-track"

            WRectangle {
                anchors.left: parent.left
                width: Math.round(parent.width * line.fraction)
                height: parent.height
                radius: 2
                backgroundColorSetName: "spinner-progress-cursor"
            }
        }
    }
}
