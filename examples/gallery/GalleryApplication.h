#pragma once

#include <WApplication.h>

/// The gallery's application object: three theme modes, known to QML as `App` of the module Corvane 1.0.
class GalleryApplication : public WApplication
{
    Q_OBJECT
    Q_PROPERTY(bool isDarkTheme READ isDarkTheme NOTIFY isDarkThemeChanged)
    Q_PROPERTY(bool isHighContrastTheme READ isHighContrastTheme NOTIFY isHighContrastThemeChanged)

public:
    GalleryApplication(int &argc, char **argv);

    bool isDarkTheme() const;
    bool isHighContrastTheme() const;

    Q_INVOKABLE bool animationsDisabled() const override;
    /// Nothing moves and nothing has to be waited for. To be set before the first page is shown.
    void setAnimationsDisabled(bool disabled);

    IWMovieProviderSource *getMovieProviderSource() override;

private:
    void updateTheme();

    bool m_isDarkTheme;
    bool m_isHighContrastTheme;
    bool m_animationsDisabled = false;
    IWMovieProviderSource *m_movieSource = nullptr;
};
