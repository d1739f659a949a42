// The base of the pages. A page that is longer than the window can show itself a screenful at a time.
import QtQuick

Item {
    property int screenfuls: 1
    property int screenful: 0
}
