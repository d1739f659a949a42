#include "Pixels.h"

#include <DrawUtils.h>
#include <TestCase.h>

#include <QImageReader>
#include <QPainterPath>

#include <private/qsvgnode_p.h>
#include <private/qsvgtinydocument_p.h>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using Pixels::Shape;

Q_DECLARE_METATYPE(Pixels::Shape)

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::unique_ptr<QSvgTinyDocument> parse(const QByteArray &svg)
{
    return std::unique_ptr<QSvgTinyDocument>(QSvgTinyDocument::load(svg));
}

QByteArray icon(const QByteArray &viewBox, const QByteArray &content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox=")" + viewBox + R"("><g>)" + content + "</g></svg>";
}

QSvgNode *firstNode(const QSvgTinyDocument &document)
{
    return document.renderers().value(0);
}

/// A painter whose every setting is unusual.
void setUp(QPainter &painter)
{
    painter.translate(3, 5);
    painter.setPen(QPen(Qt::green, 3, Qt::DotLine));
    painter.setBrush(Qt::blue);
    painter.setOpacity(0.25);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
    painter.setClipRect(0, 0, 20, 20);
    painter.setFont(QFont(u"Consolas"_s, 33));
}

} // namespace

class tst_DrawUtils : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fitRectangle_data();
    void fitRectangle();
    void fitRectangleUnfit_data();
    void fitRectangleUnfit();
    void fitRectangleProperties();

    void recolor_data();
    void recolor();
    void fills_data();
    void fills();
    void opacity_data();
    void opacity();
    void nothingToDraw();
    void keepsPainter();
    void composesWithPainter();
    void nullTargetIsTheDevice();
    void stateRecordIsLeftAsItWas();

    void renderPixmap_data();
    void renderPixmap();
    void renderPixmapRefused_data();
    void renderPixmapRefused();
    void allocationLimit();
};

void tst_DrawUtils::fitRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRectF>("expected");
    QTest::newRow("narrower") << QRectF(0, 0, 100, 50) << 1.0 << QRectF(25, 0, 50, 50);
    QTest::newRow("lower") << QRectF(0, 0, 100, 50) << 4.0 << QRectF(0, 12.5, 100, 25);
    QTest::newRow("exact") << QRectF(0, 0, 100, 50) << 2.0 << QRectF(0, 0, 100, 50);
    QTest::newRow("square in square") << QRectF(7, 9, 24, 24) << 1.0 << QRectF(7, 9, 24, 24);
    QTest::newRow("offset") << QRectF(10, 20, 100, 50) << 1.0 << QRectF(35, 20, 50, 50);
    QTest::newRow("negative origin") << QRectF(-100, -50, 100, 50) << 4.0 << QRectF(-100, -37.5, 100, 25);
    QTest::newRow("tall, wide ratio") << QRectF(0, 0, 10, 100) << 2.0 << QRectF(0, 47.5, 10, 5);
    QTest::newRow("tall, tall ratio") << QRectF(0, 0, 10, 100) << 0.25 << QRectF(0, 30, 10, 40);
    QTest::newRow("fractions") << QRectF(0.5, 0.25, 1.5, 1) << 1.0 << QRectF(0.75, 0.25, 1, 1);
    QTest::newRow("very flat") << QRectF(0, 0, 1, 1) << 1024.0 << QRectF(0, 1023.0 / 2048, 1, 1.0 / 1024);
    QTest::newRow("no height") << QRectF(5, 5, 10, 0) << 1.0 << QRectF(10, 5, 0, 0);
    QTest::newRow("negative size") << QRectF(5, 5, -10, -5) << 1.0 << QRectF(2.5, 5, -5, -5);
    QTest::newRow("ratio 0") << QRectF(0, 0, 100, 50) << 0.0 << QRectF(50, 0, 0, 50);
    QTest::newRow("negative ratio") << QRectF(0, 0, 100, 50) << -1.0 << QRectF(75, 0, -50, 50);
}

void tst_DrawUtils::fitRectangle()
{
    QFETCH(QRectF, rect);
    QFETCH(double, ratio);
    QFETCH(QRectF, expected);
    DrawUtils::fitRectangle(rect, ratio);
    QCOMPARE(rect, expected);
}

void tst_DrawUtils::fitRectangleUnfit_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("ratio");
    QTest::newRow("null rectangle") << QRectF() << 1.0;
    QTest::newRow("no width") << QRectF(5, 5, 0, 10) << 1.0;
    QTest::newRow("ratio of 0 / 0") << QRectF(0, 0, 100, 50) << NotANumber;
}

