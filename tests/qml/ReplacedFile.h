#pragma once

#include <QtCore/private/qabstractfileengine_p.h>

/// While it lives, whoever opens the file reads the text instead, files of the resource system included.
class ReplacedFile : public QAbstractFileEngineHandler
{
public:
    ReplacedFile(const QString &path, const QByteArray &text);

    std::unique_ptr<QAbstractFileEngine> create(const QString &fileName) const override;

private:
    QString m_path;
    QByteArray m_text;
};
