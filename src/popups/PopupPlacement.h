#pragma once

#include <QPoint>
#include <QRect>

#include <utility>

/// Where a popup stands beside what opened it, and what its arrow does at the screen's edges. Arithmetic only.
///
/// An arrow's type is the direction it points in: with Qt::UpArrow the popup stands below its activation rectangle.
namespace PopupPlacement {

/// The popup's top-left corner: centred on the rectangle across the arrow's axis, touching its edge along it. Halves of
/// the size are truncated. Without an arrow it is the rectangle's centre.
inline QPointF positionBeside(const QRectF &rect, Qt::ArrowType arrow, const QSize &popup)
{
    const QPointF centre = rect.center();
    const int halfWidth = popup.width() / 2;
    const int halfHeight = popup.height() / 2;
    switch (arrow) {
    case Qt::UpArrow:
        return {centre.x() - halfWidth, rect.bottom()};
    case Qt::DownArrow:
        return {centre.x() - halfWidth, rect.top() - popup.height()};
    case Qt::LeftArrow:
        return {rect.right(), centre.y() - halfHeight};
    case Qt::RightArrow:
        return {rect.left() - popup.width(), centre.y() - halfHeight};
    default:
        return centre;
    }
}

/// The popup leaves the screen on the side that its arrow points away from.
inline bool shouldFlip(const QRectF &screen, const QRectF &popup, Qt::ArrowType arrow)
{
    switch (arrow) {
    case Qt::UpArrow:
        return popup.bottom() > screen.bottom();
    case Qt::DownArrow:
        return screen.top() > popup.top();
    case Qt::LeftArrow:
        return popup.right() > screen.right();
    case Qt::RightArrow:
        return screen.left() > popup.left();
    default:
        return false;
    }
}

/// How far the arrow slides along its edge to stay on its target, pixels, truncated: what the popup sticks out of the
/// screen across the arrow's axis. Where both sides stick out the right or the bottom one counts.
inline int arrowSlide(const QRectF &screen, const QRectF &popup, Qt::ArrowType arrow)
{
    const auto excess = [](double screenLow, double screenHigh, double low, double high) {
        if (high > screenHigh)
            return int(high - screenHigh);
        return screenLow > low ? int(low - screenLow) : 0;
    };
    switch (arrow) {
    case Qt::UpArrow:
    case Qt::DownArrow:
        return excess(screen.left(), screen.right(), popup.left(), popup.right());
    case Qt::LeftArrow:
    case Qt::RightArrow:
        return excess(screen.top(), screen.bottom(), popup.top(), popup.bottom());
    default:
        return 0;
    }
}

/// The opposite direction; none for any other value.
inline Qt::ArrowType opposite(Qt::ArrowType arrow)
{
    switch (arrow) {
    case Qt::UpArrow:
        return Qt::DownArrow;
    case Qt::DownArrow:
        return Qt::UpArrow;
    case Qt::LeftArrow:
        return Qt::RightArrow;
    case Qt::RightArrow:
        return Qt::LeftArrow;
    default:
        return Qt::NoArrow;
    }
}

/// The position of a popup of that width under a widget, centred. `screen` is the whole screen, panels included. What
/// sticks out on the right moves left; a position that is then outside, above or below included, goes to the left edge.
inline QPoint positionUnder(const QPoint &widgetCentre, int widgetHeight, int popupWidth, const QRect &screen)
{
    QPoint position(widgetCentre.x() - popupWidth / 2, widgetCentre.y() + widgetHeight / 2);
    if (position.x() + popupWidth > screen.right())
        position.rx() -= position.x() + popupWidth - screen.right();
    if (!screen.contains(position))
        position.setX(screen.x());
    return position;
}

} // namespace PopupPlacement
