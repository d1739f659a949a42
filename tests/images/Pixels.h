#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <algorithm>
#include <cstdlib>
#include <functional>

/// Pictures to compare with, painted with QPainter alone.
namespace Pixels {

using Shape = std::function<void(QPainter &)>;

/// Where a view box lands in a target rectangle: as large as fits, ratio kept, centred.
inline QTransform fit(const QRectF &viewBox, const QRectF &target)
{
    const double scale = std::min(target.width() / viewBox.width(), target.height() / viewBox.height());
    QTransform transform;
    transform.translate(target.center().x() - viewBox.width() * scale / 2,
                        target.center().y() - viewBox.height() * scale / 2);
    transform.scale(scale, scale);
    transform.translate(-viewBox.x(), -viewBox.y());
    return transform;
}

inline QImage blank(const QSize &size, double devicePixelRatio = 1.0, const QColor &background = Qt::transparent)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(background);
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

/// Paints the shape, in coordinates of the view box, into the target rectangle (logical pixels).
inline void paint(QImage &image, const QRectF &viewBox, const QRectF &target, const QBrush &brush, double opacity,
                  const Shape &shape)
{
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setTransform(fit(viewBox, target), true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.setOpacity(opacity);
    shape(painter);
}

/// Empty when no channel of any pixel differs by more than the tolerance, else a description of the worst pixel.
inline QString difference(const QImage &actual, const QImage &expected, int tolerance = 0)
{
    if (actual.size() != expected.size()) {
        return QStringLiteral("the size is %1 x %2, not %3 x %4")
            .arg(actual.width())
            .arg(actual.height())
            .arg(expected.width())
            .arg(expected.height());
    }
    if (!qFuzzyCompare(actual.devicePixelRatio(), expected.devicePixelRatio())) {
        return QStringLiteral("the device pixel ratio is %1, not %2")
            .arg(actual.devicePixelRatio())
            .arg(expected.devicePixelRatio());
    }
    const QImage a = actual.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = expected.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int worst = tolerance;
    int count = 0;
    QString text;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int delta =
                std::max({std::abs(qAlpha(p) - qAlpha(q)), std::abs(qRed(p) * qAlpha(p) - qRed(q) * qAlpha(q)) / 255,
                          std::abs(qGreen(p) * qAlpha(p) - qGreen(q) * qAlpha(q)) / 255,
                          std::abs(qBlue(p) * qAlpha(p) - qBlue(q) * qAlpha(q)) / 255});
            count += delta > tolerance;
            if (delta > worst) {
                worst = delta;
                text = QStringLiteral("pixel (%1, %2) is %3, not %4")
                           .arg(x)
                           .arg(y)
                           .arg(QColor::fromRgba(p).name(QColor::HexArgb), QColor::fromRgba(q).name(QColor::HexArgb));
            }
        }
    }
    return count == 0 ? QString() : text + QStringLiteral("; %1 pixels differ").arg(count);
}

/// Every pixel is transparent.
inline bool isBlank(const QImage &image)
{
    return difference(image, blank(image.size(), image.devicePixelRatio())).isEmpty();
}

} // namespace Pixels

/// Fails the test where the pictures differ.
#define COMPARE_IMAGES(...) QCOMPARE(Pixels::difference(__VA_ARGS__), QString())
