#include "IconImage.h"

#include "EdgeNode.h"

#include <QCache>

#include <utility>

using namespace Qt::StringLiterals;

QString IconImage::colorName(const QColor &color)
{
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
}

QUrl IconImage::iconUrl(const QColor &color, const QString &name)
{
    if (name.isEmpty() || color.alpha() == 0)
        return {};
    // A screen shows few icons many times, and finding an address is quicker than making it.
    static QCache<std::pair<QRgb, QString>, QUrl> urls(256);
    const std::pair key(color.rgba(), name);
    if (const QUrl *known = urls.object(key))
        return *known;
    const QUrl url("image://svg/"_L1 + colorName(color) + u'/' + name);
    urls.insert(key, new QUrl(url));
    return url;
}

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
