#pragma once

#include <WFont.h>

#include <array>

/// The font tokens by value, as every host knows them.
struct TokenRow
{
    const char *name;
    int token;
    int pixelSize;
    int weight;
    bool underline;
};

inline constexpr auto TokenRows = std::to_array<TokenRow>({
    {"Default", 0, 16, 400, false},
    {"Title", 1, 20, 600, false},
    {"Header", 2, 16, 700, false},
    {"SubheaderPrimary", 3, 16, 600, false},
    {"SubheaderSecondary", 4, 14, 600, false},
    {"BodyPrimary", 5, 16, 400, false},
    {"BodySecondary", 6, 14, 400, false},
    {"BodyTertiary", 7, 12, 600, false},
    {"BannerPrimary", 8, 26, 600, false},
    {"BannerSecondary", 9, 26, 400, false},
    {"BannerTertiary", 10, 26, 700, false},
    {"HighlightPrimary", 11, 16, 700, false},
    {"HighlightSecondary", 12, 14, 700, false},
    {"HighlightTertiary", 13, 12, 700, false},
    {"HyperlinkPrimary", 14, 16, 400, true},
    {"HyperlinkSecondary", 15, 14, 400, true},
    {"TagLabelPrimary", 16, 14, 600, false},
    {"TagLabelSecondary", 17, 12, 600, false},
    {"CodeBlocks", 18, 16, 400, false},
    {"RadioButtonLabelSecondary", 19, 12, 400, false},
    {"Display", 20, 40, 600, false},
});

inline WFont::Token token(int value)
{
    return static_cast<WFont::Token>(value);
}
