#include <TestCase.h>
#include <WindowFrame.h>

#include <QPoint>
#include <QRect>

#include <array>

using WindowFrame::Rect;

namespace {

constexpr int Border = 4;
constexpr int Far = 1000; // well above and below every rectangle of these tests

// The same border, painted: bands first, corners over them, the most important last. The last one that a point lies
// in is its code. The vertical bands have no end.
int paintedCode(const Rect &rect, const QPoint &point)
{
    const QRect left(rect.left, rect.top - Far, Border, rect.bottom - rect.top + 2 * Far);
    const QRect right(rect.right - Border, rect.top - Far, Border, rect.bottom - rect.top + 2 * Far);
    const int tooWide = rect.left - Far;
    const QRect top(tooWide, rect.top, rect.right - rect.left + 2 * Far, Border);
    const QRect bottom(tooWide, rect.bottom - Border, rect.right - rect.left + 2 * Far, Border);

    const std::array<std::pair<QRect, int>, 8> layers{{{bottom, 15},
                                                       {top, 12},
                                                       {right, 11},
                                                       {left, 10},
                                                       {right & bottom, 17},
                                                       {left & bottom, 16},
                                                       {right & top, 14},
                                                       {left & top, 13}}};
    int code = 0;
    for (const auto &[area, areaCode] : layers) {
        if (area.contains(point))
            code = areaCode;
    }
    return code;
}

} // namespace

Q_DECLARE_METATYPE(WindowFrame::Rect)

class tst_WindowFrame : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void points_data();
    void points();
    void everyPixel_data();
    void everyPixel();
    void borderWidths_data();
    void borderWidths();
    void isConstant();
};

void tst_WindowFrame::points_data()
{
    QTest::addColumn<Rect>("rect");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("code");

    const Rect window{100, 50, 900, 650};
    QTest::newRow("2 pixels inside the top-left corner") << window << 102 << 52 << 13;
    QTest::newRow("top-left corner") << window << 100 << 50 << 13;
    QTest::newRow("last pixel of the top-left corner") << window << 103 << 53 << 13;
    QTest::newRow("right of the top-left corner") << window << 104 << 53 << 12;
    QTest::newRow("below the top-left corner") << window << 103 << 54 << 10;
    QTest::newRow("inside of the top-left corner") << window << 104 << 54 << 0;
    QTest::newRow("outside of the top-left corner") << window << 99 << 49 << 0;

    QTest::newRow("top-right corner") << window << 899 << 50 << 14;
    QTest::newRow("first pixel of the top-right corner") << window << 896 << 53 << 14;
    QTest::newRow("left of the top-right corner") << window << 895 << 53 << 12;
    QTest::newRow("below the top-right corner") << window << 896 << 54 << 11;
    QTest::newRow("right edge lies outside") << window << 900 << 300 << 0;

    QTest::newRow("bottom-left corner") << window << 100 << 649 << 16;
    QTest::newRow("first pixel of the bottom-left corner") << window << 103 << 646 << 16;
    QTest::newRow("above the bottom-left corner") << window << 103 << 645 << 10;
    QTest::newRow("right of the bottom-left corner") << window << 104 << 646 << 15;
    QTest::newRow("bottom edge lies outside") << window << 500 << 650 << 0;

    QTest::newRow("bottom-right corner") << window << 899 << 649 << 17;
    QTest::newRow("first pixel of the bottom-right corner") << window << 896 << 646 << 17;
    QTest::newRow("above the bottom-right corner") << window << 896 << 645 << 11;
    QTest::newRow("left of the bottom-right corner") << window << 895 << 646 << 15;

    QTest::newRow("2 pixels inside the left edge") << window << 102 << 350 << 10;
    QTest::newRow("left edge") << window << 100 << 350 << 10;
    QTest::newRow("last pixel of the left edge") << window << 103 << 350 << 10;
    QTest::newRow("beside the left edge") << window << 104 << 350 << 0;
    QTest::newRow("outside of the left edge") << window << 99 << 350 << 0;
    QTest::newRow("right border") << window << 899 << 350 << 11;
    QTest::newRow("first pixel of the right border") << window << 896 << 350 << 11;
    QTest::newRow("beside the right border") << window << 895 << 350 << 0;
    QTest::newRow("top edge") << window << 500 << 50 << 12;
    QTest::newRow("last pixel of the top edge") << window << 500 << 53 << 12;
    QTest::newRow("below the top edge") << window << 500 << 54 << 0;
    QTest::newRow("outside of the top edge") << window << 500 << 49 << 0;
    QTest::newRow("bottom border") << window << 500 << 649 << 15;
    QTest::newRow("first pixel of the bottom border") << window << 500 << 646 << 15;
    QTest::newRow("above the bottom border") << window << 500 << 645 << 0;
    QTest::newRow("centre") << window << 500 << 350 << 0;

    // The vertical borders do not look at y.
    QTest::newRow("above the left border") << window << 102 << 10 << 10;
    QTest::newRow("below the left border") << window << 102 << 800 << 10;
    QTest::newRow("above the right border") << window << 898 << 10 << 11;
    QTest::newRow("below the right border") << window << 898 << 800 << 11;
    // The horizontal ones do not look at x.
    QTest::newRow("left of the top border") << window << 10 << 51 << 12;
    QTest::newRow("right of the bottom border") << window << 2000 << 648 << 15;

    const Rect second{-1920, -200, -10, -5};
    QTest::newRow("negative: top-left corner") << second << -1920 << -200 << 13;
    QTest::newRow("negative: top-right corner") << second << -11 << -197 << 14;
    QTest::newRow("negative: bottom-left corner") << second << -1917 << -6 << 16;
    QTest::newRow("negative: bottom-right corner") << second << -14 << -9 << 17;
    QTest::newRow("negative: left") << second << -1918 << -100 << 10;
    QTest::newRow("negative: right") << second << -12 << -100 << 11;
    QTest::newRow("negative: top") << second << -500 << -198 << 12;
    QTest::newRow("negative: bottom") << second << -500 << -7 << 15;
    QTest::newRow("negative: centre") << second << -900 << -100 << 0;
    QTest::newRow("negative: right edge lies outside") << second << -10 << -100 << 0;

    const Rect tiny{0, 0, 3, 3};
    QTest::newRow("3 x 3: everything is the top-left corner") << tiny << 2 << 2 << 13;
    QTest::newRow("3 x 3: the right border reaches out to the left") << tiny << -1 << 1 << 14;
    QTest::newRow("3 x 3: the bottom border reaches out above") << tiny << 1 << -1 << 16;
    QTest::newRow("3 x 3: both reach out") << tiny << -1 << -1 << 17;
    QTest::newRow("6 x 6: left wins over right") << Rect{0, 0, 6, 6} << 3 << 5 << 16;
    QTest::newRow("6 x 6: top wins over bottom") << Rect{0, 0, 6, 6} << 5 << 3 << 14;
    QTest::newRow("empty: the left border still has its width") << Rect{0, 0, 0, 0} << 3 << 3 << 13;
    QTest::newRow("empty: beyond the border") << Rect{0, 0, 0, 0} << 4 << 4 << 0;
}

