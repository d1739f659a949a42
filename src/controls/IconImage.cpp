#include "IconImage.h"

#include "EdgeNode.h"

void IconImage::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickImage::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}

QSGNode *IconImage::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    const auto paint = [&](QSGNode *node) { return QQuickImage::updatePaintNode(node, data); };
    const bool fills =
        (fillMode() == Stretch || fillMode() == PreserveAspectFit) && QSizeF(paintedWidth(), paintedHeight()) == size();
    return EdgeNode::paint<QSGInternalImageNode>(this, oldNode, paint, fills);
}
