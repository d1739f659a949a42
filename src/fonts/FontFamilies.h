#pragma once

#include "FontUtils.h"

#include <QStringList>

/// The family lists behind the font tokens and `FontUtils::SupportedFontFamily`.
namespace FontFamilies {

using enum FontUtils::SupportedFontFamily;

/// The families of a list, first choice first; "Segoe UI" for an unknown value.
QStringList list(FontUtils::SupportedFontFamily family);

/// African scripts, Myanmar, Indic scripts.
QStringList scriptFallbacks();

} // namespace FontFamilies
