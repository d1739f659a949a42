#include "Script.h"

#include <Pixels.h>
#include <TestCase.h>

#include <QPainterPath>
#include <QQuickItem>
#include <QQuickWindow>

#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr double Pi = std::numbers::pi;

enum Corner : int { None = 0, TopLeft = 1, TopRight = 2, BottomLeft = 4, BottomRight = 8, All = 15 };

// Where a ring goes.
struct Ring
{
    double height = 0;
    double width = 0;
    double extraSpace = 0;
    double lineThickness = 0;
    double offset = 0;

    QString arguments() const
    {
        return u"%1, %2, %3, %4, %5"_s.arg(height).arg(width).arg(extraSpace).arg(lineThickness).arg(offset);
    }
    // The control and the gap around it.
    QRectF hole() const
    {
        const double inset = extraSpace - offset;
        return QRectF(0, 0, width, height).adjusted(inset, inset, -inset, -inset);
    }
};

QString call(const char *name, std::initializer_list<double> numbers = {})
{
    QString text = QString::fromLatin1(name);
    for (const double number : numbers)
        text += u' ' + QString::number(number, 'f', 3);
    return text;
}

// What any function does before and after its path.
QStringList stroked(const QString &color, const Ring &ring, const QStringList &path)
{
    return QStringList{u"beginPath"_s, u"strokeStyle "_s + color, call("lineWidth", {ring.lineThickness})} + path
        + QStringList(u"stroke"_s);
}

// A 2D context that writes down what is done with it.
const QString Recorder = uR"(((draw) => {
    const calls = []
    const write = (name, numbers) => calls.push([name].concat(numbers.map((x) => x.toFixed(3))).join(" "))
    draw({
        beginPath() { write("beginPath", []) },
        moveTo(x, y) { write("moveTo", [x, y]) },
        lineTo(x, y) { write("lineTo", [x, y]) },
        arc(x, y, radius, startAngle, endAngle, anticlockwise) {
            write(anticlockwise ? "arc anticlockwise" : "arc", [x, y, radius, startAngle, endAngle])
        },
        stroke() { write("stroke", []) },
        set strokeStyle(color) { calls.push("strokeStyle " + color) },
        set lineWidth(width) { write("lineWidth", [width]) }
    })
    return calls
})((ctx) => DrawUtils.%1))"_s;

// A rectangle whose corners have these radii: top left, top right, bottom right, bottom left.
QPainterPath rounded(const QRectF &rect, const std::array<double, 4> &radii)
{
    QPainterPath path;
    path.moveTo(rect.left() + radii[0], rect.top());
    path.lineTo(rect.right() - radii[1], rect.top());
    path.arcTo(rect.right() - 2 * radii[1], rect.top(), 2 * radii[1], 2 * radii[1], 90, -90);
    path.lineTo(rect.right(), rect.bottom() - radii[2]);
    path.arcTo(rect.right() - 2 * radii[2], rect.bottom() - 2 * radii[2], 2 * radii[2], 2 * radii[2], 0, -90);
    path.lineTo(rect.left() + radii[3], rect.bottom());
    path.arcTo(rect.left(), rect.bottom() - 2 * radii[3], 2 * radii[3], 2 * radii[3], 270, -90);
    path.lineTo(rect.left(), rect.top() + radii[0]);
    path.arcTo(rect.left(), rect.top(), 2 * radii[0], 2 * radii[0], 180, -90);
    return path;
}

// The ring as an area: what is between its outer and its inner edge. The radii are those of the centre line.
QPainterPath area(const Ring &ring, const std::array<double, 4> &radii)
{
    std::array<double, 4> outer{};
    std::array<double, 4> inner{};
    for (size_t i = 0; i < radii.size(); ++i) {
        outer[i] = radii[i] > 0 ? radii[i] + ring.lineThickness / 2 : 0;
        inner[i] = std::max(radii[i] - ring.lineThickness / 2, 0.0);
    }
    const double t = ring.lineThickness;
    QPainterPath path = rounded(ring.hole().adjusted(-t, -t, t, t), outer);
    path.addPath(rounded(ring.hole(), inner)); // leaves it out: what is covered twice is not filled
    return path;
}

} // namespace

