// A row of tabs with round ends, one of which is the current one. Left, Right, Home and End choose the tab; where the
// tabs do not fit, they scroll.
//
//     LKTabBar {
//         LKTabItem { text: "Chat"; leftIconName: "chat"; badgeText: "3" }
//         LKTabItem { text: "Files" }
//         onCurrentIndexChanged: pages.currentIndex = currentIndex
//     }
import QtQuick

WTabBar {
    // Room for the focus ring of a tab at the edge.
    padding: 4
    spacing: 8

    Accessible.role: Accessible.PageTabList
}