void tst_WindowFrame::points()
{
    QFETCH(const Rect, rect);
    QFETCH(const int, x);
    QFETCH(const int, y);
    QTEST(WindowFrame::borderHitCode(rect, x, y, Border), "code");
}

void tst_WindowFrame::everyPixel_data()
{
    QTest::addColumn<Rect>("rect");
    QTest::newRow("40 x 30") << Rect{0, 0, 40, 30};
    QTest::newRow("around the origin") << Rect{-20, -15, 20, 15};
    QTest::newRow("negative") << Rect{-1920, -1080, -1890, -1050};
    QTest::newRow("far right") << Rect{3840, 2160, 3880, 2190};
    QTest::newRow("9 x 9: one pixel inside") << Rect{5, 7, 14, 16};
    QTest::newRow("8 x 8: borders touch") << Rect{5, 7, 13, 15};
    QTest::newRow("7 x 7: borders overlap") << Rect{-3, -3, 4, 4};
    QTest::newRow("4 x 4") << Rect{0, 0, 4, 4};
    QTest::newRow("1 x 1") << Rect{10, 10, 11, 11};
    QTest::newRow("wide and flat") << Rect{0, 0, 60, 2};
    QTest::newRow("narrow and tall") << Rect{0, 0, 2, 60};
}

void tst_WindowFrame::everyPixel()
{
    QFETCH(const Rect, rect);
    for (int y = rect.top - 8; y < rect.bottom + 8; ++y) {
        for (int x = rect.left - 8; x < rect.right + 8; ++x) {
            const int code = WindowFrame::borderHitCode(rect, x, y, Border);
            const int expected = paintedCode(rect, {x, y});
            if (code != expected)
                QFAIL(qPrintable(QStringLiteral("(%1, %2): %3 instead of %4").arg(x).arg(y).arg(code).arg(expected)));
        }
    }
}

void tst_WindowFrame::borderWidths_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("code");
    QTest::newRow("no border") << 0 << 0 << 0;
    QTest::newRow("1: on it") << 1 << 0 << 10;
    QTest::newRow("1: beside it") << 1 << 1 << 0;
    QTest::newRow("8: on it") << 8 << 7 << 10;
    QTest::newRow("8: beside it") << 8 << 8 << 0;
}

void tst_WindowFrame::borderWidths()
{
    QFETCH(const int, width);
    QFETCH(const int, depth);
    QTEST(WindowFrame::borderHitCode({-50, -50, 50, 50}, -50 + depth, 0, width), "code");
}

// Usable where the compiler has to know the answer.
void tst_WindowFrame::isConstant()
{
    constexpr int code = WindowFrame::borderHitCode({0, 0, 10, 10}, 9, 9, Border);
    QCOMPARE(code, 17);
}

LUMAKIT_TEST_MAIN(tst_WindowFrame)
#include "tst_windowframe.moc"
