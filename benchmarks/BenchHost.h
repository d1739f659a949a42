#pragma once

#include <LKQmlRegister.h>
#include <WApplication.h>

#include <QLoggingCategory>
#include <QQmlEngine>
#include <QSettings>
#include <QTemporaryDir>

/// What a benchmark runs in: empty settings apart from the user's, and no notices between the rows of the table. To be
/// there before the application object.
class BenchSurroundings
{
public:
    BenchSurroundings()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    }

private:
    QTemporaryDir m_settings;
};

/// A host that QML knows as App, with the types of the library. It has themes and icons if the benchmark is built with
/// those of the gallery.
class BenchHost : public WApplication
{
public:
    BenchHost(int &argc, char **argv)
        : WApplication(argc, argv)
    {
        qmlRegisterSingletonInstance("Corvane", 1, 0, "App", this);
        LKQmlRegister::registerLKQmlDataTypes();
        LKQmlRegister::registerLKQmlComponents();
    }
};