class tst_DrawUtils_Script : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isLibrary() { QVERIFY(m_script.isLibrary(u"drawRoundedSidesOutline"_s)); }

    void roundedSides_data();
    void roundedSides();
    void roundedSidesOfATallCanvas();
    void roundedCorners_data();
    void roundedCorners();
    void negativeRadius();
    void squareCorners_data();
    void squareCorners();
    void flags();
    void swapped_data();
    void swapped();
    void pixels_data();
    void pixels();

private:
    QStringList record(const QString &call) { return m_script.evaluate(Recorder.arg(call)).toStringList(); }

    Script m_script{u"DrawUtils"_s};
};

void tst_DrawUtils_Script::roundedSides_data()
{
    QTest::addColumn<Ring>("ring");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("radius");
    QTest::newRow("wide") << Ring{40, 120, 6, 2, 1} << 4.0 << 36.0 << 16.0;
    QTest::newRow("as wide as tall") << Ring{40, 40, 6, 2, 1} << 4.0 << 36.0 << 16.0;
    QTest::newRow("no gap") << Ring{40, 120, 6, 2, 0} << 5.0 << 35.0 << 15.0;
    QTest::newRow("inside the control") << Ring{40, 120, 6, 2, -2} << 7.0 << 33.0 << 13.0;
    QTest::newRow("hairline") << Ring{41, 121.5, 3, 0.5, 0.25} << 2.5 << 38.5 << 18.0;
    QTest::newRow("no space") << Ring{32, 64, 0, 2, 0} << -1.0 << 33.0 << 17.0;
}

void tst_DrawUtils_Script::roundedSides()
{
    QFETCH(const Ring, ring);
    QFETCH(const double, top);
    QFETCH(const double, bottom);
    QFETCH(const double, radius);
    const double left = ring.height / 2;
    const double right = ring.width - ring.height / 2;
    const double middle = ring.height / 2;
    const QStringList path{call("moveTo", {left, top}), call("lineTo", {right, top}),
                           call("arc", {right, middle, radius, 1.5 * Pi, 0.5 * Pi}), call("lineTo", {left, bottom}),
                           call("arc", {left, middle, radius, 0.5 * Pi, 1.5 * Pi})};
    QCOMPARE(record(u"drawRoundedSidesOutline(ctx, %1, 'teal')"_s.arg(ring.arguments())),
             stroked(u"teal"_s, ring, path));
}

void tst_DrawUtils_Script::roundedSidesOfATallCanvas()
{
    const QString arguments = Ring{40.5, 40, 6, 2, 1}.arguments();
    const QStringList calls = record(u"drawRoundedSidesOutline(ctx, %1, 'teal')"_s.arg(arguments));
    QCOMPARE(calls, record(u"drawRoundedCornerRectangleOutline(ctx, %1, 'teal', 4)"_s.arg(arguments)));
    QVERIFY(calls.contains(call("arc", {32, 8, 4, 1.5 * Pi, 0})));
}

void tst_DrawUtils_Script::roundedCorners_data()
{
    QTest::addColumn<Ring>("ring");
    QTest::addColumn<double>("radius");
    QTest::addColumn<double>("inset"); // of the centre line
    QTest::newRow("wide") << Ring{40, 120, 6, 2, 1} << 8.0 << 4.0;
    QTest::newRow("tall") << Ring{120, 40, 6, 2, 1} << 8.0 << 4.0;
    QTest::newRow("thick, no gap") << Ring{60, 80, 7, 5, 0} << 10.0 << 4.5;
    QTest::newRow("inside the control") << Ring{60, 80, 6, 2, -4} << 3.5 << 9.0;
}

void tst_DrawUtils_Script::roundedCorners()
{
    QFETCH(const Ring, ring);
    QFETCH(const double, radius);
    QFETCH(const double, inset);
    const double right = ring.width - inset;
    const double bottom = ring.height - inset;
    const double nearX = inset + radius;
    const double nearY = inset + radius;
    const double farX = right - radius;
    const double farY = bottom - radius;
    const QStringList path{call("moveTo", {nearX, inset}),
                           call("lineTo", {farX, inset}),
                           call("arc", {farX, nearY, radius, 1.5 * Pi, 0}),
                           call("lineTo", {right, farY}),
                           call("arc", {farX, farY, radius, 0, 0.5 * Pi}),
                           call("lineTo", {nearX, bottom}),
                           call("arc", {nearX, farY, radius, 0.5 * Pi, Pi}),
                           call("lineTo", {inset, nearY}),
                           call("arc", {nearX, nearY, radius, Pi, 1.5 * Pi})};
    QCOMPARE(record(u"drawRoundedCornerRectangleOutline(ctx, %1, '#a1b2c3', %2)"_s.arg(ring.arguments()).arg(radius)),
             stroked(u"#a1b2c3"_s, ring, path));
}

