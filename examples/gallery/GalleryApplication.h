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

private:
    void updateTheme();

    bool m_isDarkTheme;
    bool m_isHighContrastTheme;
};
