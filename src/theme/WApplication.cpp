#include "WApplication.h"

#include "WFont.h"
#include "WFontManager.h"
#include "WMovieProviderSource.h"

#include <QDebug>

using namespace Qt::StringLiterals;

WApplication::WApplication(int &argc, char **argv)
    : IWApplication(argc, argv)
    , m_fontManager(new WFontManager(this))
{
    WFont font(WFont::Default, false);
    font.setFamily(u"Segoe UI"_s);
    setFont(font);
}

WApplication::~WApplication() = default;

QString WApplication::getThemeName()
{
    return m_theme;
}

QString WApplication::getLogoSvgPath()
{
    return m_logoSvgPath;
}

void WApplication::setLogoSvgPath(const QString &path)
{
    m_logoSvgPath = path;
    Q_EMIT logoSvgPathChanged(path);
}

QString WApplication::getLogoPngPath()
{
    return m_logoPngPath;
}

void WApplication::setLogoPngPath(const QString &path)
{
    m_logoPngPath = path;
    Q_EMIT logoPngPathChanged(path);
}

float WApplication::getFontScaleFactor() const
{
    return m_fontScaleFactor;
}

void WApplication::setFontScaleFactor(float factor)
{
    if (!(factor >= 0.5F && factor <= 1.5F)) {
        qWarning() << "WApplication::setFontScaleFactor - Invalid fontScaleFactor" << factor;
        return;
    }
    m_fontScaleFactor = factor;
    Q_EMIT fontScaleFactorChanged(factor);
}

WColorSet WApplication::getColorSet(const QString &colorSetName) const
{
    return IWApplication::getColorSet(colorSetName, QString());
}

bool WApplication::animationsDisabled() const
{
    return false;
}

WFontManager *WApplication::getWFontManager() const
{
    return m_fontManager;
}

IWMovieProviderSource *WApplication::getMovieProviderSource()
{
    if (!m_movieProviderSource)
        m_movieProviderSource = new WMovieProviderSource(this);
    return m_movieProviderSource;
}

bool WApplication::isInFocus()
{
    return applicationState() == Qt::ApplicationActive;
}

void WApplication::prepareHost() { }