void tst_DrawUtils::fitRectangleUnfit()
{
    QFETCH(QRectF, rect);
    QFETCH(double, ratio);
    const QRectF before = rect;
    DrawUtils::fitRectangle(rect, ratio);
    QVERIFY(rect == before);
}

void tst_DrawUtils::fitRectangleProperties()
{
    for (const double width : {1.0, 7.5, 24.0, 333.0}) {
        for (const double height : {1.0, 6.25, 24.0, 512.0}) {
            for (const double ratio : {0.01, 0.3, 1.0, 1.7, 60.0}) {
                const QRectF before(-3, 11, width, height);
                QRectF rect = before;
                DrawUtils::fitRectangle(rect, ratio);
                QCOMPARE(rect.width() / rect.height(), ratio);
                QCOMPARE(rect.center(), before.center());
                QVERIFY(rect.width() < before.width() * 1.000001 && rect.height() < before.height() * 1.000001);
                QVERIFY(qFuzzyCompare(rect.width(), before.width()) || qFuzzyCompare(rect.height(), before.height()));
            }
        }
    }
}

void tst_DrawUtils::recolor_data()
{
    QTest::addColumn<QByteArray>("viewBox");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<Shape>("shape");
    const Shape square = [](QPainter &painter) { painter.drawRect(QRectF(4, 4, 16, 16)); };
    const QByteArray squareSvg = R"(<rect x="4" y="4" width="16" height="16"/>)";
    const Shape circle = [](QPainter &painter) { painter.drawEllipse(QPointF(12, 12), 9, 9); };
    const QByteArray circleSvg = R"(<circle cx="12" cy="12" r="9"/>)";
    const Shape triangle = [](QPainter &painter) { painter.drawPolygon(QPolygonF({{2, 2}, {22, 6}, {8, 21}})); };
    const QByteArray triangleSvg = R"(<path d="M2 2L22 6L8 21Z"/>)";
    const auto row = [](const char *name, const char *viewBox, const QByteArray &content, const QRectF &rect,
                        const QColor &color, const Shape &shape) {
        QTest::newRow(name) << QByteArray(viewBox) << content << rect << color << shape;
    };
    const QRectF all(0, 0, 48, 48);
    row("square", "0 0 24 24", squareSvg, all, Qt::red, square);
    row("circle", "0 0 24 24", circleSvg, all, Qt::blue, circle);
    row("path", "0 0 24 24", triangleSvg, all, Qt::darkGreen, triangle);
    row("unscaled", "0 0 48 48", circleSvg, all, Qt::red, circle);
    row("smaller", "0 0 24 24", circleSvg, {0, 0, 11, 11}, Qt::red, circle);
    row("offset rectangle", "0 0 24 24", squareSvg, {10, 20, 24, 24}, Qt::red, square);
    row("fractional rectangle", "0 0 24 24", circleSvg, {1.5, 2.25, 30.5, 30.5}, Qt::red, circle);
    row("rectangle beyond the device", "0 0 24 24", circleSvg, {-20, -20, 96, 96}, Qt::red, circle);
    row("half-transparent colour", "0 0 24 24", squareSvg, all, QColor(255, 0, 0, 128), square);
    row("transparent colour", "0 0 24 24", squareSvg, all, Qt::transparent, square);
    row("colour of another model", "0 0 24 24", squareSvg, all, QColor::fromHsl(200, 90, 120), square);
    row("wide view box", "0 0 48 24", squareSvg, all, Qt::red, square);
    row("tall view box", "0 0 24 48", squareSvg, all, Qt::red, square);
    row("wide rectangle", "0 0 24 24", circleSvg, {0, 10, 48, 20}, Qt::red, circle);
    row("tall rectangle", "0 0 24 24", circleSvg, {10, 0, 20, 48}, Qt::red, circle);
    row("view box with an origin", "10 20 24 24", R"(<rect x="14" y="24" width="16" height="16"/>)", all, Qt::red,
        [](QPainter &painter) { painter.drawRect(QRectF(14, 24, 16, 16)); });
    row("view box with a negative origin", "-12 -12 24 24", R"(<circle cx="0" cy="0" r="9"/>)", all, Qt::red,
        [](QPainter &painter) { painter.drawEllipse(QPointF(0, 0), 9, 9); });
    row("view box with an origin, another ratio", "10 20 48 24", R"(<rect x="14" y="24" width="16" height="16"/>)",
        {3, 3, 40, 40}, Qt::red, [](QPainter &painter) { painter.drawRect(QRectF(14, 24, 16, 16)); });
    row("view box of fractions", "0.5 0.5 23.5 23.5", squareSvg, all, Qt::red, square);
}

