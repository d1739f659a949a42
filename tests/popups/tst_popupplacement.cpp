#include "PopupPlacement.h"

#include <TestCase.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Arrows{Qt::UpArrow, Qt::DownArrow, Qt::LeftArrow, Qt::RightArrow};

const char *arrowName(Qt::ArrowType arrow)
{
    constexpr std::array names{"none", "up", "down", "left", "right"};
    return names.at(size_t(arrow));
}

// Turns what is written for an arrow that points up into the same scene for another arrow. What was to the right of
// the popup comes to its right or below it, what was below it goes to the side that the arrow points away from.
QRectF turned(const QRectF &rect, Qt::ArrowType arrow)
{
    switch (arrow) {
    case Qt::DownArrow:
        return {rect.x(), -rect.bottom(), rect.width(), rect.height()};
    case Qt::LeftArrow:
        return {rect.y(), rect.x(), rect.height(), rect.width()};
    case Qt::RightArrow:
        return {-rect.bottom(), rect.x(), rect.height(), rect.width()};
    default:
        return rect;
    }
}

const QRectF Main(0, 0, 1920, 1040);
const QRectF Negative(-1920, -200, 1280, 1024);
const QRectF Right(1920, 100, 1366, 768);
const QRectF Tiny(50, 60, 100, 80);

} // namespace

class tst_PopupPlacement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void positionBeside_data();
    void positionBeside();
    void touchesAndCentres_data();
    void touchesAndCentres();
    void shouldFlip_data();
    void shouldFlip();
    void arrowSlide_data();
    void arrowSlide();
    void noArrow_data();
    void noArrow();
    void everyEdgeAndCorner_data();
    void everyEdgeAndCorner();
    void opposite_data();
    void opposite();
    void positionUnder_data();
    void positionUnder();
    void underStaysLeftOfTheRightEdge_data();
    void underStaysLeftOfTheRightEdge();
};

void tst_PopupPlacement::positionBeside_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QSize>("popup");
    QTest::addColumn<QPointF>("expected");

    const QRectF button(100, 100, 50, 20);
    QTest::newRow("up") << button << Qt::UpArrow << QSize(300, 200) << QPointF(-25, 120);
    QTest::newRow("down") << button << Qt::DownArrow << QSize(300, 200) << QPointF(-25, -100);
    QTest::newRow("left") << button << Qt::LeftArrow << QSize(300, 200) << QPointF(150, 10);
    QTest::newRow("right") << button << Qt::RightArrow << QSize(300, 200) << QPointF(-200, 10);
    QTest::newRow("none") << button << Qt::NoArrow << QSize(300, 200) << QPointF(125, 110);
    QTest::newRow("unknown") << button << Qt::ArrowType(7) << QSize(300, 200) << QPointF(125, 110);

    // 301 / 2 is 150, 201 / 2 is 100
    QTest::newRow("up, odd size") << button << Qt::UpArrow << QSize(301, 201) << QPointF(-25, 120);
    QTest::newRow("down, odd size") << button << Qt::DownArrow << QSize(301, 201) << QPointF(-25, -101);
    QTest::newRow("left, odd size") << button << Qt::LeftArrow << QSize(301, 201) << QPointF(150, 10);
    QTest::newRow("right, odd size") << button << Qt::RightArrow << QSize(301, 201) << QPointF(-201, 10);
    QTest::newRow("up, one pixel") << button << Qt::UpArrow << QSize(1, 1) << QPointF(125, 120);
    QTest::newRow("right, one pixel") << button << Qt::RightArrow << QSize(1, 1) << QPointF(99, 110);
    QTest::newRow("down, no size") << button << Qt::DownArrow << QSize(0, 0) << QPointF(125, 100);

    const QRectF fractions(10.25, 20.5, 5.25, 3.5);
    QTest::newRow("up, fractions") << fractions << Qt::UpArrow << QSize(7, 9) << QPointF(9.875, 24);
    QTest::newRow("down, fractions") << fractions << Qt::DownArrow << QSize(7, 9) << QPointF(9.875, 11.5);
    QTest::newRow("left, fractions") << fractions << Qt::LeftArrow << QSize(7, 9) << QPointF(15.5, 18.25);
    QTest::newRow("right, fractions") << fractions << Qt::RightArrow << QSize(7, 9) << QPointF(3.25, 18.25);
    QTest::newRow("none, fractions") << fractions << Qt::NoArrow << QSize(7, 9) << QPointF(12.875, 22.25);

    const QRectF leftScreen(-1900, -150, 31, 21);
    QTest::newRow("up, negative") << leftScreen << Qt::UpArrow << QSize(100, 40) << QPointF(-1934.5, -129);
    QTest::newRow("down, negative") << leftScreen << Qt::DownArrow << QSize(100, 40) << QPointF(-1934.5, -190);
    QTest::newRow("left, negative") << leftScreen << Qt::LeftArrow << QSize(100, 40) << QPointF(-1869, -159.5);
    QTest::newRow("right, negative") << leftScreen << Qt::RightArrow << QSize(100, 40) << QPointF(-2000, -159.5);

    QTest::newRow("up, no rectangle") << QRectF() << Qt::UpArrow << QSize(100, 40) << QPointF(-50, 0);
    QTest::newRow("down, no rectangle") << QRectF() << Qt::DownArrow << QSize(100, 40) << QPointF(-50, -40);
    QTest::newRow("left, no rectangle") << QRectF() << Qt::LeftArrow << QSize(100, 40) << QPointF(0, -20);
    QTest::newRow("right, no rectangle") << QRectF() << Qt::RightArrow << QSize(100, 40) << QPointF(-100, -20);
}

