#include "FontTokens.h"

#include "WFont.h"

#include <QMetaEnum>

QFont FontTokens::font(const QString &token, double) const
{
    const int value = QMetaEnum::fromType<WFont::Token>().keyToValue(token.toLatin1());
    WFont font(WFont::Token(value), false);
    font.setFamily(font.family());
    return font;
}
