import QtQuick

GallerySample {
    subject: marker

    LKMeetingMarker {
        id: marker
    }
    LKMeetingMarker {
        markerType: LKMeetingMarker.Active
    }
    LKMeetingMarker {
        markerType: LKMeetingMarker.Inactive
    }
    LKMeetingMarker {
        enabled: false
    }
}