void tst_PopupPlacement::positionBeside()
{
    QFETCH(const QRectF, rect);
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QSize, popup);
    QFETCH(const QPointF, expected);
    QCOMPARE(PopupPlacement::positionBeside(rect, arrow, popup), expected);
}

void tst_PopupPlacement::touchesAndCentres_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    for (const Qt::ArrowType arrow : Arrows)
        QTest::newRow(arrowName(arrow)) << arrow;
}

// The popup's edge with the arrow lies on the rectangle's edge; an odd popup is half a pixel right of or below the
// centre. All numbers have few binary digits, so that nothing is rounded.
void tst_PopupPlacement::touchesAndCentres()
{
    QFETCH(const Qt::ArrowType, arrow);
    int count = 0;
    for (const double x : {-3000.0, -17.25, 0.0, 0.5, 333.75, 4000.0}) {
        for (const double y : {-2000.0, -0.25, 0.0, 19.5, 1000.0}) {
            for (const QSizeF &size : {QSizeF(0, 0), QSizeF(1, 1), QSizeF(24.5, 13.25), QSizeF(5000, 3000)}) {
                for (const QSize &popup : {QSize(1, 1), QSize(2, 3), QSize(301, 200), QSize(2500, 2001)}) {
                    const QRectF rect(QPointF(x, y), size);
                    const QRectF placed(PopupPlacement::positionBeside(rect, arrow, popup), QSizeF(popup));
                    const QPointF gap = placed.center() - rect.center();
                    switch (arrow) {
                    case Qt::UpArrow:
                        QVERIFY(placed.top() == rect.bottom());
                        break;
                    case Qt::DownArrow:
                        QVERIFY(placed.bottom() == rect.top());
                        break;
                    case Qt::LeftArrow:
                        QVERIFY(placed.left() == rect.right());
                        break;
                    default:
                        QVERIFY(placed.right() == rect.left());
                        break;
                    }
                    if (arrow == Qt::UpArrow || arrow == Qt::DownArrow)
                        QVERIFY(gap.x() == (popup.width() % 2 ? 0.5 : 0.0));
                    else
                        QVERIFY(gap.y() == (popup.height() % 2 ? 0.5 : 0.0));
                    ++count;
                }
            }
        }
    }
    QCOMPARE(count, 6 * 5 * 4 * 4);
}

