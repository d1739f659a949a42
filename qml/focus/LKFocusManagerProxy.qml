// A focus manager around one item: it navigates to the item at once, and hands every move on to the enclosing manager.
//
//     LKFocusManagerProxy {
//         target: searchField
//     }
import QtQuick

LKFocusManager {
    id: root

    required property Item target

    forceNavigation: true
    focusableItems: [target]
    wrapAround: false
    width: target?.width ?? 0
    height: target?.height ?? 0

    Accessible.ignored: true
}
