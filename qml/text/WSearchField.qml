pragma ComponentBehavior: Bound

// A field for what is searched: with an icon, and a button that clears it, as Escape does.
//
//     WSearchField {
//         serachFieldPlaceHolderText: "Search people"
//         onSearchTextChanged: people.filter = searchText
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

FocusScope {
    id: root

    // Shown while nothing is written. The spelling is the name that hosts know.
    property string serachFieldPlaceHolderText: ""
    // The frame's corners, pixels.
    property real borderRadius: height / 2
    property int iconSize: 16
    property int buttonSize: 24
    // Between icon, text and button, pixels.
    property int spacing: 8
    // From the frame to the icon, and from the button to the frame, pixels.
    property int leadingMargin: 12
    property int trailingMargin: 4
    property string borderColorSetName: "search-border"
    readonly property alias textField: field
    property alias searchText: field.text
    // The button that clears; null while there is nothing to clear.
    readonly property Item cancelButton: buttonLoader.item as Item
    // The accessible name.
    property string searchFieldAccText: serachFieldPlaceHolderText
    // The button's tooltip and accessible name.
    property string cancelButtonAccText: qsTr("Clear")
    property string backgroundColorSetName: "search-background"
    property string iconColorSetName: "search-placeholder-text"
    property var themeType: App.themeMode
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)

    // Tab on the button that clears. Where no handler moves the focus, it goes on as usual.
    signal tabOnCancelButton
    // By Enter or Return.
    signal accepted
    // By the button or Escape.
    signal cleared

    // Empties the field and gives it the focus.
    function clear(): void {
        field.clear();
        field.forceActiveFocus();
        cleared();
    }

    implicitWidth: field.implicitWidth
    implicitHeight: field.implicitHeight

    WTextField {
        id: field

        readonly property int iconRoom: root.leadingMargin + root.iconSize + root.spacing
        readonly property int buttonRoom: root.spacing + root.buttonSize + root.trailingMargin
        readonly property bool mirrored: root.LayoutMirroring.enabled

        anchors.fill: parent
        leftPadding: mirrored ? buttonRoom : iconRoom
        rightPadding: mirrored ? iconRoom : buttonRoom
        focus: true
        radius: root.borderRadius
        placeholderText: root.serachFieldPlaceHolderText
        textColorSetName: "search-text"
        placeHolderTextColorSetName: "search-placeholder-text"
        backgroundColorSetName: root.backgroundColorSetName
        borderColorSetName: root.borderColorSetName
        inputMethodHints: Qt.ImhNoPredictiveText

        onAccepted: root.accepted()

        Keys.onEscapePressed: event => {
            event.accepted = text !== "" && !readOnly;
            if (event.accepted)
                root.clear();
        }

        Accessible.name: root.searchFieldAccText
        Accessible.searchEdit: true
    }
    WSvgIcon {
        anchors.left: parent.left
        anchors.leftMargin: root.leadingMargin
        y: Math.round((parent.height - height) / 2)
        width: root.iconSize
        height: root.iconSize
        svgName: "search"
        svgColor: ThemeUtils.getColor(root, root.iconColorSet)
    }
    Loader {
        id: buttonLoader
        anchors.right: parent.right
        anchors.rightMargin: root.trailingMargin
        y: Math.round((parent.height - height) / 2)
        active: field.length > 0 && !field.readOnly
        sourceComponent: WButton {
            id: button
            implicitWidth: root.buttonSize
            implicitHeight: root.buttonSize
            padding: 0
            isRectangle: false
            backgroundColorSetName: "button-ghost-background"
            borderColorSetName: ""
            tooltip: root.cancelButtonAccText
            focusPolicy: Qt.TabFocus

            onTriggered: root.clear()

            Keys.onEscapePressed: root.clear()
            Keys.onTabPressed: event => {
                root.tabOnCancelButton();
                event.accepted = !activeFocus;
            }

            contentItem: Item {
                WSvgIcon {
                    anchors.centerIn: parent
                    width: root.iconSize
                    height: root.iconSize
                    svgName: "close-bold"
                    svgColorSetName: "cancelicon-default-icon"
                    svgColor: ThemeUtils.getColor(button, svgColorSet)
                }
            }
        }
    }
}
