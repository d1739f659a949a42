#pragma once

#include <QQuickItem>
#include <QQuickWindow>

#include <cmath>

/// Places on whole pixels of the device where its ratio is fractional. A whole ratio leaves every place as it is.
namespace DevicePixels {

inline double ratioOf(const QQuickItem *item)
{
    return item->window() ? item->window()->effectiveDevicePixelRatio() : 1;
}

inline bool isWhole(double ratio)
{
    return ratio == std::floor(ratio);
}

/// The nearest; from the middle between two the one to the right, whatever the error of the calculation before.
inline double rounded(double place, double ratio)
{
    constexpr double Error = 1.0 / 256;
    return isWhole(ratio) ? place : std::floor(place * ratio + 0.5 + Error) / ratio;
}

/// Each edge by itself: what met before meets again.
inline QRectF rounded(const QRectF &rect, double ratio)
{
    if (isWhole(ratio))
        return rect;
    return {QPointF(rounded(rect.left(), ratio), rounded(rect.top(), ratio)),
            QPointF(rounded(rect.right(), ratio), rounded(rect.bottom(), ratio))};
}

} // namespace DevicePixels
