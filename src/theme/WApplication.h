#pragma once

#include "IWApplication.h"

class WFontManager;

/// The application object with the presentation settings that belong to the whole application.
///
/// A host constructs it, or a subclass, in place of a QApplication.
class LUMAKITQML_EXPORT WApplication : public IWApplication
{
    Q_OBJECT
    /// A free name for the theme, for the host's own use.
    Q_PROPERTY(QString theme MEMBER m_theme NOTIFY themeChanged)
    Q_PROPERTY(QString logoSvgPath READ getLogoSvgPath WRITE setLogoSvgPath NOTIFY logoSvgPathChanged)
    Q_PROPERTY(QString logoPngPath READ getLogoPngPath WRITE setLogoPngPath NOTIFY logoPngPathChanged)
    /// What the sizes of font tokens are multiplied with, 0.5 to 1.5.
    Q_PROPERTY(float fontScaleFactor READ getFontScaleFactor WRITE setFontScaleFactor NOTIFY fontScaleFactorChanged)

public:
    /// Creates the font manager and sets the application font: the Default token in "Segoe UI".
    WApplication(int &argc, char **argv);
    ~WApplication() override;

    QString getThemeName();

    QString getLogoSvgPath();
    /// Emits logoSvgPathChanged(), even when the path stays the same.
    void setLogoSvgPath(const QString &path);

    QString getLogoPngPath();
    /// Emits logoPngPathChanged(), even when the path stays the same.
    void setLogoPngPath(const QString &path);

    float getFontScaleFactor() const;
    /// Emits fontScaleFactorChanged(), even when the factor stays the same. A factor outside 0.5 to 1.5 logs a
    /// warning and changes nothing.
    void setFontScaleFactor(float factor);

    Q_INVOKABLE WColorSet getColorSet(const QString &colorSetName) const;
    /// True where the user wants nothing to move. False here; a host overrides it.
    Q_INVOKABLE virtual bool animationsDisabled() const;

    WFontManager *getWFontManager() const;

    /// An inert source, created on the first call; a host that has animated images returns its own.
    IWMovieProviderSource *getMovieProviderSource() override;

    /// The application is active: one of its windows has the focus.
    static bool isInFocus();

Q_SIGNALS:
    void themeChanged(const QString &themeName);
    /// For subclasses that have a dark theme; never emitted here.
    void isDarkThemeChanged(bool isDarkTheme);
    /// For subclasses that have a high-contrast theme; never emitted here.
    void isHighContrastThemeChanged(bool isHighContrastTheme);
    void fontScaleFactorChanged(float scale);
    void logoSvgPathChanged(const QString &path);
    void logoPngPathChanged(const QString &path);

protected:
    /// Free for subclasses; does nothing here and is never called by the library.
    virtual void prepareHost();

private:
    QString m_theme;
    float m_fontScaleFactor = 1.0F;
    QString m_logoSvgPath;
    QString m_logoPngPath;
    WFontManager *m_fontManager;
    IWMovieProviderSource *m_movieProviderSource = nullptr;
};
