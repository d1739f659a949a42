#pragma once

#include <QtQuick/private/qquickimage_p.h>

/// An image that stands on whole pixels of the device where it fills its item; between them an icon would be blurred.
class IconImage : public QQuickImage
{
    Q_OBJECT

public:
    using QQuickImage::QQuickImage;

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
};
