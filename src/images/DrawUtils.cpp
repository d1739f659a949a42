#include "DrawUtils.h"

#include "PixmapAllocation.h"

#include <QPainter>

#include <cmath>

#include <private/qsvgnode_p.h>
#include <private/qsvgtinydocument_p.h>

namespace {

// Makes what is drawn in `source` coordinates appear in `target`.
void mapSourceToTarget(QPainter *painter, QRectF target, QRectF source)
{
    if (target.isNull())
        target = QRectF(0, 0, painter->device()->width(), painter->device()->height());
    if (source.isNull())
        source = QRectF(QPointF(), target.size());
    if (target == source || source.isEmpty())
        return;
    const double sx = target.width() / source.width();
    const double sy = target.height() / source.height();
    const QRectF mapped = QTransform::fromScale(sx, sy).mapRect(source);
    painter->translate(target.topLeft() - mapped.topLeft());
    painter->scale(sx, sy);
}

// No outline, with the joins that an SVG viewer starts from.
const QPen &svgPen()
{
    static const QPen pen = [] {
        QPen svgPen(Qt::NoBrush, 1, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
        svgPen.setMiterLimit(4);
        return svgPen;
    }();
    return pen;
}

// Leaves the painter's state changed.
void paintNode(QPainter *painter, QSvgNode *node, QSvgExtraStates &states, const QRectF &rect, const QColor &color,
               double opacity)
{
    if (node->displayMode() == QSvgNode::NoneMode)
        return;
    const QSvgTinyDocument *document = node->document();
    const QRectF source = document ? document->viewBox() : node->bounds();
    QRectF target = rect;
    DrawUtils::fitRectangle(target, source.width() / source.height());
    mapSourceToTarget(painter, target, source);

    painter->setPen(svgPen());
    painter->setBrush(QBrush(color, Qt::SolidPattern));
    painter->setOpacity(opacity);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    node->draw(painter, states);
}

} // namespace

void DrawUtils::drawSVG(QPainter *painter, QSvgNode *node, QSvgExtraStates &states, const QRectF &rect,
                        const QColor &color, double opacity)
{
    if (!painter || !node)
        return;
    painter->save();
    paintNode(painter, node, states, rect, color, opacity);
    painter->restore();
}

QPixmap DrawUtils::renderPixmap(QSvgNode *node, const QRectF &rect, const QSize &size, double devicePixelRatio,
                                const QColor &color, const QColor &background)
{
    if (!node)
        return {};
    QPixmap pixmap = allocatePixmap(size, devicePixelRatio);
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(background);
    QPainter painter(&pixmap);
    QSvgExtraStates states;
    paintNode(&painter, node, states, rect, color, 1.0);
    return pixmap;
}

void DrawUtils::fitRectangle(QRectF &rect, double aspectRatio)
{
    const double k = rect.height() / rect.width() * aspectRatio;
    if (!std::isfinite(k))
        return;
    if (k <= 1.0) {
        const double dx = (rect.width() - rect.width() * k) * 0.5;
        rect.adjust(dx, 0, -dx, 0);
    } else {
        const double dy = (rect.height() - rect.height() / k) * 0.5;
        rect.adjust(0, dy, 0, -dy);
    }
}
