#include "WQmlHalfPill.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace {

// Of a full turn in sixteenths of a degree.
constexpr int quarterTurn = 90 * 16;
constexpr int halfTurn = 180 * 16;

} // namespace

WQmlHalfPill::WQmlHalfPill(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

WQmlHalfPill::~WQmlHalfPill() = default;

QColor WQmlHalfPill::backgroundColor() const
{
    return m_backgroundColor;
}

void WQmlHalfPill::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    Q_EMIT backgroundColorChanged();
    update();
}

QColor WQmlHalfPill::borderColor() const
{
    return m_borderColor;
}

void WQmlHalfPill::setBorderColor(const QColor &color)
{
    m_borderColor = color;
    Q_EMIT borderColorChanged();
    update();
}

void WQmlHalfPill::paint(QPainter *painter)
{
    drawSemiCircle(painter, size());
    drawRect(painter, size());
    drawBorders(painter, size(), m_borderColor, m_borderWidth, m_borderLeft, m_borderTop, m_borderRight,
                m_borderBottom);
}

void WQmlHalfPill::drawSemiCircle(QPainter *painter, const QSizeF &size) const
{
    if (m_edge != Left && m_edge != Right)
        return;
    const bool hasBorder = m_edge == Left ? m_borderLeft : m_borderRight;
    const double inset = hasBorder ? m_borderWidth * 0.5 : 0.0;
    const double x = m_edge == Left ? inset : size.width() - size.height() - inset;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(QBrush(m_backgroundColor, Qt::SolidPattern));
    painter->setPen(QColor(Qt::transparent));
    // Inset at the top only; at the bottom the border covers the difference.
    painter->drawEllipse(QRectF(x, inset, size.height(), size.height() - inset));
    painter->restore();
}

void WQmlHalfPill::drawRect(QPainter *painter, const QSizeF &size) const
{
    const double roundPart = m_borderWidth + size.height() * 0.5;
    QRectF rect(QPointF(), size);
    if (m_edge == Left)
        rect.moveLeft(roundPart);
    else if (m_edge == Right)
        rect.setWidth(size.width() - roundPart);

    painter->save();
    painter->setPen(QColor(Qt::transparent));
    painter->setBrush(QBrush(m_backgroundColor, Qt::SolidPattern));
    painter->drawRect(rect);
    painter->restore();
}

void WQmlHalfPill::drawBorders(QPainter *painter, const QSizeF &size, const QColor &color, int width, bool left,
                               bool top, bool right, bool bottom) const
{
    const double half = width * 0.5;
    const double roundPart = size.height() * 0.5 + width;
    const QPen pen(QBrush(color, Qt::SolidPattern), width, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    const double x = (m_edge == Left ? roundPart : 0.0) - half;
    // Lines end at the width and the height of the frame, not at its far edges: caps cover the difference.
    const double endX = m_edge == Right ? size.width() - roundPart : size.width();
    const double endY = size.height();

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);

    // The path keeps its lines, so each is drawn again with those that follow: seen only where the colour lets through.
    QPainterPath sides;
    const auto drawSide = [&](const QPointF &from, const QPointF &to) {
        sides.moveTo(from);
        sides.lineTo(to);
        painter->drawPath(sides);
    };
    if (top)
        drawSide({x, half}, {endX, half});
    if (bottom)
        drawSide({x, endY - half}, {endX, endY - half});
    if (right && m_edge != Right)
        drawSide({endX - half, half}, {endX - half, endY});
    if (left && m_edge != Left)
        drawSide({x + width, half}, {x + width, endY});

    if ((m_edge == Left && left) || (m_edge == Right && right)) {
        const double arcX = m_edge == Left ? half : size.width() - size.height() - half;
        const int span = m_edge == Left ? halfTurn : -halfTurn;
        painter->drawArc(QRectF(arcX, half, size.height(), size.height() - width), quarterTurn, span);
    }
    painter->restore();
}
