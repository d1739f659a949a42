#include <TestCase.h>
#include <ViewPlacement.h>

#include <algorithm>

namespace {

// One axis of a rectangle and of the available area.
struct Axis
{
    int start;
    int length;
    int areaStart;
    int areaLength;

    int visible() const
    {
        return std::max(0, std::min(start + length, areaStart + areaLength) - std::max(start, areaStart));
    }
    int shifted() const { return start - (length - visible()); }
    bool staysVisible() const { return shifted() < areaStart + areaLength && shifted() + length > areaStart; }
    int clipped() const { return std::max(shifted(), areaStart); }
    int nearestInside() const { return std::max(areaStart, std::min(shifted(), areaStart + areaLength - length)); }
};

// The rule once more, axis by axis and without rectangles.
QPoint positionByAxes(const QRect &rect, const QRect &area)
{
    const Axis x{rect.x(), rect.width(), area.x(), area.width()};
    const Axis y{rect.y(), rect.height(), area.y(), area.height()};
    const bool outside = x.visible() == 0 || y.visible() == 0;
    const bool inside = x.visible() == x.length && y.visible() == y.length;
    if (outside || inside)
        return {x.start, y.start};
    if (x.staysVisible() && y.staysVisible())
        return {x.clipped(), y.clipped()};
    return {x.nearestInside(), y.nearestInside()};
}

} // namespace

class tst_ViewPlacement : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void position_data();
    void position();
    void everyPosition_data();
    void everyPosition();
};

void tst_ViewPlacement::position_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QPoint>("position");

    const QRect screen(0, 0, 1000, 800);
    QTest::newRow("inside") << QRect(300, 200, 400, 300) << screen << QPoint(300, 200);
    QTest::newRow("touching the top-left corner") << QRect(0, 0, 400, 300) << screen << QPoint(0, 0);
    QTest::newRow("touching the bottom-right corner") << QRect(600, 500, 400, 300) << screen << QPoint(600, 500);
    QTest::newRow("the whole area") << QRect(0, 0, 1000, 800) << screen << QPoint(0, 0);

    QTest::newRow("off the right edge") << QRect(900, 100, 150, 100) << screen << QPoint(850, 100);
    QTest::newRow("off the right edge by one pixel") << QRect(851, 100, 150, 100) << screen << QPoint(850, 100);
    QTest::newRow("off the bottom edge") << QRect(100, 750, 150, 100) << screen << QPoint(100, 700);
    QTest::newRow("off the bottom edge by one pixel") << QRect(100, 701, 150, 100) << screen << QPoint(100, 700);
    QTest::newRow("off the bottom-right corner") << QRect(900, 750, 150, 100) << screen << QPoint(850, 700);
    QTest::newRow("one pixel inside the bottom-right corner")
        << QRect(999, 799, 150, 100) << screen << QPoint(850, 700);

    // Shifted further out, then clipped to the area.
    QTest::newRow("off the left edge") << QRect(-30, 100, 100, 100) << screen << QPoint(0, 100);
    QTest::newRow("off the top edge") << QRect(100, -30, 100, 100) << screen << QPoint(100, 0);
    QTest::newRow("off the top-left corner") << QRect(-30, -20, 100, 100) << screen << QPoint(0, 0);
    QTest::newRow("off the bottom-left corner") << QRect(-30, 750, 100, 100) << screen << QPoint(0, 700);
    QTest::newRow("off the top-right corner") << QRect(950, -20, 100, 100) << screen << QPoint(900, 0);

    // Shifted out of the area altogether.
    QTest::newRow("off the left edge by a half") << QRect(-50, 100, 100, 100) << screen << QPoint(0, 100);
    QTest::newRow("off the left edge by most") << QRect(-99, 100, 100, 100) << screen << QPoint(0, 100);
    QTest::newRow("off the top edge by most") << QRect(100, -99, 100, 100) << screen << QPoint(100, 0);
    QTest::newRow("off the top-left corner by most") << QRect(-99, -99, 100, 100) << screen << QPoint(0, 0);
    QTest::newRow("off the left edge by most, the bottom edge by some")
        << QRect(-80, 750, 100, 100) << screen << QPoint(0, 700);
    QTest::newRow("off the top edge by most, the right edge by some")
        << QRect(950, -80, 100, 100) << screen << QPoint(900, 0);

    QTest::newRow("wholly left of it") << QRect(-400, 100, 100, 100) << screen << QPoint(-400, 100);
    QTest::newRow("just left of it") << QRect(-100, 100, 100, 100) << screen << QPoint(-100, 100);
    QTest::newRow("just right of it") << QRect(1000, 100, 100, 100) << screen << QPoint(1000, 100);
    QTest::newRow("just above it") << QRect(100, -100, 100, 100) << screen << QPoint(100, -100);
    QTest::newRow("just below it") << QRect(100, 800, 100, 100) << screen << QPoint(100, 800);
    QTest::newRow("beyond the bottom-right corner") << QRect(5000, 5000, 10, 10) << screen << QPoint(5000, 5000);
    QTest::newRow("right column, wholly below") << QRect(950, 900, 100, 100) << screen << QPoint(950, 900);

    QTest::newRow("wider than the area") << QRect(100, 100, 1500, 100) << screen << QPoint(0, 100);
    QTest::newRow("taller than the area") << QRect(100, 100, 100, 1500) << screen << QPoint(100, 0);
    QTest::newRow("larger than the area, from its corner") << QRect(0, 0, 2000, 1600) << screen << QPoint(0, 0);
    QTest::newRow("larger than the area, around it") << QRect(-500, -400, 2000, 1600) << screen << QPoint(0, 0);
    QTest::newRow("larger than the area, far to the left") << QRect(-1900, 0, 2000, 100) << screen << QPoint(0, 0);
    QTest::newRow("larger than the area, far to the top") << QRect(0, -1500, 100, 1600) << screen << QPoint(0, 0);

    const QRect leftScreen(-1920, -200, 1920, 1080);
    QTest::newRow("left screen: inside") << QRect(-1000, -100, 300, 200) << leftScreen << QPoint(-1000, -100);
    QTest::newRow("left screen: its corner") << QRect(-1920, -200, 300, 200) << leftScreen << QPoint(-1920, -200);
    QTest::newRow("left screen: off the right edge") << QRect(-100, 0, 300, 200) << leftScreen << QPoint(-300, 0);
    QTest::newRow("left screen: off the bottom edge") << QRect(-900, 800, 300, 200) << leftScreen << QPoint(-900, 680);
    QTest::newRow("left screen: off the left edge") << QRect(-1950, 0, 300, 200) << leftScreen << QPoint(-1920, 0);
    QTest::newRow("left screen: off the top edge") << QRect(-900, -250, 300, 200) << leftScreen << QPoint(-900, -200);
    QTest::newRow("left screen: off the left edge by most")
        << QRect(-2200, 0, 300, 200) << leftScreen << QPoint(-1920, 0);
    QTest::newRow("left screen: on the main one") << QRect(100, 100, 300, 200) << leftScreen << QPoint(100, 100);
    QTest::newRow("left screen: larger") << QRect(-1900, -100, 4000, 3000) << leftScreen << QPoint(-1920, -200);

    const QRect rightScreen(1920, 40, 1280, 984); // below a task bar
    QTest::newRow("right screen: inside") << QRect(2000, 40, 300, 200) << rightScreen << QPoint(2000, 40);
    QTest::newRow("right screen: under the bar") << QRect(2000, 0, 300, 200) << rightScreen << QPoint(2000, 40);
    QTest::newRow("right screen: from the main one") << QRect(1900, 500, 300, 200) << rightScreen << QPoint(1920, 500);
    QTest::newRow("right screen: off the right edge") << QRect(3100, 500, 300, 200) << rightScreen << QPoint(2900, 500);
    QTest::newRow("right screen: off the bottom-right corner")
        << QRect(3100, 1000, 300, 200) << rightScreen << QPoint(2900, 824);
    QTest::newRow("right screen: wholly on the main one") << QRect(0, 0, 300, 200) << rightScreen << QPoint(0, 0);

    QTest::newRow("a view without a size") << QRect(100, 100, 0, 0) << screen << QPoint(100, 100);
    QTest::newRow("a view without a size, outside") << QRect(-10, -10, 0, 0) << screen << QPoint(-10, -10);
    QTest::newRow("no area") << QRect(100, 100, 50, 50) << QRect() << QPoint(100, 100);
}

