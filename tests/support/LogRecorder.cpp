#include "LogRecorder.h"

#include <QDebug>
#include <QMutex>
#include <QTest>

namespace {

struct State
{
    QMutex mutex;
    QList<LogRecorder::Line> lines;
    QtMessageHandler previous = nullptr;
};

State &state()
{
    static State instance;
    return instance;
}

void record(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QMutexLocker lock(&state().mutex);
    state().lines.append({type, text});
}

} // namespace

LogRecorder::LogRecorder()
{
    clear();
    state().previous = qInstallMessageHandler(record);
}

LogRecorder::~LogRecorder()
{
    qInstallMessageHandler(state().previous);
}

QList<LogRecorder::Line> LogRecorder::lines() const
{
    const QMutexLocker lock(&state().mutex);
    return state().lines;
}

QStringList LogRecorder::texts() const
{
    QStringList texts;
    for (const Line &line : lines())
        texts.append(line.text);
    return texts;
}

QStringList LogRecorder::warnings() const
{
    QStringList texts;
    for (const Line &line : lines()) {
        if (line.type == QtWarningMsg)
            texts.append(line.text);
    }
    return texts;
}

void LogRecorder::clear()
{
    const QMutexLocker lock(&state().mutex);
    state().lines.clear();
}

char *toString(const LogRecorder::Line &line)
{
    static const QHash<QtMsgType, QString> names{{QtDebugMsg, QStringLiteral("debug")},
                                                 {QtInfoMsg, QStringLiteral("info")},
                                                 {QtWarningMsg, QStringLiteral("warning")},
                                                 {QtCriticalMsg, QStringLiteral("critical")}};
    return QTest::toString(names.value(line.type) + QStringLiteral(": ") + line.text);
}
