#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <qqmlintegration.h>

/// Writes to the application's log from QML, each record with the prefix "qml: " and without a source position. QML
/// knows it as the singleton `Logger`.
class LUMAKITQML_EXPORT Logger : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Logger(QObject *parent = nullptr);
    ~Logger() override;

    Q_INVOKABLE void info(const QString &text);
    Q_INVOKABLE void debug(const QString &text);
    /// At the critical level.
    Q_INVOKABLE void error(const QString &text);
};
