#include "WScaledFonts.h"

struct WScaledFonts::Source
{
    Role role;
    WFont::Token token;
};

struct WScaledFonts::ScaledSizes
{
    Role role;
    int small;
    int medium;
    int large;
};

WScaledFonts::WScaledFonts(QObject *parent)
    : QObject(parent)
{
    initializeTokens();
}

WScaledFonts::~WScaledFonts() = default;

QFont WScaledFonts::getFont(WFont::Token token)
{
    // RadioButtonLabelSecondary has no role of its own: it is served at the Default's 16 px, as views expect.
    static constexpr auto Sources = std::to_array<Source>({
        {TitleRole, WFont::Title},
        {HeaderPrimaryRole, WFont::Header},
        {SubheaderPrimaryRole, WFont::SubheaderPrimary},
        {SubheaderSecondaryRole, WFont::SubheaderSecondary},
        {BodyPrimaryRole, WFont::BodyPrimary},
        {BodySecondaryRole, WFont::BodySecondary},
        {BodyCompactRole, WFont::BodyTertiary},
        {BannerPrimaryRole, WFont::BannerPrimary},
        {BannerSecondaryRole, WFont::BannerSecondary},
        {BannerTertiaryRole, WFont::BannerTertiary},
        {HighlightPrimaryRole, WFont::HighlightPrimary},
        {HighlightSecondaryRole, WFont::HighlightSecondary},
        {HighlightCompactRole, WFont::HighlightTertiary},
        {HyperlinkPrimaryRole, WFont::HyperlinkPrimary},
        {HyperlinkSecondaryRole, WFont::HyperlinkSecondary},
        {SubheaderSecondaryRole, WFont::TagLabelPrimary},
        {LabelCompactRole, WFont::TagLabelSecondary},
        {CodeBlocksRole, WFont::CodeBlocks},
        {DisplayRole, WFont::Display},
    });
    for (const Source &source : Sources) {
        if (source.token == token)
            return m_fonts[source.role];
    }
    return m_fonts[DefaultRole];
}

void WScaledFonts::setScalingFactor(FontManagerEnum::FontScalingFactor factor)
{
    static constexpr auto Sizes = std::to_array<ScaledSizes>({
        {H1Role, 20, 32, 40},
        {H2Role, 16, 26, 32},
        {H3Role, 14, 20, 26},
        {H4Role, 12, 16, 20},
        {H5Role, 10, 14, 16},
        {BodyPrimaryRole, 14, 20, 26},
        {BodySecondaryRole, 12, 16, 20},
        {HighlightPrimaryRole, 14, 20, 26},
        {HighlightSecondaryRole, 12, 16, 20},
        {HyperlinkPrimaryRole, 14, 20, 26},
        {HyperlinkSecondaryRole, 12, 16, 20},
        {CodeBlocksRole, 14, 20, 26},
    });
    const auto apply = [this](int ScaledSizes::*column) {
        for (const ScaledSizes &sizes : Sizes)
            m_fonts[sizes.role].setPixelSize(sizes.*column);
    };

    switch (factor) {
    case FontManagerEnum::Small:
        apply(&ScaledSizes::small);
        break;
    case FontManagerEnum::Regular:
        initializeTokens();
        break;
    case FontManagerEnum::Medium:
        apply(&ScaledSizes::medium);
        break;
    case FontManagerEnum::Large:
        apply(&ScaledSizes::large);
        break;
    }
    Q_EMIT fontTokenChanged();
}

void WScaledFonts::initializeTokens()
{
    static constexpr auto Sources = std::to_array<Source>({
        {DisplayRole, WFont::Display},
        {H1Role, WFont::BannerTertiary},
        {BannerTertiaryRole, WFont::BannerTertiary},
        {BannerPrimaryRole, WFont::BannerPrimary},
        {BannerSecondaryRole, WFont::BannerSecondary},
        {H2Role, WFont::Title},
        {TitleRole, WFont::Title},
        {HeaderPrimaryRole, WFont::Header},
        {HighlightPrimaryRole, WFont::HighlightPrimary},
        {H3Role, WFont::SubheaderPrimary},
        {SubheaderPrimaryRole, WFont::SubheaderPrimary},
        {BodyPrimaryRole, WFont::BodyPrimary},
        {HyperlinkPrimaryRole, WFont::HyperlinkPrimary},
        {SubheaderSecondaryRole, WFont::SubheaderSecondary},
        {HighlightSecondaryRole, WFont::HighlightSecondary},
        {HeaderSecondaryRole, WFont::HighlightSecondary},
        {BodySecondaryRole, WFont::BodySecondary},
        {HyperlinkSecondaryRole, WFont::HyperlinkSecondary},
        {HighlightCompactRole, WFont::HighlightTertiary},
        {BodyCompactRole, WFont::BodyTertiary},
        {LabelCompactRole, WFont::TagLabelSecondary},
        {CodeBlocksRole, WFont::CodeBlocks},
        {DefaultRole, WFont::Default},
        {H4Role, WFont::SubheaderSecondary},
        {H5Role, WFont::Default},
        {H6Role, WFont::Default},
    });
    static_assert(Sources.size() == RoleCount);
    for (const Source &source : Sources)
        m_fonts[source.role] = WFont(source.token, false);

    // The smallest headings have no token: fixed sizes, whatever the font scale factor.
    m_fonts[H5Role].setPixelSize(12);
    m_fonts[H6Role].setPixelSize(10);
    m_fonts[H5Role].setWeight(QFont::DemiBold);
    m_fonts[H6Role].setWeight(QFont::DemiBold);
}