void tst_PopupPlacement::shouldFlip_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QRectF>("screen");
    QTest::addColumn<QRectF>("popup");
    QTest::addColumn<bool>("expected");

    const auto add = [](const char *what, const QRectF &screen, const QRectF &popup, bool expected) {
        for (const Qt::ArrowType arrow : Arrows)
            QTest::addRow("%s: %s", arrowName(arrow), what)
                << arrow << turned(screen, arrow) << turned(popup, arrow) << expected;
    };
    // Written for an arrow that points up.
    add("inside", Main, {500, 500, 300, 200}, false);
    add("at the far edge", Main, {500, 840, 300, 200}, false);
    add("a pixel beyond the far edge", Main, {500, 841, 300, 200}, true);
    add("a fraction beyond the far edge", Main, {500, 840.25, 300, 200}, true);
    add("wholly beyond the far edge", Main, {500, 1100, 300, 200}, true);
    add("beyond the near edge", Main, {500, -100, 300, 200}, false);
    add("wholly beyond the near edge", Main, {500, -300, 300, 200}, false);
    add("beyond the first side", Main, {-100, 500, 300, 200}, false);
    add("beyond the second side", Main, {1800, 500, 300, 200}, false);
    add("beyond both sides", Main, {-10, 500, 2000, 200}, false);
    add("beyond the far edge and a side", Main, {1800, 900, 300, 200}, true);
    add("as long as the screen", Main, {500, 0, 300, 1040}, false);
    add("longer than the screen, at the near edge", Main, {500, 0, 300, 1041}, true);
    add("longer than the screen, at the far edge", Main, {500, -1, 300, 1041}, false);
    add("beyond near and far edge", Main, {500, -1, 300, 1042}, true);
    add("negative: inside", Negative, {-1500, 0, 300, 200}, false);
    add("negative: at the far edge", Negative, {-1500, 624, 300, 200}, false);
    add("negative: beyond the far edge", Negative, {-1500, 625, 300, 200}, true);
    add("negative: beyond the near edge", Negative, {-1500, -201, 300, 200}, false);
    add("offset: at the far edge", Right, {2000, 668, 300, 200}, false);
    add("offset: beyond the far edge", Right, {2000, 669, 300, 200}, true);
    add("tiny: larger on each side", Tiny, {0, 0, 300, 200}, true);
    add("no screen: below it", {}, {10, 10, 300, 200}, true);
    add("no screen: above it", {}, {-400, -400, 300, 200}, false);
    add("no popup", Main, {10, 10, 0, 0}, false);
}

void tst_PopupPlacement::shouldFlip()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QRectF, screen);
    QFETCH(const QRectF, popup);
    QFETCH(const bool, expected);
    QCOMPARE(PopupPlacement::shouldFlip(screen, popup, arrow), expected);
}

