#include "WQmlBalloon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>

#include <algorithm>

static_assert(int(WQmlBalloon::None) == int(Qt::NoArrow) && int(WQmlBalloon::Top) == int(Qt::UpArrow)
              && int(WQmlBalloon::Bottom) == int(Qt::DownArrow) && int(WQmlBalloon::Left) == int(Qt::LeftArrow)
              && int(WQmlBalloon::Right) == int(Qt::RightArrow));

namespace {

constexpr WQmlBalloon::ArrowAnchor opposites[] = {
    WQmlBalloon::None, WQmlBalloon::Bottom, WQmlBalloon::Top, WQmlBalloon::Right, WQmlBalloon::Left,
};

constexpr bool isEdge(int value)
{
    return value >= WQmlBalloon::Top && value <= WQmlBalloon::Right;
}

QPainterPath roundedBody(const QRectF &body, int radius)
{
    const double left = body.x();
    const double top = body.y();
    const double right = body.right();
    const double bottom = body.bottom();
    const double diameter = 2.0 * radius;

    QPainterPath path;
    path.moveTo(right, top + radius);
    path.arcTo(right - diameter, top, diameter, diameter, 0, 90);
    path.lineTo(left + radius, top);
    path.arcTo(left, top, diameter, diameter, 90, 90);
    path.lineTo(left, bottom - radius);
    path.arcTo(left, bottom - diameter, diameter, diameter, 180, 90);
    path.lineTo(right - radius, bottom);
    path.arcTo(right - diameter, bottom - diameter, diameter, diameter, 270, 90);
    path.closeSubpath();
    return path;
}

} // namespace

WQmlBalloon::WQmlBalloon(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

WQmlBalloon::~WQmlBalloon() = default;

WQmlBalloon::ArrowAlignment WQmlBalloon::arrowAlignment() const
{
    return m_arrowAlignment;
}

void WQmlBalloon::setArrowAlignment(ArrowAlignment alignment)
{
    if (m_arrowAlignment == alignment)
        return;
    m_arrowAlignment = alignment;
    Q_EMIT arrowAlignmentChanged();
    update();
}

WQmlBalloon::ArrowAnchor WQmlBalloon::arrowAnchor() const
{
    return m_arrowAnchor;
}

void WQmlBalloon::setArrowAnchor(ArrowAnchor anchor)
{
    if (m_arrowAnchor == anchor)
        return;
    m_arrowAnchor = anchor;
    Q_EMIT arrowAnchorChanged();
    update();
}

QColor WQmlBalloon::backgroundColor() const
{
    return m_backgroundColor;
}

void WQmlBalloon::setBackgroundColor(const QColor &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    Q_EMIT backgroundColorChanged();
    update();
}

QColor WQmlBalloon::borderColor() const
{
    return m_borderColor;
}

void WQmlBalloon::setBorderColor(const QColor &color)
{
    if (m_borderColor == color)
        return;
    m_borderColor = color;
    Q_EMIT borderColorChanged();
    update();
}

int WQmlBalloon::arrowOffset() const
{
    return m_arrowOffset;
}

void WQmlBalloon::setArrowOffset(int offset)
{
    if (m_arrowOffset == offset)
        return;
    m_arrowOffset = offset;
    Q_EMIT arrowOffsetChanged();
    update();
}

int WQmlBalloon::arrowSize() const
{
    return m_arrowSize;
}

void WQmlBalloon::setArrowSize(int size)
{
    if (m_arrowSize == size)
        return;
    m_arrowSize = size;
    Q_EMIT arrowSizeChanged();
    update();
}

int WQmlBalloon::borderWidth() const
{
    return m_borderWidth;
}

void WQmlBalloon::setBorderWidth(int width)
{
    if (m_borderWidth == width)
        return;
    m_borderWidth = width;
    Q_EMIT borderWidthChanged();
    update();
}

WQmlBalloon::ArrowAnchor WQmlBalloon::arrowAnchorFromArrowType(Qt::ArrowType type)
{
    return isEdge(type) ? static_cast<ArrowAnchor>(type) : None;
}

Qt::ArrowType WQmlBalloon::arrowTypeFromArrowAnchor(ArrowAnchor anchor)
{
    return isEdge(anchor) ? static_cast<Qt::ArrowType>(anchor) : Qt::NoArrow;
}

WQmlBalloon::ArrowAnchor WQmlBalloon::flipAnchor(ArrowAnchor anchor)
{
    return isEdge(anchor) ? opposites[anchor] : None;
}

QPoint WQmlBalloon::calcArrowPos(QQuickItem *item, const QSize &popupSize, ArrowAnchor anchor, ArrowAlignment alignment,
                                 int arrowOffset, int arrowSize)
{
    if (!item)
        return {};
    const QRect itemRect(item->mapToGlobal(QPointF()).toPoint(), item->size().toSize());
    return {getGlobalXCenter(alignment, anchor, itemRect, arrowOffset, arrowSize, popupSize.width()),
            getGlobalYCenter(alignment, anchor, itemRect, arrowOffset, arrowSize, popupSize.height())};
}

void WQmlBalloon::paint(QPainter *painter)
{
    QPen pen(m_borderColor);
    pen.setWidth(m_borderWidth);
    painter->setBrush(QBrush(m_backgroundColor, Qt::SolidPattern));
    painter->setPen(pen);
    painter->setRenderHint(QPainter::Antialiasing);

    if (m_arrowAnchor == None) {
        const QRect whole(0, 0, static_cast<int>(width()), static_cast<int>(height()));
        painter->drawRoundedRect(whole, m_radius, m_radius, Qt::AbsoluteSize);
        return;
    }
    painter->drawPath(outline(size()));
}

int WQmlBalloon::getGlobalXCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &itemRect, int arrowOffset,
                                  int arrowSize, int popupWidth)
{
    if (anchor == Left)
        return itemRect.right();
    if (anchor == Right)
        return itemRect.left() - popupWidth;

    const int centre = itemRect.right() - itemRect.width() / 2 - arrowOffset;
    switch (alignment) {
    case LeftAlignment:
        return centre - arrowSize;
    case RightAlignment:
        return centre - popupWidth + arrowSize;
    default:
        return centre - popupWidth / 2;
    }
}

