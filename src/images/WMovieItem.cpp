#include "WMovieItem.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <memory>

namespace {

// The largest rectangle of the frame's proportions, centred, on whole device pixels.
QRectF fitted(const QSize &frame, const QSizeF &item, double devicePixelRatio)
{
    const QSizeF size = QSizeF(frame).scaled(item, Qt::KeepAspectRatio);
    const auto snap = [devicePixelRatio](double value) {
        return std::round(value * devicePixelRatio) / devicePixelRatio;
    };
    return {snap((item.width() - size.width()) / 2), snap((item.height() - size.height()) / 2), snap(size.width()),
            snap(size.height())};
}

} // namespace

WMovieItem::WMovieItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

WMovieItem::~WMovieItem() = default;

QMovie *WMovieItem::movie() const
{
    return m_movie;
}

void WMovieItem::setMovie(QMovie *movie)
{
    if (movie == m_movie)
        return;
    if (m_movie)
        m_movie->disconnect(this);
    m_movie = movie;
    m_pausedWhileHidden = false;
    if (movie) {
        connect(movie, &QMovie::frameChanged, this, &WMovieItem::showFrame);
        connect(movie, &QObject::destroyed, this, &WMovieItem::dropMovie);
        if (movie->state() == QMovie::NotRunning)
            movie->start();
        followVisibility();
    }
    showFrame();
    Q_EMIT movieChanged();
}

void WMovieItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemVisibleHasChanged)
        followVisibility();
    else if (change == ItemDevicePixelRatioHasChanged)
        update();
    QQuickItem::itemChange(change, data);
}

QSGNode *WMovieItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto imageNode = std::unique_ptr<QSGImageNode>(static_cast<QSGImageNode *>(node));
    const QImage frame = m_movie ? m_movie->currentImage() : QImage();
    if (frame.isNull() || size().isEmpty())
        return nullptr;
    if (!imageNode) {
        imageNode.reset(window()->createImageNode());
        imageNode->setOwnsTexture(true);
        m_frameIsNew = true;
    }
    if (m_frameIsNew) {
        imageNode->setTexture(window()->createTextureFromImage(frame));
        m_frameIsNew = false;
    }
    imageNode->setFiltering(QSGTexture::Linear);
    imageNode->setRect(fitted(frame.size(), size(), window()->effectiveDevicePixelRatio()));
    return imageNode.release();
}

void WMovieItem::showFrame()
{
    m_frameIsNew = true;
    const QSize frame = m_movie ? m_movie->currentImage().size() : QSize();
    setImplicitSize(frame.width() > 0 ? frame.width() : 0, frame.height() > 0 ? frame.height() : 0);
    update();
}

void WMovieItem::followVisibility()
{
    if (!m_movie)
        return;
    if (!isVisible() && m_movie->state() == QMovie::Running) {
        m_movie->setPaused(true);
        m_pausedWhileHidden = true;
    } else if (isVisible() && m_pausedWhileHidden) {
        m_movie->setPaused(false);
        m_pausedWhileHidden = false;
    }
}

void WMovieItem::dropMovie()
{
    m_movie = nullptr;
    m_pausedWhileHidden = false;
    showFrame();
    Q_EMIT movieChanged();
}
