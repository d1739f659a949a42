// A row of a list that sums up a group of people: a title, and the names of the first of them below.
//
//     ListView {
//         delegate: PeopleSummaryBricklet {
//             required property string team
//             required property var members
//             text: team
//             names: members
//         }
//     }
import QtQuick
import Corvane 1.0
import LumakitQml 1.0
import "ThemeUtils.js" as ThemeUtils

WButton {
    id: control

    // The colours of title and names. In a high-contrast theme they follow the row's state, else only whether it is
    // enabled.
    property color textPrimaryNormal: enabled ? textColorSet.normal : textColorSet.disabled
    property color textSecondaryNormal: enabled ? secondaryTextColorSet.normal : secondaryTextColorSet.disabled
    property color textPrimaryNormalHC: textColor
    property color textSecondaryNormalHC: ThemeUtils.getColor(control, secondaryTextColorSet)
    // Whether the row is shown as the current one.
    property bool isCurrentItem: ListView.isCurrentItem
    // The list that the row is as wide as, and that makes it the current row when it is clicked.
    property ListView listView: ListView.view
    // A list of texts; null is an empty one.
    property var names: []
    // How many names are shown; of the others only the number is.
    property int maximumNames: 3
    readonly property string summary: {
        const all = names ?? [];
        const shown = all.slice(0, maximumNames).join(", ");
        const rest = all.length - maximumNames;
        return rest > 0 ? shown + " +" + rest : shown;
    }
    property string iconName: "users"
    property string iconColorSetName: "listitem-icon"
    property var iconColorSet: themeType === undefined ? null : App.getColorSet(iconColorSetName)
    property string secondaryTextColorSetName: "listitem-textsecondary"
    property var secondaryTextColorSet: themeType === undefined ? null : App.getColorSet(secondaryTextColorSetName)
    property font secondaryFont: FontConstants.bodyTertiary

    implicitWidth: listView ? listView.width : Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(56, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    verticalPadding: 8
    spacing: 12
    horizontalAlignment: Text.AlignLeft
    checked: isCurrentItem
    backgroundColorSetName: "listitem-background"
    borderColorSetName: ""
    textColorSetName: "listitem-textprimary"

    Accessible.name: summary === "" ? text : text + ", " + summary
    Accessible.selectable: true
    Accessible.selected: isCurrentItem

    onClicked: {
        if (listView)
            listView.currentIndex = listView.indexAt(x + width / 2, y + height / 2);
    }

    contentItem: Item {
        readonly property real iconSpace: icon.visible ? icon.width + control.spacing : 0

        implicitWidth: iconSpace + Math.max(title.implicitWidth, people.implicitWidth)
        implicitHeight: title.implicitHeight + (people.visible ? people.implicitHeight : 0)

        WSvgIcon {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            x: control.mirrored ? parent.width - width : 0
            width: 20
            height: 20
            visible: svgName !== ""
            svgName: control.iconName
            svgColor: ThemeUtils.getColor(control, control.iconColorSet)
        }
        Column {
            anchors.verticalCenter: parent.verticalCenter
            x: control.mirrored ? 0 : parent.iconSpace
            width: parent.width - parent.iconSpace

            Text {
                id: title

                width: parent.width
                text: control.text
                textFormat: Text.PlainText
                font: control.font
                color: App.isHighContrastTheme ? control.textPrimaryNormalHC : control.textPrimaryNormal
                elide: control.elide
                horizontalAlignment: control.horizontalAlignment
            }
            Text {
                id: people

                width: parent.width
                visible: text !== ""
                text: control.summary
                textFormat: Text.PlainText
                font: control.secondaryFont
                color: App.isHighContrastTheme ? control.textSecondaryNormalHC : control.textSecondaryNormal
                elide: control.elide
                horizontalAlignment: control.horizontalAlignment
            }
        }
    }
}
