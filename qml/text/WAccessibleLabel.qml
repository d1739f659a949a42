// A label that Tab reaches, so that it is read out to those who do not see it.
//
//     WAccessibleLabel {
//         text: "You are the only one in this meeting."
//     }
import QtQuick
import LumakitQml.Private 1.0

WLabel {
    activeFocusOnTab: true

    Accessible.focusable: true

    FocusRing {
        radius: 4
    }
}
