import QtQuick

GallerySample {
    subject: separator

    LKMenuSeparator {
        id: separator
        width: 200
    }
    LKMenuSeparator {
        width: 200
        leftMargin: 0
        rightMargin: 40
    }
}
