pragma ComponentBehavior: Bound

// A line across a view that tells something at once, with a button for what to do about it. It can be dismissed.
//
//     LKAlertBanner {
//         width: parent.width
//         bannerType: LKAlertBanner.Error
//         text: "No connection"
//         buttonText: "Try again"
//         onButtonClicked: () => connection.open()
//         onBannerDismissed: visible = false
//     }
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Corvane 1.0
import LumakitQml 1.0
import LumakitQml.Private 1.0
import "ThemeUtils.js" as ThemeUtils

T.Control {
    id: control

    enum BannerType { Announcement, Error, Issue, Success, Transient }

    // Anything else is Announcement.
    property int bannerType: LKAlertBanner.Announcement
    // The least height, pixels; a text of several lines needs more.
    property int bannerHeight: 40
    property string text: ""
    // Without it there is no button.
    property string buttonText: ""
    property string buttonTooltip: ""
    // Whether the banner takes part in the mirroring of what it stands in.
    property bool mirroringEnabled: true
    // A function that is called when the button is clicked.
    property var onButtonClicked: null
    property var themeType: App.themeMode
    // Whether the banner itself can be clicked, by mouse and keyboard.
    property bool interactive: false
    property bool closeButtonVisible: true
    property string closeButtonTooltip: qsTr("Close")
    property bool closeButtonEnabled: true
    property bool buttonEnabled: true
    // Below the text, which is bold then.
    property string subText: ""
    // Whether the button stands below the texts; otherwise beside them.
    property bool isButtonBelow: false
    readonly property int edgeAlignment: text === "" || subText === "" ? Qt.AlignVCenter : Qt.AlignTop
    // An icon of the host; none if empty.
    property string iconName: typeIconName
    readonly property string typeIconName:
        ["info-filled", "error-filled", "warning-filled", "success-filled"][bannerType] ?? "info-filled"
    // The type's name in the colour sets.
    readonly property string colorName: ["announcement", "error", "issue", "success", "transient"][bannerType]
                                        ?? "announcement"
    property string backgroundColorSetName: "banner-" + colorName + "-background"
    property string textColorSetName: "banner-" + colorName + "-text"
    property string focusColorSetName: "global-focus-outline"
    property var backgroundColorSet: themeType === undefined ? null : App.getColorSet(backgroundColorSetName)
    property var textColorSet: themeType === undefined ? null : App.getColorSet(textColorSetName)
    property int radius: 0
    property bool pressed: false
    readonly property var bannerState: ({ enabled: enabled, pressed: pressed, hovered: interactive && hovered })

    // The banner itself, if it is interactive: by mouse, Space, Enter, Return or a screen reader.
    signal clicked
    // By the close button or Escape.
    signal bannerDismissed

    function clickButton(): void {
        if (onButtonClicked)
            onButtonClicked.call(control);
    }

    // What a screen reader calls, where the role is one that is pressed.
    function accessiblePressAction(): void {
        if (interactive && enabled)
            clicked();
    }

    function clickByKey(event: KeyEvent): void {
        event.accepted = interactive;
        if (interactive && !event.isAutoRepeat)
            clicked();
    }

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(bannerHeight, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: 12
    verticalPadding: 4
    spacing: 8
    font: FontConstants.bodySecondary
    hoverEnabled: true
    focusPolicy: interactive ? Qt.StrongFocus : Qt.NoFocus
    LayoutMirroring.enabled: mirroringEnabled ? undefined : false
    LayoutMirroring.childrenInherit: true

    Keys.onSpacePressed: event => clickByKey(event)
    Keys.onReturnPressed: event => clickByKey(event)
    Keys.onEnterPressed: event => clickByKey(event)
    Keys.onEscapePressed: event => {
        event.accepted = closeButtonVisible && closeButtonEnabled;
        if (event.accepted)
            bannerDismissed();
    }

    Accessible.role: interactive ? Accessible.Button : Accessible.AlertMessage
    Accessible.name: text === "" ? subText : text
    Accessible.description: text === "" ? "" : subText

    contentItem: GridLayout {
        columnSpacing: control.spacing
        rowSpacing: 8

        Loader {
            Layout.alignment: control.edgeAlignment
            active: control.iconName !== ""
            visible: active
            sourceComponent: WSvgIcon {
                width: 16
                height: 16
                svgName: control.iconName
                svgColor: ThemeUtils.getColor(control.bannerState, control.textColorSet)
            }
        }
        ColumnLayout {
            Layout.column: 1
            spacing: 4

            WText {
                Layout.fillWidth: true
                visible: !empty
                text: control.text
                controlsTarget: control.bannerState
                textColorSetName: control.textColorSetName
                font: control.subText === "" ? control.font : FontConstants.highlightSecondary
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            WText {
                Layout.fillWidth: true
                visible: !empty
                text: control.subText
                controlsTarget: control.bannerState
                textColorSetName: control.textColorSetName
                font: control.font
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        Loader {
            Layout.row: control.isButtonBelow ? 1 : 0
            Layout.column: control.isButtonBelow ? 1 : 2
            Layout.maximumWidth: control.availableWidth / 2
            active: control.buttonText !== ""
            visible: active
            sourceComponent: WButton {
                implicitHeight: Math.max(28, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
                verticalPadding: 2
                isRectangle: false
                text: control.buttonText
                tooltip: control.buttonTooltip
                enabled: control.buttonEnabled
                backgroundColorSetName: "banner-" + control.colorName + "-background"
                borderColorSetName: control.textColorSetName
                textColorSetName: control.textColorSetName
                onTriggered: control.clickButton()
            }
        }
        Loader {
            Layout.row: 0
            Layout.column: 3
            Layout.alignment: control.edgeAlignment
            active: control.closeButtonVisible
            visible: active
            sourceComponent: WSvgIconButton {
                implicitHeight: 24
                iconName: "close-bold"
                tooltip: control.closeButtonTooltip
                enabled: control.closeButtonEnabled
                backgroundColorSetName: enabled ? "banner-" + control.colorName + "-background" : ""
                borderColorSetName: ""
                iconColorSetName: control.textColorSetName
                onTriggered: control.bannerDismissed()
            }
        }
    }
    background: Rectangle {
        radius: control.radius
        color: ThemeUtils.getColor(control.bannerState, control.backgroundColorSet)

        Loader {
            anchors.fill: parent
            active: control.interactive
            sourceComponent: MouseArea {
                onPressedChanged: control.pressed = pressed
                onClicked: control.clicked()
            }
        }
    }

    FocusRing {
        radius: control.radius
        offset: -2
        colorSetName: control.focusColorSetName
    }
}
