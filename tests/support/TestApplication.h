#pragma once

#include <WApplication.h>

/// The host of the tests: an application object whose settings live in a folder of their own, registered in QML as
/// `App` of the module Corvane 1.0.
class TestApplication : public WApplication
{
    Q_OBJECT
    Q_PROPERTY(bool isDarkTheme READ isDarkTheme NOTIFY isDarkThemeChanged)
    Q_PROPERTY(bool isHighContrastTheme READ isHighContrastTheme NOTIFY isHighContrastThemeChanged)

public:
    TestApplication(int &argc, char **argv);

    bool isDarkTheme() const;
    bool isHighContrastTheme() const;

    Q_INVOKABLE bool animationsDisabled() const override;
    void setAnimationsDisabled(bool disabled);

    /// Makes QSettings read and write a new, empty folder. Call it before any application object exists.
    static void isolateSettings();

private:
    bool m_animationsDisabled = false;
};
