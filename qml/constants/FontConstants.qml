pragma Singleton

// The fonts of every screen: one for each token, and their sizes, weights and families by themselves. All follow the
// application's font scale.
//
//     Text { font: FontConstants.bodyPrimary }
import QtQuick
import Corvane 1.0
import LumakitQml.Private 1.0

QtObject {
    // Sizes in pixels.
    readonly property int extraLarge: bannerPrimary.pixelSize
    readonly property int large: title.pixelSize
    readonly property int medium: bodyPrimary.pixelSize
    readonly property int mediumSmall: bodySecondary.pixelSize
    readonly property int small: bodyTertiary.pixelSize
    readonly property int extraSmall: Math.round(10 * App.fontScaleFactor)

    readonly property int regularWeight: Font.Normal
    readonly property int semiboldWeight: Font.DemiBold
    readonly property int boldWeight: Font.Bold

    readonly property string defaultFamily: defaultFont.family
    readonly property string monospace: codeBlocks.family

    readonly property font codeBlocks: FontTokens.font("CodeBlocks", App.fontScaleFactor)
    readonly property font defaultFont: FontTokens.font("Default", App.fontScaleFactor)
    readonly property font display: FontTokens.font("Display", App.fontScaleFactor)
    readonly property font title: FontTokens.font("Title", App.fontScaleFactor)
    readonly property font header: FontTokens.font("Header", App.fontScaleFactor)
    readonly property font subheaderPrimary: FontTokens.font("SubheaderPrimary", App.fontScaleFactor)
    readonly property font subheaderSecondary: FontTokens.font("SubheaderSecondary", App.fontScaleFactor)
    readonly property font bodyPrimary: FontTokens.font("BodyPrimary", App.fontScaleFactor)
    readonly property font bodySecondary: FontTokens.font("BodySecondary", App.fontScaleFactor)
    readonly property font bodyTertiary: FontTokens.font("BodyTertiary", App.fontScaleFactor)
    readonly property font bannerPrimary: FontTokens.font("BannerPrimary", App.fontScaleFactor)
    readonly property font bannerSecondary: FontTokens.font("BannerSecondary", App.fontScaleFactor)
    readonly property font bannerTertiary: FontTokens.font("BannerTertiary", App.fontScaleFactor)
    readonly property font highlightPrimary: FontTokens.font("HighlightPrimary", App.fontScaleFactor)
    readonly property font highlightSecondary: FontTokens.font("HighlightSecondary", App.fontScaleFactor)
    readonly property font highlightTertiary: FontTokens.font("HighlightTertiary", App.fontScaleFactor)
    readonly property font hyperlinkPrimary: FontTokens.font("HyperlinkPrimary", App.fontScaleFactor)
    readonly property font hyperlinkSecondary: FontTokens.font("HyperlinkSecondary", App.fontScaleFactor)
    readonly property font tagLabelPrimary: FontTokens.font("TagLabelPrimary", App.fontScaleFactor)
    readonly property font tagLabelSecondary: FontTokens.font("TagLabelSecondary", App.fontScaleFactor)
    readonly property font radioButtonLabelSecondary: FontTokens.font("RadioButtonLabelSecondary", App.fontScaleFactor)
}
