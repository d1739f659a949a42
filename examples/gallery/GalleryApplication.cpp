#include "GalleryApplication.h"

#include "GalleryData.h"
#include "GalleryMovieSource.h"

#include <FontManagerEnum.h>
#include <LKQmlRegister.h>
#include <WFont.h>
#include <WFontManager.h>

#include <QQmlEngine>

#include <chrono>

using namespace Qt::StringLiterals;

GalleryApplication::GalleryApplication(int &argc, char **argv)
    : WApplication(argc, argv)
    , m_isDarkTheme(GalleryData::isDark(getThemeMode()))
    , m_isHighContrastTheme(GalleryData::isHighContrast(getThemeMode()))
{
    setLogoSvgPath(u":/Resources/logo.svg"_s);
    connect(this, &IWApplication::themeModeChanged, this, &GalleryApplication::updateTheme);

    LKQmlRegister::registerLKQmlDataTypes();
    LKQmlRegister::registerLKQmlComponents();
    constexpr auto Module = "Corvane";
    qmlRegisterSingletonInstance(Module, 1, 0, "App", this);
    qmlRegisterSingletonInstance(Module, 1, 0, "FontManager", getWFontManager());
    qmlRegisterUncreatableType<FontManagerEnum>(Module, 1, 0, "FontManagerEnum", u"FontManagerEnum holds enums."_s);
    qmlRegisterUncreatableMetaObject(WFont::staticMetaObject, Module, 1, 0, "WFont", u"WFont holds an enum."_s);
}

bool GalleryApplication::isDarkTheme() const
{
    return m_isDarkTheme;
}

bool GalleryApplication::isHighContrastTheme() const
{
    return m_isHighContrastTheme;
}

bool GalleryApplication::animationsDisabled() const
{
    return m_animationsDisabled;
}

void GalleryApplication::setAnimationsDisabled(bool disabled)
{
    m_animationsDisabled = disabled;
}

IWMovieProviderSource *GalleryApplication::getMovieProviderSource()
{
    using namespace std::chrono_literals;
    if (!m_movieSource)
        m_movieSource = new GalleryMovieSource(m_animationsDisabled ? 0ms : 900ms, !m_animationsDisabled, this);
    return m_movieSource;
}

void GalleryApplication::updateTheme()
{
    const bool dark = GalleryData::isDark(getThemeMode());
    const bool highContrast = GalleryData::isHighContrast(getThemeMode());
    if (std::exchange(m_isDarkTheme, dark) != dark)
        Q_EMIT isDarkThemeChanged(dark);
    if (std::exchange(m_isHighContrastTheme, highContrast) != highContrast)
        Q_EMIT isHighContrastThemeChanged(highContrast);
}