int WQmlBalloon::getGlobalYCenter(ArrowAlignment alignment, ArrowAnchor anchor, const QRect &itemRect, int arrowOffset,
                                  int arrowSize, int popupHeight)
{
    if (anchor == Top)
        return itemRect.bottom();
    if (anchor == Bottom)
        return itemRect.top() - popupHeight;
    if (anchor != Left && anchor != Right)
        return itemRect.y();

    const int centre = itemRect.bottom() - itemRect.height() / 2 - arrowOffset;
    switch (alignment) {
    case TopAlignment:
        return centre - arrowSize;
    case BottomAlignment:
        return centre - popupHeight + arrowSize;
    default:
        return centre - popupHeight / 2;
    }
}

double WQmlBalloon::getXCenter(const QSizeF &size) const
{
    switch (m_arrowAlignment) {
    case LeftAlignment:
        return keepClearOfCorners(0.0 + m_arrowSize + m_arrowOffset, size.width());
    case RightAlignment:
        return keepClearOfCorners(m_arrowOffset + (size.width() - m_arrowSize), size.width());
    default:
        return keepClearOfCorners(m_arrowOffset + size.width() * 0.5, size.width());
    }
}

double WQmlBalloon::getYCenter(const QSizeF &size) const
{
    switch (m_arrowAlignment) {
    case TopAlignment:
        return keepClearOfCorners(0.0 + m_arrowSize + m_arrowOffset, size.height());
    case BottomAlignment:
        return keepClearOfCorners(m_arrowOffset + (size.height() - m_arrowSize), size.height());
    default:
        return keepClearOfCorners(m_arrowOffset + size.height() * 0.5, size.height());
    }
}

double WQmlBalloon::keepClearOfCorners(double tip, double edgeLength) const
{
    const double low = 0.0 + m_arrowSize + m_radius;
    const double high = edgeLength - m_radius - m_arrowSize;
    // Not std::clamp: on an edge that is too short high is below low, and a tip that is not below low goes to high.
    return low > tip ? low : std::min(high, tip);
}

QPainterPath WQmlBalloon::outline(const QSizeF &size) const
{
    const double arrow = m_arrowSize;
    QRectF body(QPointF(), size);
    QPolygonF triangle;
    switch (m_arrowAnchor) {
    case Top: {
        const double tip = getXCenter(size);
        body.setTop(arrow);
        triangle = {{tip + arrow, arrow}, {tip, 0}, {tip - arrow, arrow}};
        break;
    }
    case Bottom: {
        const double tip = getXCenter(size);
        body.setBottom(size.height() - arrow);
        triangle = {{tip + arrow, body.bottom()}, {tip, size.height()}, {tip - arrow, body.bottom()}};
        break;
    }
    case Left: {
        const double tip = getYCenter(size);
        body.setLeft(arrow);
        triangle = {{arrow, tip + arrow}, {0, tip}, {arrow, tip - arrow}};
        break;
    }
    case Right: {
        const double tip = getYCenter(size);
        body.setRight(size.width() - arrow);
        triangle = {{body.right(), tip + arrow}, {size.width(), tip}, {body.right(), tip - arrow}};
        break;
    }
    default: // an unknown edge has no arrow
        break;
    }

    QPainterPath path = roundedBody(body, m_radius);
    path.addPolygon(triangle);
    return path.simplified(); // no border between body and arrow
}
