// The plainest container: an Item under the name that the library's components share.
//
//     WItem {
//         implicitWidth: 200
//     }
import QtQuick

Item {
}
