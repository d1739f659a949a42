// The base of the LK buttons: focus and keys, without looks. Not to be used outside of the toolkit.
//
// On the release of Space, Enter or Return a checkable button toggles, any other is clicked.
import QtQuick
import LumakitQml.Private 1.0

ButtonTemplate {
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
}