void tst_PopupPlacement::arrowSlide_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QRectF>("screen");
    QTest::addColumn<QRectF>("popup");
    QTest::addColumn<int>("expected");

    const auto add = [](const char *what, const QRectF &screen, const QRectF &popup, int expected) {
        for (const Qt::ArrowType arrow : Arrows)
            QTest::addRow("%s: %s", arrowName(arrow), what)
                << arrow << turned(screen, arrow) << turned(popup, arrow) << expected;
    };
    // Written for an arrow that points up. High is right or below, low is left or above.
    add("inside", Main, {500, 500, 300, 200}, 0);
    add("at the high edge", Main, {1620, 500, 300, 200}, 0);
    add("at the low edge", Main, {0, 500, 300, 200}, 0);
    add("a pixel beyond the high edge", Main, {1621, 500, 300, 200}, 1);
    add("a pixel beyond the low edge", Main, {-1, 500, 300, 200}, -1);
    add("30 beyond the high edge", Main, {1650, 500, 300, 200}, 30);
    add("30 beyond the low edge", Main, {-30, 500, 300, 200}, -30);
    add("30 beyond the high edge, some beyond the low", Main, {-70, 500, 2020, 200}, 30);
    add("more beyond the low edge than the high", Main, {-500, 500, 2421, 200}, 1);
    add("as wide as the screen", Main, {0, 500, 1920, 200}, 0);
    add("as wide as the screen, shifted low", Main, {-5, 500, 1920, 200}, -5);
    add("wholly beyond the high edge", Main, {3000, 500, 300, 200}, 1380);
    add("wholly beyond the low edge", Main, {-1000, 500, 300, 200}, -1000);
    add("under a pixel beyond the high edge", Main, {1620.75, 500, 300, 200}, 0);
    add("under a pixel beyond the low edge", Main, {-0.75, 500, 300, 200}, 0);
    add("pixels and a fraction beyond the high edge", Main, {1630.5, 500, 300, 200}, 10);
    add("pixels and a fraction beyond the low edge", Main, {-10.5, 500, 300, 200}, -10);
    add("a fraction beyond the high edge, pixels beyond the low", Main, {-20, 500, 1940.5, 200}, 0);
    add("beyond the far edge only", Main, {500, 1000, 300, 200}, 0);
    add("beyond the near edge only", Main, {500, -100, 300, 200}, 0);
    add("corner of far and high", Main, {1700, 1000, 300, 200}, 80);
    add("corner of far and low", Main, {-80, 1000, 300, 200}, -80);
    add("corner of near and high", Main, {1700, -100, 300, 200}, 80);
    add("corner of near and low", Main, {-80, -100, 300, 200}, -80);
    add("negative: inside", Negative, {-1500, 0, 300, 200}, 0);
    add("negative: beyond the high edge", Negative, {-900, 0, 300, 200}, 40);
    add("negative: beyond the low edge", Negative, {-2000, 0, 300, 200}, -80);
    add("offset: beyond the high edge", Right, {3000, 200, 300, 200}, 14);
    add("offset: beyond the low edge", Right, {1900, 200, 300, 200}, -20);
    add("tiny: larger on each side", Tiny, {0, 0, 300, 200}, 150);
    add("no screen: high", {}, {10, 10, 300, 200}, 310);
    add("no screen: low", {}, {-400, 10, 300, 200}, -400);
    add("no screen: around it", {}, {-100, 10, 300, 200}, 200);
}

void tst_PopupPlacement::arrowSlide()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QRectF, screen);
    QFETCH(const QRectF, popup);
    QFETCH(const int, expected);
    QCOMPARE(PopupPlacement::arrowSlide(screen, popup, arrow), expected);
}

void tst_PopupPlacement::noArrow_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::newRow("none") << Qt::NoArrow;
    QTest::newRow("unknown") << Qt::ArrowType(5);
    QTest::newRow("largest of the bits") << Qt::ArrowType(7);
}

void tst_PopupPlacement::noArrow()
{
    QFETCH(const Qt::ArrowType, arrow);
    for (const QRectF &popup : {QRectF(-10, -10, 5000, 5000), QRectF(-900, -900, 10, 10), QRectF(5000, 5000, 10, 10)}) {
        QCOMPARE(PopupPlacement::shouldFlip(Main, popup, arrow), false);
        QCOMPARE(PopupPlacement::arrowSlide(Main, popup, arrow), 0);
    }
}

void tst_PopupPlacement::everyEdgeAndCorner_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QRectF>("screen");
    for (const Qt::ArrowType arrow : Arrows) {
        QTest::addRow("%s: at the origin", arrowName(arrow)) << arrow << Main;
        QTest::addRow("%s: negative", arrowName(arrow)) << arrow << Negative;
        QTest::addRow("%s: offset", arrowName(arrow)) << arrow << Right;
        QTest::addRow("%s: tiny", arrowName(arrow)) << arrow << Tiny;
    }
}

