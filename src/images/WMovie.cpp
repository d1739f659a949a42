#include "WMovie.h"

WMovie::WMovie(QObject *parent)
    : QMovie(parent)
{
}

WMovie::WMovie(const QString &fileName, const QByteArray &format, QObject *parent)
    : QMovie(fileName, format, parent)
{
}

WMovie::WMovie(QObject *parent, const char *data, int size, bool copy)
    : QMovie(parent)
    , m_bytes(std::make_unique<QByteArray>(copy ? QByteArray(data, size) : QByteArray::fromRawData(data, size)))
    , m_buffer(std::make_unique<QBuffer>(m_bytes.get(), this))
{
    setDevice(m_buffer.get());
}

WMovie::~WMovie()
{
    destroy(this, m_bytes.release(), m_buffer.release());
}

void WMovie::destroy(QMovie *movie, QByteArray *bytes, QBuffer *buffer)
{
    movie->stop();
    if (buffer) {
        movie->setDevice(nullptr);
        buffer->close();
        delete buffer;
    }
    delete bytes;
}
