#pragma once

#include <QPixmap>

/// A pixmap of that many device pixels, not filled. Null, with a warning, for an empty size and for one that needs
/// more memory than QImageReader::allocationLimit() grants an image.
QPixmap allocatePixmap(const QSize &size, double devicePixelRatio);
