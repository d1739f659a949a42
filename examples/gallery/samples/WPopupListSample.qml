import QtQuick
import LumakitQml 1.0

GallerySample {
    subject: list

    WPopupList {
        id: list
        model: ["Built-in microphone", "Headset", "A microphone with a name that is too long"]
        delegateSource: "WPopupListSampleRow.qml"
        hasHeader: true
        headerText: "Microphone"
        balloon.arrowAnchor: WBalloon.Top
    }
    WPopupList {
        model: ["Small", "Medium", "Large", "Huge", "This one is reached by scrolling"]
        delegateSource: "WPopupListSampleRow.qml"
        maxVisibleItems: 4
        listWidth: 160
        hasSideHeader: true
        sideHeader: WSvgIcon {
            svgName: "headset"
            fillMode: Image.Pad
        }
    }
}
