// A row of tabs in a frame of its own, for dialogs and panels.
//
//     DTabBar {
//         DTabButton { text: "General" }
//         DTabButton { text: "Audio" }
//     }

WTabBar {
    backgroundColorSetName: "panel-secondary-background"
    borderColorSetName: "separator-primary"
    radius: 8

    padding: 4
}