void tst_DrawUtils_Script::negativeRadius()
{
    const QString arguments = Ring{40, 120, 6, 2, 1}.arguments();
    const QString call = u"drawRoundedCornerRectangleOutline(ctx, %1, 'teal', %2)"_s.arg(arguments);
    QCOMPARE(record(call.arg(-8)), record(call.arg(0)));
    QVERIFY(record(call.arg(-8)) != record(call.arg(8)));
}

void tst_DrawUtils_Script::squareCorners_data()
{
    QTest::addColumn<int>("corners");
    QTest::addColumn<double>("radius");
    for (int corners = None; corners <= All; ++corners) {
        QTest::addRow("corners %d", corners) << corners << 12.0;
        QTest::addRow("corners %d, radius too small", corners) << corners << 3.0;
    }
}

// An arc or a straight line to the corner's point, one after the other around the rectangle.
void tst_DrawUtils_Script::squareCorners()
{
    QFETCH(const int, corners);
    QFETCH(const double, radius);
    const Ring ring{40, 120, 6, 2, 1}; // its centre line is 4 from the canvas's edge
    const double r = radius > 4 ? radius - 4 : 0;
    const QStringList calls =
        record(u"drawRectangularAndRoundCornerOutline(ctx, %1, 'teal', %2, %3)"_s.arg(ring.arguments())
                   .arg(radius)
                   .arg(corners));

    const auto corner = [&](Corner flag, double x, double y, const QString &arc) {
        return corners & flag ? call("lineTo", {x, y}) : arc;
    };
    const QStringList path{call("moveTo", {4 + r, 4}),
                           call("lineTo", {116 - r, 4}),
                           corner(TopRight, 116, 4, call("arc", {116 - r, 4 + r, r, 1.5 * Pi, 0})),
                           call("lineTo", {116, 36 - r}),
                           corner(BottomRight, 116, 36, call("arc", {116 - r, 36 - r, r, 0, 0.5 * Pi})),
                           call("lineTo", {4 + r, 36}),
                           corner(BottomLeft, 4, 36, call("arc", {4 + r, 36 - r, r, 0.5 * Pi, Pi})),
                           call("lineTo", {4, 4 + r}),
                           corner(TopLeft, 4, 4, call("arc", {4 + r, 4 + r, r, Pi, 1.5 * Pi}))};
    // What follows the last corner closes it: seen in the pixels.
    const qsizetype count = stroked(u"teal"_s, ring, path).size() - 1;
    QCOMPARE(calls.first(count), stroked(u"teal"_s, ring, path).first(count));
    QCOMPARE(calls.last(), u"stroke"_s);
    QCOMPARE(calls.count(u"stroke"_s), 1);
}

void tst_DrawUtils_Script::flags()
{
    QCOMPARE(m_script.evaluate(u"JSON.stringify(DrawUtils.RectangularCorners)"_s),
             QVariant(uR"({"None":0,"TopLeft":1,"TopRight":2,"BottomLeft":4,"BottomRight":8})"_s));
}

void tst_DrawUtils_Script::swapped_data()
{
    QTest::addColumn<int>("corners");
    QTest::addColumn<int>("expected");
    for (int corners = None; corners <= All; ++corners) {
        int expected = None;
        for (const auto &[from, to] : {std::pair(TopLeft, TopRight),
                                       {TopRight, TopLeft},
                                       {BottomLeft, BottomRight},
                                       {BottomRight, BottomLeft}}) {
            if (corners & from)
                expected |= to;
        }
        QTest::addRow("%d", corners) << corners << expected;
    }
}

void tst_DrawUtils_Script::swapped()
{
    QFETCH(const int, corners);
    QFETCH(const int, expected);
    const QString call = u"DrawUtils.swapRectangularCornersLeftRight(%1)"_s;
    QCOMPARE(m_script.evaluate(call.arg(corners)).toInt(), expected);
    QCOMPARE(m_script.evaluate(call.arg(expected)).toInt(), corners);
}