void tst_ViewPlacement::position()
{
    QFETCH(const QRect, rect);
    QFETCH(const QRect, available);
    QTEST(ViewPlacement::positionOnScreen(rect, available), "position");
    QTEST(positionByAxes(rect, available), "position");
}

void tst_ViewPlacement::everyPosition_data()
{
    QTest::addColumn<QRect>("available");
    QTest::newRow("at the origin") << QRect(0, 0, 10, 8);
    QTest::newRow("negative") << QRect(-13, -11, 10, 8);
    QTest::newRow("across the origin") << QRect(-4, -3, 10, 8);
    QTest::newRow("far right") << QRect(100, 50, 10, 8);
    QTest::newRow("one pixel") << QRect(3, -3, 1, 1);
}

void tst_ViewPlacement::everyPosition()
{
    QFETCH(const QRect, available);
    for (const QSize &size : {QSize(0, 0), QSize(1, 1), QSize(3, 2), QSize(7, 6), QSize(10, 8), QSize(11, 9),
                              QSize(25, 3), QSize(3, 21), QSize(30, 30)}) {
        for (int y = available.top() - size.height() - 2; y <= available.bottom() + 2; ++y) {
            for (int x = available.left() - size.width() - 2; x <= available.right() + 2; ++x) {
                const QRect rect(QPoint(x, y), size);
                const QPoint position = ViewPlacement::positionOnScreen(rect, available);
                if (position != positionByAxes(rect, available)) {
                    qInfo() << "of" << rect << "on" << available;
                    QCOMPARE(position, positionByAxes(rect, available));
                }
            }
        }
    }
}

LUMAKIT_TEST_MAIN(tst_ViewPlacement)
#include "tst_viewplacement.moc"
