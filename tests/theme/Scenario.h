#pragma once

#include "LogRecorder.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <map>
#include <string>

/// A piece of a test that needs a process of its own: the test program starts itself again with the scenario's name.
/// What the scenario says line by line comes back as its result.
namespace Scenario {

using Function = void (*)(int &argc, char **argv);

struct Result
{
    QStringList lines;
    QString errors;
    int exitCode = -1;
};

inline void say(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

inline void sayLog(const LogRecorder &log)
{
    const std::map<QtMsgType, QString> names{{QtDebugMsg, QStringLiteral("debug: ")},
                                             {QtInfoMsg, QStringLiteral("info: ")},
                                             {QtWarningMsg, QStringLiteral("warning: ")},
                                             {QtCriticalMsg, QStringLiteral("critical: ")}};
    for (const LogRecorder::Line &line : log.lines())
        say(names.at(line.type) + line.text);
}

/// The settings of every program with the names that the tests use are kept in that folder.
inline void useSettings(const QString &folder)
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, folder + QLatin1StringView("/system"));
    QCoreApplication::setOrganizationName(QStringLiteral("LumakitQml"));
    QCoreApplication::setApplicationName(QStringLiteral("scenario"));
}

/// Runs the scenario that the command line names; false when it names none.
inline bool runFromCommandLine(int &argc, char **argv, const std::map<std::string, Function> &scenarios)
{
    if (argc < 4 || std::string(argv[1]) != "--scenario")
        return false;
    useSettings(QString::fromLocal8Bit(argv[3]));
    const auto scenario = scenarios.find(argv[2]);
    if (scenario == scenarios.end())
        qFatal("There is no scenario %s", argv[2]);
    scenario->second(argc, argv);
    return true;
}

inline Result run(const QString &name, const QString &settingsFolder)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--scenario"), name, settingsFolder});
    Result result;
    if (!process.waitForFinished(120'000)) {
        process.kill();
        process.waitForFinished();
        result.errors = process.errorString();
        return result;
    }
    result.lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    result.errors = QString::fromUtf8(process.readAllStandardError());
    if (process.exitStatus() == QProcess::NormalExit)
        result.exitCode = process.exitCode();
    return result;
}

} // namespace Scenario

/// Compares what a scenario said; nothing may be on its error output.
#define COMPARE_SCENARIO(name, folder, ...)                          \
    do {                                                             \
        const Scenario::Result result = Scenario::run(name, folder); \
        QCOMPARE(result.errors, QString());                          \
        QCOMPARE(result.lines, (__VA_ARGS__));                       \
        QCOMPARE(result.exitCode, 0);                                \
    } while (false)
