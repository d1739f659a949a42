#include "PixmapAllocation.h"

#include <QDebug>
#include <QImageReader>

QPixmap allocatePixmap(const QSize &size, double devicePixelRatio)
{
    const qint64 limit = qint64(QImageReader::allocationLimit()) * 1024 * 1024; // 0: none
    const qint64 bytes = qint64(size.width()) * size.height() * 4;
    QPixmap pixmap = size.isEmpty() || (limit > 0 && bytes > limit) ? QPixmap() : QPixmap(size);
    if (pixmap.isNull()) {
        qWarning() << "Unable to create a pixmap of size" << size;
        return pixmap;
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}