void tst_DrawUtils::recolor()
{
    QFETCH(QByteArray, viewBox);
    QFETCH(QByteArray, content);
    QFETCH(QRectF, rect);
    QFETCH(QColor, color);
    QFETCH(Shape, shape);
    const QList<QByteArray> numbers = viewBox.split(' ');
    const QRectF box(numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(), numbers[3].toDouble());
    const auto document = parse(icon(viewBox, content));
    QVERIFY(document);

    QImage actual = Pixels::blank({48, 48});
    {
        QPainter painter(&actual);
        QSvgExtraStates states;
        DrawUtils::drawSVG(&painter, firstNode(*document), states, rect, color, 1.0);
    }
    QImage expected = Pixels::blank({48, 48});
    Pixels::paint(expected, box, rect, color, 1.0, shape);
    COMPARE_IMAGES(actual, expected, 2);
    QCOMPARE(Pixels::isBlank(actual), color.alpha() == 0);
}

void tst_DrawUtils::fills_data()
{
    QTest::addColumn<QByteArray>("svg");
    QTest::addColumn<QColor>("left");
    QTest::addColumn<QColor>("right");
    const auto row = [](const char *name, const QByteArray &svg, const QColor &left, const QColor &right) {
        QTest::newRow(name) << svg << left << right;
    };
    const QColor asked(255, 0, 0);
    const QByteArray start = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 10")";
    const QByteArray left = R"(<rect width="10" height="10" )";
    const QByteArray right = R"(<rect x="10" width="10" height="10" )";
    row("no fill", start + "><g>" + left + "/>" + right + "/></g></svg>", asked, asked);
    row("explicit fill is kept", start + "><g>" + left + R"(fill="#00ff00"/>)" + right + "/></g></svg>",
        QColor(0, 255, 0), asked);
    row("black is a fill like any other", start + "><g>" + left + R"(fill="#000000"/>)" + right + "/></g></svg>",
        QColor(0, 0, 0), asked);
    row("fill by style", start + "><g>" + left + R"(style="fill:#00ff00"/>)" + right + "/></g></svg>",
        QColor(0, 255, 0), asked);
    row("fill none", start + "><g>" + left + R"(fill="none"/>)" + right + "/></g></svg>", Qt::transparent, asked);
    row("fill of the group", start + R"(><g fill="#0000ff">)" + left + R"(fill="#00ff00"/>)" + right + "/></g></svg>",
        QColor(0, 255, 0), QColor(0, 0, 255));
    row("fill of the document is not the node's",
        start + R"( fill="#0000ff"><g>)" + left + "/>" + right + R"(fill="#00ff00"/></g></svg>)", asked,
        QColor(0, 255, 0));
    row("a shape that is not displayed", start + "><g>" + left + R"(display="none"/>)" + right + "/></g></svg>",
        Qt::transparent, asked);
    row("a shape that is hidden", start + "><g>" + left + R"(visibility="hidden"/>)" + right + "/></g></svg>",
        Qt::transparent, asked);
    row("fill opacity", start + "><g>" + left + R"(fill-opacity="0.5"/>)" + right + "/></g></svg>",
        QColor(255, 0, 0, 127), asked);
    row("opacity of a shape", start + "><g>" + left + R"(opacity="0.5"/>)" + right + "/></g></svg>",
        QColor(255, 0, 0, 127), asked);
    row("a stroke is drawn",
        start + R"(><g><path d="M0 5H10" stroke="#00ff00" stroke-width="10"/>)" + right + "/></g></svg>",
        QColor(0, 255, 0), asked);
    row("no stroke by default", start + R"(><g><path d="M0 5H10" stroke-width="10"/>)" + right + "/></g></svg>",
        Qt::transparent, asked);
    row("a single shape without a group", start + '>' + left + "/></svg>", asked, Qt::transparent);
    row("a gradient of one colour",
        start + R"(><g><linearGradient id="a"><stop stop-color="#00ff00"/></linearGradient>)" + left
            + R"(fill='url(#a)'/>)" + right + "/></g></svg>",
        QColor(0, 255, 0), asked);
    row("a group used again", start + R"(><g><g id="a">)" + left + R"(/></g><use href="#a" x="10"/></g></svg>)", asked,
        asked);
    row("currentColor is a fill: black", start + "><g>" + left + R"(fill="currentColor"/>)" + right + "/></g></svg>",
        QColor(0, 0, 0), asked);
}

