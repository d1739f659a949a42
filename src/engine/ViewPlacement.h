#pragma once

#include <QPoint>
#include <QRect>

#include <algorithm>

/// Where a view goes on a screen; rectangles in, points out.
namespace ViewPlacement {

/// The position of a rectangle that is to be shown at its top-left corner on a screen with that available area. A
/// rectangle that sticks out moves left and up by what is cut off, whichever edge it crosses, and what is then still
/// outside is clipped; one that lies wholly inside or wholly outside stays.
inline QPoint positionOnScreen(const QRect &rect, const QRect &available)
{
    const QRect visible = rect.intersected(available);
    if (visible.isEmpty() || visible == rect)
        return rect.topLeft();
    const QRect shifted = rect.translated(visible.width() - rect.width(), visible.height() - rect.height());
    const QRect clipped = shifted.intersected(available);
    if (!clipped.isEmpty())
        return clipped.topLeft();
    // The shift can leave the screen altogether: the nearest corner inside it.
    return {
        std::clamp(shifted.x(), available.left(), std::max(available.left(), available.right() - rect.width() + 1)),
        std::clamp(shifted.y(), available.top(), std::max(available.top(), available.bottom() - rect.height() + 1))};
}

} // namespace ViewPlacement
