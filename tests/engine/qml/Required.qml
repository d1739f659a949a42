// Loads, but cannot be created: nobody gives it what it requires.
import QtQuick

Item {
    required property string text
}
