#include "RoundedPicture.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QtQuick/private/qquickimage_p.h>

#include <memory>

namespace {

QImage rounded(const QImage &picture, const QSize &size, double radius)
{
    const QSize seen = QSizeF(size).scaled(picture.size(), Qt::KeepAspectRatio).toSize().expandedTo({1, 1});
    const QPoint corner((picture.width() - seen.width()) / 2, (picture.height() - seen.height()) / 2);
    const QImage fitting =
        picture.copy(QRect(corner, seen)).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);

    QImage result(size, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(fitting));
    painter.drawRoundedRect(QRectF({}, QSizeF(size)), radius, radius);
    return result;
}

} // namespace

RoundedPicture::RoundedPicture(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

RoundedPicture::~RoundedPicture() = default;

double RoundedPicture::radius() const
{
    return m_radius;
}

void RoundedPicture::setRadius(double radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    polish();
    Q_EMIT radiusChanged();
}

void RoundedPicture::componentComplete()
{
    QQuickItem::componentComplete();
    m_image = qobject_cast<QQuickImage *>(parentItem());
    if (!m_image)
        return;
    m_image->setFlag(ItemHasContents, false);
    // Its painted geometry is set anew with every picture, also with one that is there at once.
    connect(m_image, &QQuickImage::paintedGeometryChanged, this, &RoundedPicture::polish);
    connect(m_image, &QQuickImage::sourceChanged, this, &RoundedPicture::polish);
    connect(m_image, &QQuickImage::statusChanged, this, &RoundedPicture::polish);
    polish();
}

void RoundedPicture::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    polish();
}

void RoundedPicture::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        polish();
    QQuickItem::itemChange(change, data);
}

void RoundedPicture::updatePolish()
{
    const double ratio = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    const QSize pixels = (size() * ratio).toSize();
    QImage picture = m_image && m_image->status() == QQuickImageBase::Ready ? m_image->image() : QImage();
    picture.setDevicePixelRatio(1);
    m_picture = picture.isNull() || pixels.isEmpty() ? QImage() : rounded(picture, pixels, m_radius * ratio);
    m_pictureIsNew = true;
    update();
}

QSGNode *RoundedPicture::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto imageNode = std::unique_ptr<QSGImageNode>(static_cast<QSGImageNode *>(node));
    if (m_picture.isNull())
        return nullptr;
    if (!imageNode) {
        imageNode.reset(window()->createImageNode());
        imageNode->setOwnsTexture(true);
        m_pictureIsNew = true;
    }
    if (std::exchange(m_pictureIsNew, false))
        imageNode->setTexture(window()->createTextureFromImage(m_picture));
    imageNode->setFiltering(QSGTexture::Linear);
    imageNode->setRect(QRectF({}, QSizeF(m_picture.size()) / window()->effectiveDevicePixelRatio()));
    return imageNode.release();
}
