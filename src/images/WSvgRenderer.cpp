#include "WSvgRenderer.h"

#include "DrawUtils.h"
#include "PixmapAllocation.h"

#include <QDebug>
#include <QMetaMethod>
#include <QPainter>
#include <QSvgRenderer>

#include <private/qsvgtinydocument_p.h>

using namespace Qt::StringLiterals;

WSvgRenderer::WSvgRenderer(QObject *parent)
    : QObject(parent)
{
}

WSvgRenderer::WSvgRenderer(const QString &path, QObject *parent)
    : QObject(parent)
{
    load(path);
}

WSvgRenderer::~WSvgRenderer() = default;

WSvgRenderer *WSvgRenderer::loadIconResource(const QString &name, QObject *parent)
{
    if (!parent)
        qWarning() << "WSvgRenderer::loadIconResource - the parent object should not be null";
    return name.isEmpty() ? new WSvgRenderer(parent) : new WSvgRenderer(resourcePath(name), parent);
}

QString WSvgRenderer::resourcePath(const QString &name)
{
    return ":/Resources/"_L1 + name + ".svg"_L1;
}

bool WSvgRenderer::load(const QString &path)
{
    if (path == m_loadedPath)
        return true;
    clear();
    m_loadedPath.clear();

    const QString file = path.startsWith("qrc:/"_L1) ? path.sliced(3) : path;
    std::unique_ptr<QSvgTinyDocument> document(QSvgTinyDocument::load(file));
    if (!document) {
        qWarning() << "Unable to load SVG file: " << path;
        return false;
    }
    if (document->renderers().size() == 1) {
        m_document = std::move(document);
    } else {
        document.reset();
        auto renderer = std::make_unique<QSvgRenderer>();
        // Its timer belongs to the thread that loads, and ends with the renderer in whatever thread: only where needed.
        renderer->setAnimationEnabled(isSignalConnected(QMetaMethod::fromSignal(&WSvgRenderer::repaintNeeded)));
        if (!renderer->load(file)) {
            qWarning() << "Invalid svg file: " << path;
            return false;
        }
        if (renderer->animated())
            connect(renderer.get(), &QSvgRenderer::repaintNeeded, this, &WSvgRenderer::repaintNeeded);
        m_renderer = std::move(renderer);
    }
    m_loadedPath = path;
    return true;
}

bool WSvgRenderer::updateIconResource(const QString &name)
{
    return !name.isEmpty() && load(resourcePath(name));
}

QString WSvgRenderer::getLoadedPath() const
{
    return m_loadedPath;
}

bool WSvgRenderer::isLoaded() const
{
    return !m_loadedPath.isEmpty();
}

bool WSvgRenderer::isAnimated() const
{
    return m_renderer && m_renderer->animated();
}

void WSvgRenderer::draw(QPainter *painter, const QRectF &rect, const QColor &color, double opacity) const
{
    if (!m_renderer) {
        static QSvgExtraStates states; // drawing leaves it as it was
        DrawUtils::drawSVG(painter, getSvgNode(), states, rect, color, opacity);
        return;
    }
    if (!painter)
        return;
    QRectF target = rect;
    const QRectF viewBox = m_renderer->viewBoxF();
    DrawUtils::fitRectangle(target, viewBox.width() / viewBox.height());
    m_renderer->render(painter, target);
}

void WSvgRenderer::drawScalingHeight(QPainter *painter, const QRectF &rect) const
{
    if (!m_renderer || !painter)
        return;
    // Only the width is scaled, and the position is not used: callers clip to the strip they want.
    const QRectF viewBox = m_renderer->viewBoxF();
    const double scale = rect.height() / viewBox.height();
    m_renderer->render(painter, QRectF(0, 0, viewBox.width() * scale, viewBox.height()));
}

QPixmap WSvgRenderer::renderPixmap(const QRectF &iconRect, const QSize &pixmapSize, double devicePixelRatio,
                                   const QColor &color, const QColor &background) const
{
    if (iconRect.width() > pixmapSize.width() || iconRect.height() > pixmapSize.height())
        qWarning() << "Icon size should be less or equal than the pixmap size";
    if (!m_renderer)
        return DrawUtils::renderPixmap(getSvgNode(), iconRect, pixmapSize, devicePixelRatio, color, background);

    QPixmap pixmap = allocatePixmap(pixmapSize, devicePixelRatio);
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(Qt::transparent); // what the file leaves out shows nothing, not old memory
    QPainter painter(&pixmap);
    draw(&painter, iconRect, Qt::black, 1.0);
    return pixmap;
}

QPixmap WSvgRenderer::renderPixmap(const QSize &iconSize, const QSize &pixmapSize, double devicePixelRatio,
                                   const QColor &color, const QColor &background) const
{
    QRectF iconRect({0, 0}, QSizeF(iconSize));
    iconRect.moveCenter(QRectF(QPointF(), QSizeF(pixmapSize)).center());
    return renderPixmap(iconRect, pixmapSize, devicePixelRatio, color, background);
}

QPixmap WSvgRenderer::renderPixmap(const QSize &size, double devicePixelRatio, const QColor &color) const
{
    return renderPixmap(QRectF(QPointF(), QSizeF(size)), size, devicePixelRatio, color, QColor(Qt::transparent));
}

QIcon WSvgRenderer::renderIcon(const QString &offName, const QString &onName, const QSize &size,
                               double devicePixelRatio, const QColor &color, QIcon::Mode mode)
{
    QIcon icon;
    updateIconResource(offName);
    icon.addPixmap(renderPixmap(size, devicePixelRatio, color), mode, QIcon::Off);
    updateIconResource(onName);
    icon.addPixmap(renderPixmap(size, devicePixelRatio, color), mode, QIcon::On);
    return icon;
}

void WSvgRenderer::connectNotify(const QMetaMethod &signal)
{
    if (m_renderer && signal == QMetaMethod::fromSignal(&WSvgRenderer::repaintNeeded))
        m_renderer->setAnimationEnabled(true);
}

QSvgNode *WSvgRenderer::getSvgNode() const
{
    const QList<QSvgNode *> nodes = m_document ? m_document->renderers() : QList<QSvgNode *>();
    if (nodes.isEmpty()) {
        qWarning() << "SVG node does not exist!";
        return nullptr;
    }
    return nodes.first();
}

void WSvgRenderer::clear()
{
    m_document.reset();
    m_renderer.reset();
}