// Moves a button over the screen, along its edges and past them, and counts the popup's pixels outside of the screen.
void tst_PopupPlacement::everyEdgeAndCorner()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QRectF, screen);
    const QRect pixels = screen.toRect();
    const bool upright = arrow == Qt::UpArrow || arrow == Qt::DownArrow;
    const QPoint away = arrow == Qt::UpArrow ? QPoint(0, 1)
        : arrow == Qt::DownArrow             ? QPoint(0, -1)
        : arrow == Qt::LeftArrow             ? QPoint(1, 0)
                                             : QPoint(-1, 0);
    int flips = 0;
    int slides = 0;
    for (const QSize &popup : {QSize(60, 40), QSize(61, 41), QSize(170, 130)}) {
        for (const int x :
             {pixels.left() - 30, pixels.left(), pixels.center().x(), pixels.right() - 9, pixels.right()}) {
            for (const int y :
                 {pixels.top() - 30, pixels.top(), pixels.center().y(), pixels.bottom() - 9, pixels.bottom()}) {
                const QRectF rect(x, y, 10, 10);
                const QRect placed(PopupPlacement::positionBeside(rect, arrow, popup).toPoint(), popup);

                int beyond = 0; // rows or columns of the popup past the edge that the arrow points away from
                int high = 0;
                int low = 0;
                for (int i = 0; i < (upright ? placed.height() : placed.width()); ++i) {
                    const QPoint point = placed.topLeft() + (upright ? QPoint(0, i) : QPoint(i, 0));
                    const QPoint edge = away.x() + away.y() > 0 ? pixels.bottomRight() : pixels.topLeft();
                    beyond += QPoint::dotProduct(point - edge, away) > 0;
                }
                for (int i = 0; i < (upright ? placed.width() : placed.height()); ++i) {
                    const int at = upright ? placed.x() + i : placed.y() + i;
                    high += at > (upright ? pixels.right() : pixels.bottom());
                    low += at < (upright ? pixels.left() : pixels.top());
                }
                // A popup wholly past an edge is a gap further than it has pixels.
                const int gapHigh = upright ? placed.x() - pixels.right() - 1 : placed.y() - pixels.bottom() - 1;
                const int gapLow = upright ? pixels.x() - placed.right() - 1 : pixels.y() - placed.bottom() - 1;
                const int expected =
                    high > 0 ? high + std::max(gapHigh, 0) : -(low + (low > 0 ? std::max(gapLow, 0) : 0));

                QCOMPARE(PopupPlacement::shouldFlip(screen, placed, arrow), beyond > 0);
                QCOMPARE(PopupPlacement::arrowSlide(screen, placed, arrow), expected);
                flips += beyond > 0;
                slides += expected != 0;
            }
        }
    }
    QVERIFY(flips > 0 && flips < 75);
    QVERIFY(slides > 0);
}

void tst_PopupPlacement::opposite_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<Qt::ArrowType>("expected");
    QTest::newRow("none") << Qt::NoArrow << Qt::NoArrow;
    QTest::newRow("up") << Qt::UpArrow << Qt::DownArrow;
    QTest::newRow("down") << Qt::DownArrow << Qt::UpArrow;
    QTest::newRow("left") << Qt::LeftArrow << Qt::RightArrow;
    QTest::newRow("right") << Qt::RightArrow << Qt::LeftArrow;
    QTest::newRow("unknown") << Qt::ArrowType(5) << Qt::NoArrow;
    QTest::newRow("largest of the bits") << Qt::ArrowType(7) << Qt::NoArrow;
}

void tst_PopupPlacement::opposite()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const Qt::ArrowType, expected);
    QCOMPARE(PopupPlacement::opposite(arrow), expected);
}

