#include "FontUtils.h"

#include "FontFamilies.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QFontMetrics FontUtils::fontMetrics(WFont::Token token)
{
    return QFontMetrics(WFont(token, false));
}

WFont FontUtils::getFontByPixelSize(int pixelSize, SupportedFontFamily family)
{
    WFont font(FontFamilies::list(family), -1, -1);
    font.setPixelSize(pixelSize);
    return font;
}

bool FontUtils::isMonospaceFont(const WFont &font)
{
    const QStringList monospace = FontFamilies::list(Monospace);
    const QStringList families = font.families();
    return monospace.contains(font.family())
        || std::any_of(families.begin(), families.end(),
                       [&](const QString &family) { return monospace.contains(family); });
}

double FontUtils::pixelSizeToPointSize(int pixelSize)
{
    return pixelSize * 0.75;
}

QString FontUtils::toHtml(const QString &text, SupportedFontFamily family, bool wrap)
{
    if (text.isEmpty())
        return {};
    const QString format = wrap
        ? u"<html><head/><body><p style=\"font-family: %1;\">%2</p></body></html>"_s
        : u"<html><head/><body><p style=\"font-family: %1;white-space: pre\">%2</p></body></html>"_s;
    return format.arg(FontFamilies::list(family).join(u','), text.toHtmlEscaped());
}