void tst_DrawUtils::fills()
{
    QFETCH(QByteArray, svg);
    QFETCH(QColor, left);
    QFETCH(QColor, right);
    const auto document = parse(svg);
    QVERIFY(document);
    QCOMPARE(document->renderers().size(), 1);
    const QImage actual =
        DrawUtils::renderPixmap(firstNode(*document), {0, 0, 20, 10}, {20, 10}, 1.0, QColor(255, 0, 0), Qt::transparent)
            .toImage();
    QImage expected = Pixels::blank({20, 10});
    QPainter painter(&expected);
    painter.fillRect(0, 0, 10, 10, left);
    painter.fillRect(10, 0, 10, 10, right);
    painter.end();
    COMPARE_IMAGES(actual, expected, 2);
}

void tst_DrawUtils::opacity_data()
{
    QTest::addColumn<double>("opacity");
    QTest::addColumn<int>("alpha");
    QTest::newRow("1") << 1.0 << 255;
    QTest::newRow("0.5") << 0.5 << 128;
    QTest::newRow("0.25") << 0.25 << 64;
    QTest::newRow("0") << 0.0 << 0;
    QTest::newRow("above 1") << 7.0 << 255;
    QTest::newRow("below 0") << -1.0 << 0;
}

void tst_DrawUtils::opacity()
{
    QFETCH(double, opacity);
    QFETCH(int, alpha);
    const auto document = parse(icon("0 0 10 10", R"(<rect width="10" height="10"/>)"));
    QImage actual = Pixels::blank({10, 10});
    {
        QPainter painter(&actual);
        painter.setOpacity(0.125); // replaced, not multiplied
        QSvgExtraStates states;
        DrawUtils::drawSVG(&painter, firstNode(*document), states, {0, 0, 10, 10}, Qt::blue, opacity);
    }
    COMPARE_IMAGES(actual, Pixels::blank({10, 10}, 1.0, QColor(0, 0, 255, alpha)), 1);
}

void tst_DrawUtils::nothingToDraw()
{
    const auto document = parse(icon("0 0 10 10", R"(<rect width="10" height="10"/>)"));
    QSvgExtraStates states;
    DrawUtils::drawSVG(nullptr, firstNode(*document), states, {0, 0, 10, 10}, Qt::red, 1.0);
    DrawUtils::drawSVG(nullptr, nullptr, states, {0, 0, 10, 10}, Qt::red, 1.0);

    const auto hidden = parse(
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 9 9">
            <g display="none"><rect width="9" height="9"/></g></svg>)");
    QCOMPARE(firstNode(*hidden)->displayMode(), QSvgNode::NoneMode);
    QImage image = Pixels::blank({10, 10});
    {
        QPainter painter(&image);
        DrawUtils::drawSVG(&painter, nullptr, states, {0, 0, 10, 10}, Qt::red, 1.0);
        DrawUtils::drawSVG(&painter, firstNode(*hidden), states, {0, 0, 10, 10}, Qt::red, 1.0);
    }
    QVERIFY(Pixels::isBlank(image));
    COMPARE_IMAGES(
        DrawUtils::renderPixmap(firstNode(*hidden), {0, 0, 9, 9}, {9, 9}, 1.0, Qt::red, Qt::yellow).toImage(),
        Pixels::blank({9, 9}, 1.0, Qt::yellow));
}

