// The stripe beside a meeting in a list that tells whether it is on.
//
//     LKMeetingMarker {
//         height: row.height
//         markerType: meeting.running ? LKMeetingMarker.Active : LKMeetingMarker.Default
//     }
import QtQuick
import Corvane 1.0
import "ThemeUtils.js" as ThemeUtils

Rectangle {
    id: root

    enum MarkerType { Default, Active, Inactive }

    property int markerType: LKMeetingMarker.Default
    property var themeType: App.themeMode
    property string colorSetName: markerType === LKMeetingMarker.Active ? "meetingmarker-active-background"
                                : markerType === LKMeetingMarker.Inactive ? "meetingmarker-inactive-background"
                                : "meetingmarker-default-background"
    property var colorSet: themeType === undefined ? null : App.getColorSet(colorSetName)

    implicitWidth: 4
    implicitHeight: 32
    radius: Math.min(width, height) / 2
    color: ThemeUtils.getColor(root, colorSet)
}
