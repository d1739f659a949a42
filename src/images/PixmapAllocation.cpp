#include "PixmapAllocation.h"

#include <QDebug>
#include <QImageReader>

QPixmap allocatePixmap(const QSize &size, double devicePixelRatio)
{
    const qint64 limit = qint64(QImageReader::allocationLimit()) * 1024 * 1024; // 0: none
    const qint64 pixels = qint64(size.width()) * size.height();
    const bool refused = size.isEmpty() || (limit > 0 && pixels > limit / 4);
    QPixmap pixmap = refused ? QPixmap() : QPixmap(size);
    // A pixmap that got no memory does not count as null, but its image does.
    if (pixmap.toImage().isNull()) {
        qWarning() << "Unable to create a pixmap of size" << size;
        return {};
    }
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}
