// A short label in the colour of its type.
//
//     LKTag {
//         text: "Overdue"
//         type: LKTag.Error
//     }
import QtQuick

WTag {
    enum Type { Static, Primary, Error, Overlay, Cobalt, Gold, Lime, Mint, Orange, Purple, Slate, Violet }

    // Anything else is Static.
    property int type: LKTag.Static
    // The colour's name in the colour sets.
    readonly property string colorName: {
        const names = ["static", "primary", "error", "overlay", "cobalt", "gold", "lime", "mint", "orange", "purple",
                       "slate", "violet"];
        return names[type] ?? "static";
    }

    backgroundColorSetName: "tags-" + colorName + "-background"
    borderColorSetName: "tags-" + colorName + "-border"
    textColorSetName: "tags-" + colorName + "-text"
}
