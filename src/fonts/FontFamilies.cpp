#include "FontFamilies.h"

#include <array>

using namespace Qt::StringLiterals;

QStringList FontFamilies::list(FontUtils::SupportedFontFamily family)
{
    static const std::array<QStringList, 6> lists{{
        {u"TarvoSansTT"_s},
        {u"Consolas"_s, u"Courier New"_s, u"monospace"_s},
        {u"Segoe UI"_s, u"Segoe UI Emoji"_s},
        {u"Segoe UI Emoji"_s},
        {u"Segoe UI"_s},
        {u"Ebrima"_s},
    }};
    return lists[family < lists.size() ? family : SegoeUI];
}

QStringList FontFamilies::scriptFallbacks()
{
    return {u"Ebrima"_s, u"Myanmar Text"_s, u"Nirmala UI"_s};
}
