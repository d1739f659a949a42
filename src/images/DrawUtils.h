#pragma once

#include <LumakitQmlExport.h>

#include <QColor>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QtCore/qtconfigmacros.h>

QT_BEGIN_NAMESPACE
class QPainter;
class QSvgNode;
struct QSvgExtraStates;
QT_END_NAMESPACE

/// Drawing of SVG nodes in a colour of the caller's choice.
namespace DrawUtils {

/// Draws the node into `rect` (logical pixels) with its aspect ratio kept. Shapes without a fill of their own come out
/// in `color`; `opacity` is 0..1. Nothing happens without a painter or node, or when the node's display is "none".
LUMAKITQML_EXPORT void drawSVG(QPainter *painter, QSvgNode *node, QSvgExtraStates &states, const QRectF &rect,
                               const QColor &color, double opacity);

/// A pixmap of `size` device pixels, filled with `background`, with the node drawn into `rect` (logical pixels).
/// Null without a node and for a size that cannot be allocated, which logs a warning.
LUMAKITQML_EXPORT QPixmap renderPixmap(QSvgNode *node, const QRectF &rect, const QSize &size, double devicePixelRatio,
                                       const QColor &color, const QColor &background);

/// Shrinks the rectangle about its centre to the largest one of that ratio of width to height. A rectangle without
/// width, and a ratio that is not finite, change nothing.
LUMAKITQML_EXPORT void fitRectangle(QRectF &rect, double aspectRatio);

} // namespace DrawUtils
