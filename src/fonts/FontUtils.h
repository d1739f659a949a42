#pragma once

#include "WFont.h"

#include <QFontMetrics>
#include <QString>

/// Family lists, metrics by token, and rich text in a family.
namespace FontUtils {

/// A list of families, the first preferred. An unknown value stands for "Segoe UI".
enum SupportedFontFamily : quint8 {
    Brand, ///< "TarvoSansTT"
    Monospace, ///< "Consolas", "Courier New", "monospace"
    SegoeUIWithEmoji, ///< "Segoe UI", "Segoe UI Emoji"
    Emoji, ///< "Segoe UI Emoji"
    SegoeUI, ///< "Segoe UI"
    Ebrima, ///< "Ebrima"
};

/// The metrics of a token's font without fallback families.
LUMAKITQML_EXPORT QFontMetrics fontMetrics(WFont::Token token);

/// A font of exactly that pixel size; the font scale factor is not applied.
LUMAKITQML_EXPORT WFont getFontByPixelSize(int pixelSize, SupportedFontFamily family);

/// The font's family, or any of its families, is one of the Monospace list (compared exactly).
LUMAKITQML_EXPORT bool isMonospaceFont(const WFont &font);

/// Three quarters of it: a point at 96 pixels per inch.
LUMAKITQML_EXPORT double pixelSizeToPointSize(int pixelSize);

/// The text, escaped, as an HTML paragraph in the family; with `wrap` false white space is kept and lines do not
/// wrap. An empty text stays empty.
LUMAKITQML_EXPORT QString toHtml(const QString &text, SupportedFontFamily family, bool wrap);

} // namespace FontUtils