void tst_DrawUtils_Script::pixels_data()
{
    QTest::addColumn<Ring>("ring");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("arguments"); // after the colour
    QTest::addColumn<QPainterPath>("expected");

    const Ring wide{44, 140, 8, 2, 3};
    const Ring tall{140, 44, 8, 2, 3};
    const Ring square{60, 60, 8, 4, 2};
    const auto pill = [](const Ring &ring) {
        const double radius = ring.height / 2 - (ring.extraSpace - ring.offset - ring.lineThickness / 2);
        return area(ring, {radius, radius, radius, radius});
    };
    const QString sides = u"drawRoundedSidesOutline"_s;
    QTest::newRow("pill") << wide << sides << u""_s << pill(wide);
    QTest::newRow("pill, circle") << square << sides << u""_s << pill(square);
    QTest::newRow("pill, taller than wide") << tall << sides << u""_s << area(tall, {4, 4, 4, 4});

    const QString rectangle = u"drawRoundedCornerRectangleOutline"_s;
    for (const double radius : {16.0, 4.0, 0.5, 0.0}) {
        QTest::addRow("rectangle, radius %g", radius)
            << wide << rectangle << u", %1"_s.arg(radius) << area(wide, {radius, radius, radius, radius});
    }
    QTest::newRow("rectangle, negative radius") << wide << rectangle << u", -5"_s << area(wide, {0, 0, 0, 0});
    QTest::newRow("rectangle, thick") << square << rectangle << u", 6"_s << area(square, {6, 6, 6, 6});

    const QString mixed = u"drawRectangularAndRoundCornerOutline"_s;
    const double inset = 4; // of the centre line, in both rings
    for (int corners = None; corners <= All; ++corners) {
        for (const auto &[name, ring, radius] :
             {std::tuple("mixed", wide, 14.0), {"mixed, thick", square, 9.0}, {"mixed, radius too small", wide, 3.0}}) {
            const double r = std::max(radius - inset, 0.0);
            QTest::addRow("%s, square corners %d", name, corners)
                << ring << mixed << u", %1, %2"_s.arg(radius).arg(corners)
                << area(ring,
                        {corners & TopLeft ? 0 : r, corners & TopRight ? 0 : r, corners & BottomRight ? 0 : r,
                         corners & BottomLeft ? 0 : r});
        }
    }
}

// On the screen, in a colour that lets through: nothing is covered twice.
void tst_DrawUtils_Script::pixels()
{
    QFETCH(const Ring, ring);
    QFETCH(const QString, function);
    QFETCH(const QString, arguments);
    QFETCH(const QPainterPath, expected);
    const QColor color(200, 30, 60, 160);

    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(uR"(import QtQuick
        import "qrc:/Qml/DrawUtils.js" as DrawUtils
        Canvas {
            onPaint: DrawUtils.%1(getContext("2d"), %2, Qt.rgba(%3, %4, %5, %6)%7)
        })"_s.arg(function, ring.arguments())
                          .arg(color.redF())
                          .arg(color.greenF())
                          .arg(color.blueF())
                          .arg(color.alphaF())
                          .arg(arguments)
                          .toUtf8(),
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    auto *canvas = qobject_cast<QQuickItem *>(object.get());
    QVERIFY2(canvas, qPrintable(component.errorString()));
    QSignalSpy painted(canvas, SIGNAL(painted()));
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(150, 150);
    canvas->setSize({ring.width, ring.height});
    canvas->setParentItem(window.contentItem());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(!painted.isEmpty());
    const QImage actual = window.grabWindow().copy(0, 0, int(ring.width), int(ring.height));
    canvas->setParentItem(nullptr);

    QImage reference(actual.size(), QImage::Format_RGB32);
    reference.fill(Qt::white);
    QPainter painter(&reference);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(expected, color);
    painter.end();
    COMPARE_IMAGES(actual, reference, 32); // curves of two kinds; a quarter of a pixel off is more than that

    const QImage inside = actual.copy(ring.hole().marginsRemoved({8, 8, 8, 8}).toRect());
    QImage blank(inside.size(), QImage::Format_RGB32);
    blank.fill(Qt::white);
    COMPARE_IMAGES(inside, blank);
}

LUMAKIT_TEST_MAIN(tst_DrawUtils_Script)
#include "tst_drawutils_script.moc"
