// An entry of an LKMenu: a text, with an icon or a tick before it.
//
//     LKMenuItem {
//         text: "Rename"
//         indicatorSvgName: "pen"
//         onSelectItem: page.rename()
//     }

WMenuItem {
    // By mouse, Space, Enter, Return or a screen reader.
    signal selectItem

    onTriggered: selectItem()
}