void tst_DrawUtils::keepsPainter()
{
    const auto document = parse(icon("0 0 10 10", R"(<rect width="10" height="10" fill="#00ff00" stroke="#0000ff"/>)"));
    QImage image = Pixels::blank({40, 40});
    QPainter painter(&image);
    setUp(painter);
    const QTransform transform = painter.transform();
    const QPen pen = painter.pen();
    const QBrush brush = painter.brush();
    const QFont font = painter.font();
    const QRegion clip = painter.clipRegion();
    const QPainter::RenderHints hints = painter.renderHints();
    QSvgExtraStates states;
    DrawUtils::drawSVG(&painter, firstNode(*document), states, {0, 0, 30, 30}, Qt::red, 0.5);
    QCOMPARE(painter.transform(), transform);
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.brush(), brush);
    QCOMPARE(painter.font(), font);
    QCOMPARE(painter.opacity(), 0.25);
    QCOMPARE(painter.clipRegion(), clip);
    QCOMPARE(painter.renderHints(), hints);
}

void tst_DrawUtils::composesWithPainter()
{
    const auto document = parse(icon("0 0 24 24", R"(<path d="M2 2L22 6L8 21Z"/>)"));
    const auto prepare = [](QPainter &painter) {
        painter.translate(20, 4);
        painter.rotate(30);
        painter.setClipRect(QRectF(0, 0, 24, 15));
    };
    QImage actual = Pixels::blank({48, 48});
    {
        QPainter painter(&actual);
        prepare(painter);
        QSvgExtraStates states;
        DrawUtils::drawSVG(&painter, firstNode(*document), states, {0, 0, 30, 20}, Qt::red, 1.0);
    }
    QImage expected = Pixels::blank({48, 48});
    {
        QPainter painter(&expected);
        prepare(painter);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setTransform(Pixels::fit({0, 0, 24, 24}, {0, 0, 30, 20}), true);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::red);
        painter.drawPolygon(QPolygonF({{2, 2}, {22, 6}, {8, 21}}));
    }
    QVERIFY(!Pixels::isBlank(actual));
    COMPARE_IMAGES(actual, expected, 2);
}

void tst_DrawUtils::nullTargetIsTheDevice()
{
    const auto document = parse(icon("0 0 10 20", R"(<rect width="5" height="20"/>)"));
    QImage actual = Pixels::blank({40, 30});
    {
        QPainter painter(&actual);
        QSvgExtraStates states;
        DrawUtils::drawSVG(&painter, firstNode(*document), states, {}, Qt::red, 1.0);
    }
    QImage expected = Pixels::blank({40, 30});
    {
        QPainter painter(&expected);
        painter.fillRect(0, 0, 20, 30, Qt::red);
    }
    COMPARE_IMAGES(actual, expected);
}

void tst_DrawUtils::stateRecordIsLeftAsItWas()
{
    const auto special = parse(icon("0 0 10 10", R"(<g fill-opacity="0.25" stroke-opacity="0.5" fill-rule="evenodd"
        text-anchor="end" font-weight="900" vector-effect="non-scaling-stroke" image-rendering="optimizeSpeed">
        <rect width="10" height="10"/></g>)"));
    const auto plain = parse(icon("0 0 10 10", R"(<rect width="10" height="10"/>)"));
    QSvgExtraStates states;
    QImage image = Pixels::blank({10, 10});
    {
        QPainter painter(&image);
        DrawUtils::drawSVG(&painter, firstNode(*special), states, {0, 0, 10, 10}, Qt::red, 1.0);
    }
    COMPARE_IMAGES(image, Pixels::blank({10, 10}, 1.0, QColor(255, 0, 0, 64)), 1);
    const QSvgExtraStates fresh;
    QCOMPARE(states.fillOpacity, fresh.fillOpacity);
    QCOMPARE(states.strokeOpacity, fresh.strokeOpacity);
    QCOMPARE(states.textAnchor, fresh.textAnchor);
    QCOMPARE(states.fontWeight, fresh.fontWeight);
    QCOMPARE(states.fillRule, fresh.fillRule);
    QCOMPARE(states.vectorEffect, fresh.vectorEffect);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        DrawUtils::drawSVG(&painter, firstNode(*plain), states, {0, 0, 10, 10}, Qt::red, 1.0);
    }
    COMPARE_IMAGES(image, Pixels::blank({10, 10}, 1.0, Qt::red));
}

void tst_DrawUtils::renderPixmap_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QColor>("background");
    QTest::newRow("filled") << QRectF(0, 0, 24, 24) << QSize(24, 24) << 1.0 << QColor(Qt::transparent);
    QTest::newRow("background") << QRectF(4, 4, 16, 16) << QSize(24, 24) << 1.0 << QColor(Qt::yellow);
    QTest::newRow("half-transparent background")
        << QRectF(4, 4, 16, 16) << QSize(24, 24) << 1.0 << QColor(0, 0, 255, 100);
    QTest::newRow("ratio 2") << QRectF(0, 0, 24, 24) << QSize(48, 48) << 2.0 << QColor(Qt::transparent);
    QTest::newRow("ratio 1.25") << QRectF(0, 0, 24, 24) << QSize(30, 30) << 1.25 << QColor(Qt::transparent);
    QTest::newRow("ratio 1.5") << QRectF(2, 3, 20, 18) << QSize(36, 36) << 1.5 << QColor(Qt::white);
    QTest::newRow("ratio 2, rectangle of device pixels is clipped")
        << QRectF(0, 0, 48, 48) << QSize(48, 48) << 2.0 << QColor(Qt::transparent);
    QTest::newRow("not square") << QRectF(0, 0, 60, 20) << QSize(60, 20) << 1.0 << QColor(Qt::transparent);
    QTest::newRow("one pixel") << QRectF(0, 0, 1, 1) << QSize(1, 1) << 1.0 << QColor(Qt::transparent);
}