void tst_PopupPlacement::positionUnder_data()
{
    QTest::addColumn<QPoint>("centre");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("width");
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("expected");

    const QRect full(0, 0, 1920, 1080); // its right() is 1919
    QTest::newRow("inside") << QPoint(500, 300) << 30 << 200 << full << QPoint(400, 315);
    QTest::newRow("odd sizes") << QPoint(500, 300) << 31 << 201 << full << QPoint(400, 315);
    QTest::newRow("near the right edge") << QPoint(1900, 300) << 30 << 300 << full << QPoint(1619, 315);
    QTest::newRow("a pixel short of the right edge") << QPoint(1769, 300) << 30 << 300 << full << QPoint(1619, 315);
    QTest::newRow("at the right edge") << QPoint(1770, 300) << 30 << 300 << full << QPoint(1619, 315);
    QTest::newRow("near the left edge") << QPoint(20, 300) << 30 << 300 << full << QPoint(0, 315);
    QTest::newRow("at the left edge") << QPoint(150, 300) << 30 << 300 << full << QPoint(0, 315);
    QTest::newRow("as wide as the screen") << QPoint(960, 300) << 30 << 1920 << full << QPoint(0, 315);
    QTest::newRow("a pixel narrower than the screen") << QPoint(960, 300) << 30 << 1919 << full << QPoint(0, 315);
    QTest::newRow("wider than the screen") << QPoint(960, 300) << 30 << 3000 << full << QPoint(0, 315);
    QTest::newRow("last row of pixels") << QPoint(500, 1064) << 30 << 200 << full << QPoint(400, 1079);
    // A position below the screen counts as outside, so that it goes to the left edge too.
    QTest::newRow("below the screen") << QPoint(500, 1070) << 30 << 200 << full << QPoint(0, 1085);
    QTest::newRow("below the screen, near the right edge")
        << QPoint(1900, 1070) << 30 << 200 << full << QPoint(0, 1085);

    const QRect left(-1920, -200, 1280, 1024); // right() is -641
    QTest::newRow("negative: inside") << QPoint(-1500, -100) << 20 << 200 << left << QPoint(-1600, -90);
    QTest::newRow("negative: right edge") << QPoint(-650, 0) << 20 << 200 << left << QPoint(-841, 10);
    QTest::newRow("negative: left edge") << QPoint(-1910, 0) << 20 << 200 << left << QPoint(-1920, 10);
    QTest::newRow("negative: too wide") << QPoint(-1200, 0) << 20 << 1400 << left << QPoint(-1920, 10);
    QTest::newRow("negative: above the screen") << QPoint(-1500, -215) << 20 << 200 << left << QPoint(-1920, -205);

    const QRect offset(1920, 100, 1366, 768); // right() is 3285
    QTest::newRow("offset: right edge") << QPoint(3280, 500) << 20 << 200 << offset << QPoint(3085, 510);
    QTest::newRow("offset: left edge") << QPoint(1925, 500) << 20 << 200 << offset << QPoint(1920, 510);
}

void tst_PopupPlacement::positionUnder()
{
    QFETCH(const QPoint, centre);
    QFETCH(const int, height);
    QFETCH(const int, width);
    QFETCH(const QRect, screen);
    QFETCH(const QPoint, expected);
    QCOMPARE(PopupPlacement::positionUnder(centre, height, width, screen), expected);
}

void tst_PopupPlacement::underStaysLeftOfTheRightEdge_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::newRow("at the origin") << QRect(0, 0, 800, 600);
    QTest::newRow("negative") << QRect(-900, -700, 801, 601);
}

void tst_PopupPlacement::underStaysLeftOfTheRightEdge()
{
    QFETCH(const QRect, screen);
    int moved = 0;
    for (int width : {1, 2, 99, 100, 799}) {
        for (int x = screen.left(); x <= screen.right(); ++x) {
            const QPoint centre(x, screen.center().y());
            const QPoint position = PopupPlacement::positionUnder(centre, 20, width, screen);
            QVERIFY(position.x() >= screen.left());
            QVERIFY(position.x() + width <= screen.right());
            QCOMPARE(position.y(), centre.y() + 10);
            moved += position.x() != x - width / 2;
        }
    }
    QVERIFY(moved > 0);
}

LUMAKIT_TEST_MAIN(tst_PopupPlacement)
#include "tst_popupplacement.moc"
