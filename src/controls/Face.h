#pragma once

#include <QtQuick/private/qquickrectangle_p.h>

/// A rectangle with its edges on whole pixels of the device, wherever it stands and moves: the background that a
/// template paints. What somebody puts in its place looks after itself.
class Face : public QQuickRectangle
{
    Q_OBJECT

public:
    using QQuickRectangle::QQuickRectangle;

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
};
