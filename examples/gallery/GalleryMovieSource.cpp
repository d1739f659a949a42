#include "GalleryMovieSource.h"

#include <WMovie.h>
#include <WThemeUtils.h>

#include <QImage>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr int Side = 192; // of a frame, pixels
constexpr int FrameCount = 24;
constexpr int FrameTime = 5; // hundredths of a second
constexpr int ColorCount = 128;
constexpr double FullTurn = 2.0 * std::numbers::pi;

using DrawFrame = void (*)(QPainter *painter, double phase);

// Dots on a circle, the smaller the farther they trail.
void drawOrbit(QPainter *painter, double phase)
{
    constexpr int Dots = 8;
    for (int dot = 0; dot < Dots; ++dot) {
        const double angle = FullTurn * (phase - double(dot) / Dots);
        const double radius = 14.0 - 1.5 * dot;
        painter->drawEllipse(QPointF(std::sin(angle), -std::cos(angle)) * 60.0, radius, radius);
    }
}

// Bars that rise and fall one after the other.
void drawWave(QPainter *painter, double phase)
{
    constexpr int Bars = 5;
    for (int bar = 0; bar < Bars; ++bar) {
        const double height = 64.0 + 48.0 * std::sin(FullTurn * (phase - double(bar) / Bars));
        painter->drawRoundedRect(QRectF(28.0 * (bar - Bars / 2) - 9.0, -height / 2, 18.0, height), 9.0, 9.0);
    }
}

// Rings that grow and fade at the edge.
void drawPulse(QPainter *painter, double phase)
{
    constexpr int Rings = 3;
    painter->setBrush(Qt::NoBrush);
    for (int ring = 0; ring < Rings; ++ring) {
        const double grown = std::fmod(phase + double(ring) / Rings, 1.0);
        painter->setOpacity(1.0 - grown);
        painter->setPen(QPen(Qt::white, 8.0));
        painter->drawEllipse(QPointF(), 80.0 * grown, 80.0 * grown);
    }
}

struct Drawing
{
    QLatin1StringView source;
    DrawFrame draw;
};
constexpr std::array Drawings{Drawing{"orbit"_L1, drawOrbit}, Drawing{"wave"_L1, drawWave},
                              Drawing{"pulse"_L1, drawPulse}};

DrawFrame drawingOf(const QString &source)
{
    const auto *found =
        std::ranges::find_if(Drawings, [&](const Drawing &drawing) { return drawing.source == source; });
    return found == Drawings.end() ? nullptr : found->draw;
}

/// Black is the background, white the foreground.
QImage frame(DrawFrame draw, double phase)
{
    QImage image(Side, Side, QImage::Format_Grayscale8);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.translate(Side / 2, Side / 2);
    draw(&painter, phase);
    return image;
}

void appendNumber(QByteArray &bytes, int number)
{
    bytes.append(char(number & 0xff)).append(char(number >> 8));
}

void appendColors(QByteArray &gif, const QColor &background, const QColor &foreground)
{
    const auto mixed = [](int from, int to, int step) { return char(from + (to - from) * step / (ColorCount - 1)); };
    for (int step = 0; step < ColorCount; ++step) {
        gif.append(mixed(background.red(), foreground.red(), step));
        gif.append(mixed(background.green(), foreground.green(), step));
        gif.append(mixed(background.blue(), foreground.blue(), step));
    }
}

// Not compressed: with 128 colours a code is one byte as long as the dictionary starts anew often enough, which it does
// at the beginning of each block.
void appendPixels(QByteArray &gif, const QImage &image)
{
    constexpr char CodeSize = 7;
    constexpr char Clear = char(ColorCount);
    constexpr char End = char(ColorCount + 1);
    constexpr int BlockLength = 96; // divides a line
    static_assert(Side % BlockLength == 0 && BlockLength < ColorCount - 2);
    gif.append(CodeSize);
    for (int y = 0; y < Side; ++y) {
        const uchar *line = image.constScanLine(y);
        for (int x = 0; x < Side; ++x) {
            if (x % BlockLength == 0)
                gif.append(char(BlockLength + 1)).append(Clear);
            gif.append(char(line[x] / 2));
        }
    }
    gif.append(char(1)).append(End).append('\0');
}

void appendFrame(QByteArray &gif, const QImage &image)
{
    gif.append("\x21\xf9\x04\x04", 4);
    appendNumber(gif, FrameTime);
    gif.append("\0\0\x2c\0\0\0\0", 7);
    appendNumber(gif, Side);
    appendNumber(gif, Side);
    gif.append('\0');
    appendPixels(gif, image);
}

/// A GIF that plays for ever.
QByteArray makeMovie(DrawFrame draw, int frameCount)
{
    QByteArray gif("GIF89a");
    appendNumber(gif, Side);
    appendNumber(gif, Side);
    gif.append("\xf6\0\0", 3); // a table of 128 colours follows
    appendColors(gif, WThemeUtils::getColorSet("panel-tertiary-background").normal,
                 WThemeUtils::getColorSet("hyperlink-accent-text").normal);
    gif.append("\x21\xff\x0bNETSCAPE2.0\x03\x01\0\0\0", 19);
    for (int number = 0; number < frameCount; ++number)
        appendFrame(gif, frame(draw, double(number) / FrameCount));
    return gif.append('\x3b');
}

} // namespace

GalleryMovieSource::GalleryMovieSource(std::chrono::milliseconds delay, bool animated, QObject *parent)
    : IWMovieProviderSource(parent)
    , m_delay(delay)
    , m_animated(animated)
{
}

void GalleryMovieSource::fetch(const QString &source)
{
    if (m_delay.count() > 0)
        QTimer::singleShot(m_delay, this, [this, source] { answer(source); });
    else
        answer(source);
}

void GalleryMovieSource::answer(const QString &source)
{
    const DrawFrame draw = drawingOf(source);
    if (!draw) {
        Q_EMIT movieFetchFailed(u"image://svg/%1/image"_s, source);
        return;
    }
    const QByteArray gif = makeMovie(draw, m_animated ? FrameCount : 1);
    auto *movie = new WMovie(this, gif.constData(), int(gif.size()), true);
    Q_EMIT movieFetched(movie, source);
    if (movie->parent() == this)
        delete movie; // nobody waits for it any more
}
