#include "Face.h"

#include "EdgeNode.h"

void Face::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickRectangle::itemChange(change, value);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}

QSGNode *Face::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data)
{
    return EdgeNode::paint<QSGInternalRectangleNode>(
        this, oldNode, [&](QSGNode *node) { return QQuickRectangle::updatePaintNode(node, data); });
}
