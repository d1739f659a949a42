#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtLogging>

/// Records what is logged while it lives, instead of printing it. One at a time; from any thread.
///
/// What it swallows does not fail a test by itself: compare lines(), or check that it is empty.
class LogRecorder
{
public:
    struct Line
    {
        QtMsgType type;
        QString text;
        bool operator==(const Line &) const = default;
    };

    LogRecorder();
    ~LogRecorder();
    Q_DISABLE_COPY_MOVE(LogRecorder)

    QList<Line> lines() const;
    QStringList texts() const;
    /// The texts of warnings only.
    QStringList warnings() const;
    void clear();
};

/// For readable failures: "warning: text".
char *toString(const LogRecorder::Line &line);
