import QtQuick

GallerySample {
    subject: file

    LKFileItem {
        id: file
        width: 256
        iconType: LKFileItem.Pdf
        fileNameLabel: "Minutes.pdf"
        fileSizeLabel: "240 KB"
        senderNameLabel: "Ada Lovelace"
        publishedTimeLabel: "10:42"
    }
    LKFileItem {
        width: 256
        iconType: LKFileItem.Excel
        fileNameLabel: "A table with a name that is too long.xlsx"
        fileSizeLabel: "3.1 MB"
    }
    LKFileItem {
        width: 256
        iconType: LKFileItem.Image
        fileNameLabel: "Holiday.png"
        fileSizeLabel: "3.1 MB"
        uploadProgress: 60
    }
    LKFileItem {
        width: 256
        fileNameLabel: "Archive.bin"
        downloadProgress: 25
        enabled: false
    }
    LKFileItem {
        width: 400
        iconType: LKFileItem.PowerPoint
        fileNameLabel: "Plan.pptx"
        fileSizeLabel: "12 MB"
        fileTransferFailedBannerText: "The file could not be sent"
        retryButtonText: "Try again"
    }
}
