// The host's inspector, which is neither timed nor reloaded.
import QtQuick

Item {
    width: 50
    height: 50
}
