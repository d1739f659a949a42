#include "WFont.h"

#include "FontFamilies.h"
#include "WApplication.h"

#include <QDebug>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct TokenFont
{
    WFont::Token token;
    int pixelSize;
    QFont::Weight weight;
    bool underline = false;
};

constexpr auto TokenFonts = std::to_array<TokenFont>({
    {WFont::Default, 16, QFont::Normal},
    {WFont::Title, 20, QFont::DemiBold},
    {WFont::Header, 16, QFont::Bold},
    {WFont::SubheaderPrimary, 16, QFont::DemiBold},
    {WFont::SubheaderSecondary, 14, QFont::DemiBold},
    {WFont::BodyPrimary, 16, QFont::Normal},
    {WFont::BodySecondary, 14, QFont::Normal},
    {WFont::BodyTertiary, 12, QFont::DemiBold},
    {WFont::BannerPrimary, 26, QFont::DemiBold},
    {WFont::BannerSecondary, 26, QFont::Normal},
    {WFont::BannerTertiary, 26, QFont::Bold},
    {WFont::HighlightPrimary, 16, QFont::Bold},
    {WFont::HighlightSecondary, 14, QFont::Bold},
    {WFont::HighlightTertiary, 12, QFont::Bold},
    {WFont::HyperlinkPrimary, 16, QFont::Normal, true},
    {WFont::HyperlinkSecondary, 14, QFont::Normal, true},
    {WFont::TagLabelPrimary, 14, QFont::DemiBold},
    {WFont::TagLabelSecondary, 12, QFont::DemiBold},
    {WFont::CodeBlocks, 16, QFont::Normal},
    {WFont::RadioButtonLabelSecondary, 12, QFont::Normal},
    {WFont::Display, 40, QFont::DemiBold},
});

constexpr bool isIndexedByToken()
{
    for (size_t i = 0; i < TokenFonts.size(); ++i) {
        if (size_t(TokenFonts[i].token) != i)
            return false;
    }
    return true;
}
static_assert(isIndexedByToken());

TokenFont tokenFont(WFont::Token token)
{
    if (token < 0 || size_t(token) >= TokenFonts.size()) {
        qWarning() << "Invalid font token! This should never happen!";
        return {token, 16, QFont::Normal};
    }
    return TokenFonts[size_t(token)];
}

} // namespace

WFont::WFont(const QFont &font)
    : QFont(font)
{
}

WFont::WFont(const QString &family, int pointSize, int weight)
    : QFont(family, pointSize, weight, false)
{
}

WFont::WFont(const QList<QString> &families, int pointSize, int weight)
{
    if (pointSize > 0)
        setPointSize(pointSize);
    if (weight >= 0)
        setWeight(Weight(weight));
    setFamilies(families);
}

WFont::WFont(Token token, bool withFallbackFamilies)
{
    const TokenFont values = tokenFont(token);
    setWeight(values.weight);
    setUnderline(values.underline);
    if (token == CodeBlocks)
        setFamily(u"Consolas"_s);

    // Under a WApplication the family comes from the application font, or from "Segoe UI" without the emoji family;
    // elsewhere the list names both. Either way the glyphs of an emoji are found, because the system falls back.
    if (const auto *application = qobject_cast<WApplication *>(QCoreApplication::instance())) {
        setPixelSize(int(std::lround(application->getFontScaleFactor() * float(values.pixelSize))));
        if (withFallbackFamilies)
            setFamilies(FontFamilies::list(FontFamilies::SegoeUI) + FontFamilies::scriptFallbacks());
        return;
    }
    setPixelSize(values.pixelSize);
    const QStringList families = FontFamilies::list(FontFamilies::SegoeUIWithEmoji);
    setFamilies(withFallbackFamilies ? families + FontFamilies::scriptFallbacks() : families);
}
