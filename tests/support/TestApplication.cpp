#include "TestApplication.h"

#include <QQmlEngine>
#include <QSettings>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

TestApplication::TestApplication(int &argc, char **argv)
    : WApplication(argc, argv)
{
    qmlRegisterSingletonInstance("Corvane", 1, 0, "App", this);
    connect(this, &IWApplication::themeModeChanged, this, [this] {
        Q_EMIT isDarkThemeChanged(isDarkTheme());
        Q_EMIT isHighContrastThemeChanged(isHighContrastTheme());
    });
}

bool TestApplication::isDarkTheme() const
{
    return getThemeMode() != "default"_L1;
}

bool TestApplication::isHighContrastTheme() const
{
    return getThemeMode() == "highcontrast"_L1;
}

bool TestApplication::animationsDisabled() const
{
    return m_animationsDisabled;
}

void TestApplication::setAnimationsDisabled(bool disabled)
{
    m_animationsDisabled = disabled;
}

void TestApplication::isolateSettings()
{
    static const QTemporaryDir folder;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder.path() + "/system"_L1);
    setOrganizationName(u"LumakitQml"_s);
    setApplicationName(u"tests"_s);
}
