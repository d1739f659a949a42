pragma ComponentBehavior: Bound

// A contact's round picture, or the initials where there is none, with a badge that tells the presence.
//
//     WAvatar {
//         controller: contact // { displayName: "Ada Lovelace", source: "...", presence: "active" }
//         allowInteractions: true
//         showContactCard: true
//         onContactCardRequested: (around, arrowPos) => cards.show(contact, around, arrowPos)
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "LayoutUtils.js" as LayoutUtils
import "ThemeUtils.js" as ThemeUtils

WImage {
    id: root

    // The avatar can be pointed at, clicked and reached by the keyboard.
    property bool allowInteractions: false
    // A click asks for the conversation with the contact.
    property bool allowClickToConversation: false
    // Resting on the avatar asks for the contact's card, and so does a click that does not ask for the conversation.
    property bool showContactCard: false
    // The contact: an object whose displayName, initials, source, presence and presenceText are used where it has them.
    property var controller: null
    // A picture instead of the controller's, such as one that is being chosen.
    property string previewSrc: ""
    // On which side of the card the arrow is to point at the avatar: an arrow anchor of WBalloon.
    property int arrowPos: WBalloon.Left
    // The presence in words, for screen readers.
    property string presenceText: controller?.presenceText ?? ""
    property var themeType: App.themeMode
    property string displayName: controller?.displayName ?? ""
    // Shown where there is no picture; an icon without them.
    property string initials: controller?.initials ?? initialsOf(displayName)
    // The room for the initials, pixels; they are made smaller where it is too little.
    property real initialsWidth: Math.min(width, height) * 0.75
    // "active", "away", "busy", "call", "dnd", "meeting", "on-device", "on-hold", "on-mobile", "ooo", "presenting",
    // "quiet-hours" or "schedule"; no badge without one.
    property string presence: controller?.presence ?? ""
    property string presenceIconName: presenceIcon(presence)
    property string backgroundColorSetName: "avatar-color-avatar-background-default"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property string textColorSetName: "avatar-color-avatar-text"
    readonly property bool hovered: (pointer.item as MouseArea)?.containsMouse ?? false
    readonly property bool pressed: (pointer.item as MouseArea)?.pressed ?? false
    // The mouse or the keyboard's focus is on it.
    readonly property bool isPointedAt: allowInteractions && (hovered || focusRing.active)
    property bool isContactCardRequested: false

    // By mouse, Space, Enter, Return or a screen reader.
    signal clicked
    signal conversationRequested
    // `around` is the avatar's rectangle on the screen.
    signal contactCardRequested(around: rect, arrowPos: int)
    // Neither mouse nor focus is on the avatar any more.
    signal contactCardDismissed

    function click(): void {
        if (!allowInteractions || !enabled)
            return;
        clicked();
        if (allowClickToConversation)
            conversationRequested();
        else
            requestContactCard();
    }

    // What a screen reader calls, where the role is one that is pressed.
    function accessiblePressAction(): void {
        click();
    }

    function clickByKey(event: KeyEvent): void {
        if (!event.isAutoRepeat)
            click();
    }

    function requestContactCard(): void {
        if (!showContactCard || isContactCardRequested)
            return;
        isContactCardRequested = true;
        contactCardRequested(LayoutUtils.globalRect(root), arrowPos);
    }

    function dismissContactCard(): void {
        if (!isContactCardRequested)
            return;
        isContactCardRequested = false;
        contactCardDismissed();
    }

    // Of the first and the last word; what is in brackets or begins with another sign is none.
    function initialsOf(name: string): string {
        const words = name.split(/\s+/).filter(word => /^[^!-\/:-@\[-`{-~]/.test(word));
        const ends = words.length > 1 ? [words[0], words[words.length - 1]] : words;
        return ends.map(word => String.fromCodePoint(word.codePointAt(0))).join("").toLocaleUpperCase();
    }

    function presenceIcon(presence: string): string {
        switch (presence) {
        case "away": return "clock-filled";
        case "busy": return "stop-filled";
        case "call": return "phone-filled";
        case "dnd": return "dnd-filled";
        case "meeting": return "video-filled";
        case "on-device": return "headset";
        case "on-hold": return "pause-filled";
        case "on-mobile": return "dialpad";
        case "ooo": return "sign-out";
        case "presenting": return "share-screen-filled";
        case "quiet-hours": return "moon-filled";
        case "schedule": return "calendar-filled";
        default: return ""; // a plain dot
        }
    }

    width: 32
    height: 32
    source: previewSrc !== "" ? previewSrc : controller?.source ?? ""
    sourceSizeStep: 64
    fillMode: Image.PreserveAspectCrop
    activeFocusOnTab: allowInteractions

    onIsPointedAtChanged: {
        if (!isPointedAt)
            dismissContactCard();
    }

    Keys.enabled: allowInteractions
    Keys.onSpacePressed: event => clickByKey(event)
    Keys.onReturnPressed: event => clickByKey(event)
    Keys.onEnterPressed: event => clickByKey(event)

    Accessible.role: allowInteractions ? Accessible.Button : Accessible.Graphic
    Accessible.name: displayName
    Accessible.description: presenceText
    Accessible.focusable: allowInteractions

    RoundedPicture {
        anchors.fill: parent
        radius: Math.min(width, height) / 2
    }
    Loader {
        anchors.fill: parent
        active: root.status !== Image.Ready
        sourceComponent: Rectangle {
            radius: Math.min(width, height) / 2
            color: ThemeUtils.getColor(root, root.backgroundColorSet)

            Loader {
                anchors.centerIn: parent
                active: root.initials === ""
                sourceComponent: WSvgIcon {
                    width: 2 * Math.round(Math.min(root.width, root.height) / 4)
                    height: width
                    svgName: "user-bold"
                    svgColorSetName: root.textColorSetName
                }
            }
            WText {
                anchors.centerIn: parent
                width: root.initialsWidth
                height: Math.min(parent.width, parent.height) * 0.75
                text: root.initials
                controlsTarget: root
                textColorSetName: root.textColorSetName
                font: root.height >= 80 ? FontConstants.display
                    : root.height >= 56 ? FontConstants.title
                    : root.height >= 40 ? FontConstants.subheaderPrimary
                    : root.height >= 28 ? FontConstants.bodyTertiary
                    : FontConstants.tagLabelSecondary
                fontSizeMode: Text.Fit
                minimumPixelSize: 6
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                Accessible.ignored: true
            }
        }
    }
    Loader {
        id: pointer

        anchors.fill: parent
        active: root.allowInteractions
        sourceComponent: MouseArea {
            hoverEnabled: true
            cursorShape: Qt.PointingHandCursor
            onClicked: root.click()

            WRectangle {
                anchors.fill: parent
                visible: parent.containsMouse && root.status === Image.Ready
                radius: Math.min(width, height) / 2
                backgroundColorSetName: root.pressed ? "overlayFade-primary-background-normal"
                                                     : "overlayFade-secondary-background-normal"
            }
            Timer {
                interval: 500
                running: root.showContactCard && root.isPointedAt
                onTriggered: root.requestContactCard()
            }
        }
    }
    Loader {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        active: root.presence !== ""
        sourceComponent: WRectangle {
            implicitWidth: Math.max(10, 2 * Math.round(Math.min(root.width, root.height) * 0.15))
            implicitHeight: implicitWidth
            radius: width / 2
            backgroundColorSetName: "avatar-presence-icon-background"

            WRectangle {
                anchors.fill: parent
                anchors.margins: 2
                visible: root.presenceIconName === ""
                radius: width / 2
                backgroundColorSetName: "avatar-presence-icon-" + root.presence
            }
            WSvgIcon {
                anchors.fill: parent
                anchors.margins: Math.max(1, Math.round(parent.width / 12))
                svgName: root.presenceIconName
                svgColorSetName: "avatar-presence-icon-" + root.presence
            }
        }
    }
    FocusRing {
        id: focusRing

        radius: Math.min(root.width, root.height) / 2
    }
}