void tst_DrawUtils::renderPixmap()
{
    QFETCH(QRectF, rect);
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(QColor, background);
    const auto document = parse(icon("0 0 24 24", R"(<circle cx="12" cy="12" r="10"/>)"));
    const QPixmap pixmap = DrawUtils::renderPixmap(firstNode(*document), rect, size, ratio, Qt::red, background);
    QCOMPARE(pixmap.size(), size);
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
    QImage expected = Pixels::blank(size, ratio, background);
    Pixels::paint(expected, {0, 0, 24, 24}, rect, Qt::red, 1.0,
                  [](QPainter &painter) { painter.drawEllipse(QPointF(12, 12), 10, 10); });
    COMPARE_IMAGES(pixmap.toImage(), expected, 2);
}

void tst_DrawUtils::renderPixmapRefused_data()
{
    QTest::addColumn<QSize>("size");
    constexpr int Largest = std::numeric_limits<int>::max();
    QTest::newRow("no width") << QSize(0, 24);
    QTest::newRow("no height") << QSize(24, 0);
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("default size") << QSize();
    QTest::newRow("negative") << QSize(-24, -24);
    QTest::newRow("smallest") << QSize(std::numeric_limits<int>::min(), std::numeric_limits<int>::min());
    QTest::newRow("10 GB") << QSize(50'000, 50'000);
    QTest::newRow("largest width") << QSize(Largest, 1);
    QTest::newRow("largest height") << QSize(1, Largest);
    QTest::newRow("largest") << QSize(Largest, Largest);
    QTest::newRow("2^32 pixels") << QSize(65'536, 65'536);
}

void tst_DrawUtils::renderPixmapRefused()
{
    QFETCH(QSize, size);
    const auto document = parse(icon("0 0 24 24", R"(<circle cx="12" cy="12" r="10"/>)"));
    LogRecorder log;
    QVERIFY(DrawUtils::renderPixmap(nullptr, {0, 0, 24, 24}, size, 1.0, Qt::red, Qt::white).isNull());
    QCOMPARE(log.texts(), QStringList());
    QVERIFY(DrawUtils::renderPixmap(firstNode(*document), {0, 0, 24, 24}, size, 1.0, Qt::red, Qt::white).isNull());
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{
                 {QtWarningMsg,
                  u"Unable to create a pixmap of size QSize(%1, %2)"_s.arg(size.width()).arg(size.height())}}));
}

void tst_DrawUtils::allocationLimit()
{
    const auto document = parse(icon("0 0 24 24", R"(<rect width="24" height="24"/>)"));
    const auto render = [&](const QSize &size) {
        return DrawUtils::renderPixmap(firstNode(*document), {0, 0, 24, 24}, size, 1.0, Qt::red, Qt::white);
    };
    const int limit = QImageReader::allocationLimit();
    const auto restore = qScopeGuard([limit] { QImageReader::setAllocationLimit(limit); });
    QImageReader::setAllocationLimit(1); // MB
    QCOMPARE(render({512, 512}).size(), QSize(512, 512));
    LogRecorder log;
    QVERIFY(render({513, 512}).isNull());
    QVERIFY(render({512, 513}).isNull());
    QCOMPARE(log.texts(),
             (QStringList{u"Unable to create a pixmap of size QSize(513, 512)"_s,
                          u"Unable to create a pixmap of size QSize(512, 513)"_s}));
    log.clear();
    QImageReader::setAllocationLimit(0); // none
    QCOMPARE(render({513, 512}).size(), QSize(513, 512));
    QVERIFY(render({0, 512}).isNull());
    constexpr int Largest = std::numeric_limits<int>::max();
    QVERIFY(render({Largest, Largest}).isNull());
    QCOMPARE(log.texts(),
             (QStringList{u"Unable to create a pixmap of size QSize(0, 512)"_s,
                          u"Unable to create a pixmap of size QSize(2147483647, 2147483647)"_s}));
}

LUMAKIT_TEST_MAIN(tst_DrawUtils)
#include "tst_drawutils.moc"
