// An icon of the host's resources, painted in one colour.
//
//     WSvgIcon {
//         svgName: "settings-bold"
//         svgColorSetName: "label-primary-text"
//     }
WSvgImage {
    id: root

    property alias themeType: root.iconColors.themeType
    property alias svgColorSetName: root.iconColors.colorSetName
    property alias svgColorSet: root.iconColors.colorSet
    // The icon's colour: that of the colour set at rest. Bind it to follow a control's state.
    property alias svgColor: root.iconColors.color
    // The colour as it stands in the source, with its alpha.
    property alias sourceColor: root.iconColorName

    isIcon: true
    width: 24
    height: 24
    iconColors.colorSetName: "label-primary-text"
}
