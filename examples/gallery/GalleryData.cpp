#include "GalleryData.h"

#include <WFont.h>
#include <WScaledFonts.h>
#include <WThemeUtils.h>

#include <QDir>
#include <QGuiApplication>
#include <QMetaEnum>

using namespace Qt::StringLiterals;

QStringList GalleryData::themeModes()
{
    return {u"default"_s, u"dark"_s, u"highcontrast"_s};
}

bool GalleryData::isDark(const QString &themeMode)
{
    return themeMode != "default"_L1;
}

bool GalleryData::isHighContrast(const QString &themeMode)
{
    return themeMode == "highcontrast"_L1;
}

QStringList GalleryData::tokens()
{
    QStringList names;
    for (int identifier = 0; !WThemeUtils::colorSetTokenName(identifier).isEmpty(); ++identifier)
        names.append(WThemeUtils::colorSetTokenName(identifier));
    return names;
}

QStringList GalleryData::icons()
{
    QStringList names = QDir(u":/Resources"_s).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(4);
    return names;
}

QStringList GalleryData::fontTokens()
{
    const auto tokenEnum = QMetaEnum::fromType<WFont::Token>();
    QStringList names;
    for (int i = 0; i < tokenEnum.keyCount(); ++i)
        names.append(QLatin1StringView(tokenEnum.key(i)));
    return names;
}

QStringList GalleryData::fontRoles()
{
    const QMetaObject &meta = WScaledFonts::staticMetaObject;
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        names.append(QLatin1StringView(meta.property(i).name()));
    return names;
}

WColorSet GalleryData::colorSet(const QString &name, const QString &) const
{
    return WThemeUtils::getColorSet(name.toStdString());
}

QFont GalleryData::font(int token, double) const
{
    WFont font(WFont::Token(token), false);
    font.setFamily(font.family()); // a control would take a family that is not set from its style
    return font;
}

QString GalleryData::describe(const QFont &font) const
{
    const QString size = tr("%1 px, %2").arg(font.pixelSize()).arg(font.weight());
    return font.underline() ? tr("%1, underlined").arg(size) : size;
}

bool GalleryData::isMirrored()
{
    return QGuiApplication::isRightToLeft();
}

void GalleryData::setMirrored(bool mirrored)
{
    if (mirrored == isMirrored())
        return;
    QGuiApplication::setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    Q_EMIT mirroredChanged();
}
