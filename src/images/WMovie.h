#pragma once

#include <LumakitQmlExport.h>

#include <QBuffer>
#include <QByteArray>
#include <QMovie>

#include <memory>

/// A movie that can play from memory.
class LUMAKITQML_EXPORT WMovie : public QMovie
{
    Q_OBJECT

public:
    explicit WMovie(QObject *parent = nullptr);
    WMovie(const QString &fileName, const QByteArray &format, QObject *parent = nullptr);
    /// Plays `size` bytes. With `copy` they are copied, otherwise they must outlive the movie.
    WMovie(QObject *parent, const char *data, int size, bool copy);
    ~WMovie() override;

    /// Stops the movie, then detaches and deletes its buffer and deletes its bytes; either may be null.
    static void destroy(QMovie *movie, QByteArray *bytes, QBuffer *buffer);

private:
    std::unique_ptr<QByteArray> m_bytes;
    std::unique_ptr<QBuffer> m_buffer;
};
