#include "PaintedItems.h"

#include <MetaDescription.h>
#include <Pixels.h>
#include <TestCase.h>
#include <WQmlBalloon.h>

#include <QPainterPath>
#include <QQmlComponent>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;
using namespace PaintedItems;

using Anchor = WQmlBalloon::ArrowAnchor;
using Alignment = WQmlBalloon::ArrowAlignment;
using Balloon = Counted<WQmlBalloon>;
using Change = std::function<void(WQmlBalloon &)>;

Q_DECLARE_METATYPE(Change)

namespace {

constexpr auto UnknownAnchor = Anchor(9);
constexpr auto UnknownAlignment = Alignment(-3);

constexpr Anchor Anchors[] = {WQmlBalloon::None, WQmlBalloon::Top,   WQmlBalloon::Bottom,
                              WQmlBalloon::Left, WQmlBalloon::Right, UnknownAnchor};
constexpr Alignment Alignments[] = {WQmlBalloon::LeftAlignment,   WQmlBalloon::CenterAlignment,
                                    WQmlBalloon::RightAlignment,  WQmlBalloon::TopAlignment,
                                    WQmlBalloon::BottomAlignment, UnknownAlignment};

template<class Enum> QString name(Enum value)
{
    const char *key = QMetaEnum::fromType<Enum>().valueToKey(int(value));
    return key ? QString::fromLatin1(key) : u"unknown %1"_s.arg(int(value));
}

struct Form
{
    QSizeF size;
    int offset = 0;
    int arrow = 10;
    int radius = 0;
    int border = 1;
    double scale = 1;
    Anchor anchor = WQmlBalloon::Top;
    Alignment alignment = WQmlBalloon::CenterAlignment;

    QString text() const
    {
        return u"%1, %2, %3 x %4, offset %5, arrow %6, radius %7, border %8, scale %9"_s.arg(
            name(anchor), name(alignment), QString::number(size.width()), QString::number(size.height()),
            QString::number(offset), QString::number(arrow), QString::number(radius), QString::number(border),
            QString::number(scale));
    }
    void applyTo(WQmlBalloon &balloon) const
    {
        balloon.setSize(size);
        balloon.setArrowOffset(offset);
        balloon.setArrowSize(arrow);
        balloon.setProperty("radius", radius);
        balloon.setBorderWidth(border);
        balloon.setArrowAnchor(anchor);
        balloon.setArrowAlignment(alignment);
    }
    bool isHorizontal() const { return anchor == WQmlBalloon::Top || anchor == WQmlBalloon::Bottom; }
};

constexpr QColor Fill(0x40, 0x80, 0xc0, 0x80);
constexpr QColor Line(0xc0, 0x20, 0x30, 0xa0);

// Where along its edge the tip belongs.
double expectedTip(const Form &form)
{
    const bool horizontal = form.isHorizontal();
    const double length = horizontal ? form.size.width() : form.size.height();
    double tip = length / 2 + form.offset;
    if (form.alignment == (horizontal ? WQmlBalloon::LeftAlignment : WQmlBalloon::TopAlignment))
        tip = form.arrow + form.offset;
    else if (form.alignment == (horizontal ? WQmlBalloon::RightAlignment : WQmlBalloon::BottomAlignment))
        tip = form.offset + (length - form.arrow);

    const double low = form.arrow + form.radius;
    const double high = length - form.radius - form.arrow;
    if (tip < low)
        return low;
    return tip > high ? high : tip;
}

QRectF expectedBody(const Form &form)
{
    const double w = form.size.width();
    const double h = form.size.height();
    const double a = form.arrow;
    switch (form.anchor) {
    case WQmlBalloon::Top:
        return {0, a, w, h - a};
    case WQmlBalloon::Bottom:
        return {0, 0, w, h - a};
    case WQmlBalloon::Left:
        return {a, 0, w - a, h};
    case WQmlBalloon::Right:
        return {0, 0, w - a, h};
    default:
        return {0, 0, w, h};
    }
}

// Base, tip, base.
QList<QPointF> expectedArrow(const Form &form)
{
    const double w = form.size.width();
    const double h = form.size.height();
    const double a = form.arrow;
    const double t = expectedTip(form);
    switch (form.anchor) {
    case WQmlBalloon::Top:
        return {{t + a, a}, {t, 0}, {t - a, a}};
    case WQmlBalloon::Bottom:
        return {{t + a, h - a}, {t, h}, {t - a, h - a}};
    case WQmlBalloon::Left:
        return {{a, t + a}, {0, t}, {a, t - a}};
    case WQmlBalloon::Right:
        return {{w - a, t + a}, {w, t}, {w - a, t - a}};
    default:
        return {};
    }
}

QPainterPath expectedOutline(const Form &form)
{
    const QRectF body = expectedBody(form);
    const double x1 = body.x();
    const double y1 = body.y();
    const double x2 = body.x() + body.width();
    const double y2 = body.y() + body.height();
    const double r = form.radius;
    const QSizeF corner(2 * r, 2 * r);

    QPainterPath path(QPointF(x2, y1 + r));
    path.arcTo({{x2 - 2 * r, y1}, corner}, 0, 90);
    path.lineTo(x1 + r, y1);
    path.arcTo({{x1, y1}, corner}, 90, 90);
    path.lineTo(x1, y2 - r);
    path.arcTo({{x1, y2 - 2 * r}, corner}, 180, 90);
    path.lineTo(x2 - r, y2);
    path.arcTo({{x2 - 2 * r, y2 - 2 * r}, corner}, 270, 90);
    path.closeSubpath();

    const QList<QPointF> points = expectedArrow(form);
    if (!points.isEmpty()) {
        QPainterPath arrow(points[0]);
        arrow.lineTo(points[1]);
        arrow.lineTo(points[2]);
        path.addPath(arrow);
    }
    return path.simplified();
}

void paintExpected(QPainter &painter, const Form &form, const QColor &fill, const QColor &line)
{
    QPen pen(line);
    pen.setWidth(form.border);
    painter.setPen(pen);
    painter.setBrush(fill);
    painter.setRenderHint(QPainter::Antialiasing);
    if (form.anchor == WQmlBalloon::None) {
        const QRect whole(0, 0, int(std::trunc(form.size.width())), int(std::trunc(form.size.height())));
        painter.drawRoundedRect(whole, form.radius, form.radius, Qt::AbsoluteSize);
    } else {
        painter.drawPath(expectedOutline(form));
    }
}

QImage expectedPicture(const Form &form)
{
    QImage image = canvas(form.size, form.scale);
    QPainter painter(&image);
    painter.setTransform(toCanvas(form.scale));
    paintExpected(painter, form, Fill, Line);
    return image;
}

// How far inside the shape a point lies, negative outside, without any path.
double depth(const Form &form, const QPointF &point)
{
    const QRectF body = expectedBody(form);
    const QPointF fromCentre = point - body.center();
    const double dx = std::abs(fromCentre.x()) - body.width() / 2 + form.radius;
    const double dy = std::abs(fromCentre.y()) - body.height() / 2 + form.radius;
    const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
    const double inBody = form.radius - outside - std::min(std::max(dx, dy), 0.0);

    const QList<QPointF> arrow = expectedArrow(form);
    if (arrow.isEmpty())
        return inBody;
    const QPointF fromTip = point - arrow[1];
    const QPointF toBase = (arrow[0] + arrow[2]) / 2 - arrow[1];
    const double along = QPointF::dotProduct(fromTip, toBase) / form.arrow;
    const double across = std::abs(form.isHorizontal() ? fromTip.x() : fromTip.y());
    // It reaches 2 pixels into the body, so that nothing separates the two.
    const double inArrow = std::min({(along - across) / std::sqrt(2.0), form.arrow + 2 - along, form.arrow - across});
    return std::max(inBody, inArrow);
}

// The middle of the paint between the body and the tip, along the edge.
double paintedTip(const Form &form, WQmlBalloon &balloon)
{
    constexpr int scale = 4;
    const QImage image = picture(balloon, scale);
    const double depth = form.arrow / 2.0;
    QRectF strip(-margin, 0, form.size.width() + 2 * margin, depth);
    if (form.anchor == WQmlBalloon::Bottom)
        strip.moveTop(form.size.height() - depth);
    else if (form.anchor == WQmlBalloon::Left)
        strip = {0, -margin, depth, form.size.height() + 2 * margin};
    else if (form.anchor == WQmlBalloon::Right)
        strip = {form.size.width() - depth, -margin, depth, form.size.height() + 2 * margin};

    const QRect pixels = toCanvas(scale).mapRect(strip).toRect() & image.rect();
    double sum = 0;
    double weight = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            weight += alpha;
            sum += alpha * ((form.isHorizontal() ? x : y) + 0.5);
        }
    }
    return weight > 0 ? sum / weight / scale - margin : qQNaN();
}

void addColumns()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("signal");
}

void addSetters()
{
    const auto row = [](const char *what, const char *signal, const Change &change) {
        QTest::newRow(what) << change << QString::fromLatin1(signal);
    };
    row("alignment", "arrowAlignmentChanged", [](WQmlBalloon &b) { b.setArrowAlignment(WQmlBalloon::RightAlignment); });
    row("anchor", "arrowAnchorChanged", [](WQmlBalloon &b) { b.setArrowAnchor(WQmlBalloon::Left); });
    row("background", "backgroundColorChanged", [](WQmlBalloon &b) { b.setBackgroundColor(Qt::red); });
    row("border colour", "borderColorChanged", [](WQmlBalloon &b) { b.setBorderColor(Qt::blue); });
    row("offset", "arrowOffsetChanged", [](WQmlBalloon &b) { b.setArrowOffset(7); });
    row("arrow size", "arrowSizeChanged", [](WQmlBalloon &b) { b.setArrowSize(14); });
    row("border width", "borderWidthChanged", [](WQmlBalloon &b) { b.setBorderWidth(3); });
    row("alignment, as a property", "arrowAlignmentChanged",
        [](WQmlBalloon &b) { b.setProperty("arrowAlignment", WQmlBalloon::LeftAlignment); });
    row("anchor, as a property", "arrowAnchorChanged",
        [](WQmlBalloon &b) { b.setProperty("arrowAnchor", WQmlBalloon::Bottom); });
    row("background, as a property", "backgroundColorChanged",
        [](WQmlBalloon &b) { b.setProperty("backgroundColor", QColor(Qt::green)); });
    row("border colour, as a property", "borderColorChanged",
        [](WQmlBalloon &b) { b.setProperty("borderColor", QColor(Qt::green)); });
    row("offset, as a property", "arrowOffsetChanged", [](WQmlBalloon &b) { b.setProperty("arrowOffset", -5); });
}

void addMemberWrites()
{
    const auto row = [](const char *property, const char *signal, int value) {
        QTest::addRow("%s, as a property", property)
            << Change([=](WQmlBalloon &b) { b.setProperty(property, value); }) << QString::fromLatin1(signal);
        const QString statement = u"%1 = %2"_s.arg(QString::fromLatin1(property)).arg(value);
        QTest::addRow("%s, from QML", property)
            << Change([=](WQmlBalloon &b) { runQml(&b, statement); }) << QString::fromLatin1(signal);
    };
    row("arrowSize", "arrowSizeChanged", 20);
    row("radius", "radiusChanged", 8);
    row("borderWidth", "borderWidthChanged", 4);
}

} // namespace

class tst_WQmlBalloon : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject()
    {
        const QMetaObject &meta = WQmlBalloon::staticMetaObject;
        QCOMPARE(meta.superClass(), &QQuickPaintedItem::staticMetaObject);
        QCOMPARE(MetaDescription::properties(meta),
                 (QStringList{
                     u"WQmlBalloon::ArrowAlignment arrowAlignment, arrowAlignmentChanged"_s,
                     u"WQmlBalloon::ArrowAnchor arrowAnchor, arrowAnchorChanged"_s,
                     u"QColor backgroundColor, backgroundColorChanged"_s,
                     u"QColor borderColor, borderColorChanged"_s,
                     u"int arrowOffset, arrowOffsetChanged"_s,
                     u"int arrowSize, arrowSizeChanged"_s,
                     u"int radius, radiusChanged"_s,
                     u"int borderWidth, borderWidthChanged"_s,
                 }));
        QCOMPARE(MetaDescription::signalsOf(meta),
                 (QStringList{
                     u"void arrowOffsetChanged()"_s,
                     u"void arrowAlignmentChanged()"_s,
                     u"void arrowAnchorChanged()"_s,
                     u"void arrowSizeChanged()"_s,
                     u"void backgroundColorChanged()"_s,
                     u"void borderColorChanged()"_s,
                     u"void borderWidthChanged()"_s,
                     u"void radiusChanged()"_s,
                 }));
        QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
        QCOMPARE(MetaDescription::invokables(meta), QStringList());
        QCOMPARE(MetaDescription::enums(meta),
                 (QStringList{u"ArrowAnchor: None 0, Top 1, Bottom 2, Left 3, Right 4"_s,
                              u"ArrowAlignment: LeftAlignment 0, CenterAlignment 1, RightAlignment 2, "
                              "TopAlignment 3, BottomAlignment 4"_s}));
    }

    void anchorsHaveTheValuesOfArrowTypes()
    {
        QCOMPARE(int(WQmlBalloon::Top), int(Qt::UpArrow));
        QCOMPARE(int(WQmlBalloon::Bottom), int(Qt::DownArrow));
        QCOMPARE(int(WQmlBalloon::Left), int(Qt::LeftArrow));
        QCOMPARE(int(WQmlBalloon::Right), int(Qt::RightArrow));
    }

    void defaults()
    {
        QQuickItem parent;
        const WQmlBalloon balloon(&parent);
        QCOMPARE(balloon.parentItem(), &parent);
        QCOMPARE(balloon.parent(), &parent);
        QCOMPARE(balloon.arrowAlignment(), WQmlBalloon::CenterAlignment);
        QCOMPARE(balloon.arrowAnchor(), WQmlBalloon::Top);
        QCOMPARE(balloon.backgroundColor(), QColor(Qt::transparent));
        QCOMPARE(balloon.borderColor(), QColor(Qt::transparent));
        QCOMPARE(balloon.arrowOffset(), 0);
        QCOMPARE(balloon.arrowSize(), 10);
        QCOMPARE(balloon.property("arrowSize").toInt(), 10);
        QCOMPARE(balloon.property("radius").toInt(), 0);
        QCOMPARE(balloon.borderWidth(), 1);
        QCOMPARE(balloon.property("borderWidth").toInt(), 1);
        QCOMPARE(balloon.size(), QSizeF(0, 0));
        QCOMPARE(WQmlBalloon().parentItem(), nullptr);
    }

    void typeInQml()
    {
        qmlRegisterType<WQmlBalloon>("Shapes", 1, 0, "Balloon");
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick\n"
                          "import Shapes 1.0\n"
                          "Balloon { arrowAnchor: Balloon.Right; arrowAlignment: Balloon.BottomAlignment\n"
                          "  backgroundColor: '#102030'; borderColor: 'red'; arrowOffset: -4; arrowSize: 6\n"
                          "  radius: 3; borderWidth: 2\n"
                          "  readonly property var edges: [Balloon.None, Balloon.Top, Balloon.Bottom, Balloon.Left,\n"
                          "                                  Balloon.Right] }",
                          QUrl());
        const std::unique_ptr<QObject> object(component.create());
        const auto *balloon = qobject_cast<WQmlBalloon *>(object.get());
        QVERIFY2(balloon, qPrintable(component.errorString()));
        QCOMPARE(balloon->arrowAnchor(), WQmlBalloon::Right);
        QCOMPARE(balloon->arrowAlignment(), WQmlBalloon::BottomAlignment);
        QCOMPARE(balloon->backgroundColor(), QColor(0x10, 0x20, 0x30));
        QCOMPARE(balloon->borderColor(), QColor(Qt::red));
        QCOMPARE(balloon->arrowOffset(), -4);
        QCOMPARE(balloon->arrowSize(), 6);
        QCOMPARE(balloon->property("radius").toInt(), 3);
        QCOMPARE(balloon->borderWidth(), 2);
        // Not those of the same name that every item has.
        QCOMPARE(balloon->property("edges").value<QJSValue>().toVariant().toList(), (QVariantList{0, 1, 2, 3, 4}));
    }

    void setters_data()
    {
        addColumns();
        addSetters();
        addMemberWrites();
    }

    void setters()
    {
        QFETCH(const Change, change);
        QFETCH(const QString, signal);
        WQmlBalloon balloon;
        SignalCounts counts(balloon, WQmlBalloon::staticMetaObject);
        change(balloon);
        QCOMPARE(counts.take(), QStringList(signal + u" 1"_s));
        change(balloon); // the value that is there
        QCOMPARE(counts.take(), QStringList());
    }

    void settersStore()
    {
        WQmlBalloon balloon;
        balloon.setArrowAlignment(WQmlBalloon::BottomAlignment);
        balloon.setArrowAnchor(WQmlBalloon::None);
        balloon.setBackgroundColor(Qt::red);
        balloon.setBorderColor(Qt::blue);
        balloon.setArrowOffset(-7);
        balloon.setArrowSize(3);
        balloon.setBorderWidth(0);
        balloon.setProperty("radius", 9);
        QCOMPARE(balloon.arrowAlignment(), WQmlBalloon::BottomAlignment);
        QCOMPARE(balloon.arrowAnchor(), WQmlBalloon::None);
        QCOMPARE(balloon.backgroundColor(), QColor(Qt::red));
        QCOMPARE(balloon.borderColor(), QColor(Qt::blue));
        QCOMPARE(balloon.arrowOffset(), -7);
        QCOMPARE(balloon.property("arrowSize").toInt(), 3);
        QCOMPARE(balloon.property("borderWidth").toInt(), 0);
        QCOMPARE(balloon.property("radius").toInt(), 9);
        balloon.setProperty("arrowSize", 5);
        balloon.setProperty("borderWidth", 6);
        QCOMPARE(balloon.arrowSize(), 5);
        QCOMPARE(balloon.borderWidth(), 6);
    }

    // The handler of the signal reads the new value.
    void valueIsStoredBeforeTheSignal()
    {
        WQmlBalloon balloon;
        int seen = 0;
        connect(&balloon, &WQmlBalloon::arrowOffsetChanged, &balloon, [&] { seen = balloon.arrowOffset(); });
        balloon.setArrowOffset(12);
        QCOMPARE(seen, 12);
    }

    void equalColors_data()
    {
        QTest::addColumn<QColor>("before");
        QTest::addColumn<QColor>("after");
        QTest::addColumn<int>("count");

        QTest::newRow("the default") << QColor(Qt::transparent) << QColor(Qt::transparent) << 0;
        QTest::newRow("the default, by number") << QColor(Qt::transparent) << QColor(0, 0, 0, 0) << 0;
        QTest::newRow("invalid") << QColor(Qt::transparent) << QColor() << 1;
        QTest::newRow("invalid twice") << QColor() << QColor() << 0;
        QTest::newRow("alpha only") << QColor(1, 2, 3, 4) << QColor(1, 2, 3, 5) << 1;
        QTest::newRow("the same by name") << QColor(Qt::red) << QColor(u"#ff0000"_s) << 0;
        QTest::newRow("another model") << QColor(Qt::red) << QColor(Qt::red).toHsv() << 1;
    }

    void equalColors()
    {
        QFETCH(const QColor, before);
        QFETCH(const QColor, after);
        QFETCH(const int, count);
        WQmlBalloon balloon;
        balloon.setBackgroundColor(before);
        balloon.setBorderColor(before);
        QSignalSpy background(&balloon, &WQmlBalloon::backgroundColorChanged);
        QSignalSpy border(&balloon, &WQmlBalloon::borderColorChanged);
        balloon.setBackgroundColor(after);
        balloon.setBorderColor(after);
        QCOMPARE(background.size(), count);
        QCOMPARE(border.size(), count);
        QCOMPARE(balloon.backgroundColor(), after);
        QCOMPARE(balloon.borderColor(), after);
    }

    void settersRepaint_data()
    {
        addColumns();
        addSetters();
    }

    void settersRepaint()
    {
        QFETCH(const Change, change);
        Balloon balloon;
        balloon.setSize({120, 80});
        Stage stage(balloon);
        QVERIFY(stage.isReady());
        const int before = balloon.paints();
        QVERIFY(before > 0);
        stage.frame();
        QCOMPARE(balloon.paints(), before);

        change(balloon);
        stage.frame();
        QCOMPARE(balloon.paints(), before + 1);
        change(balloon); // the value that is there
        stage.frame();
        QCOMPARE(balloon.paints(), before + 1);
    }

    void signalComesBeforeTheRepaint_data()
    {
        addColumns();
        addSetters();
    }

    // A frame drawn from the handler of the signal does not paint the item, the next one does.
    void signalComesBeforeTheRepaint()
    {
        QFETCH(const Change, change);
        QFETCH(const QString, signal);
        Balloon balloon;
        balloon.setSize({120, 80});
        Stage stage(balloon);
        QVERIFY(stage.isReady());
        const int before = balloon.paints();

        int duringSignal = -1;
        const auto look = [&] {
            stage.frame();
            duringSignal = balloon.paints();
        };
        QSignalSpy spy(&balloon, qPrintable(u"2%1()"_s.arg(signal)));
        connect(&balloon, &WQmlBalloon::arrowAlignmentChanged, &balloon, look);
        connect(&balloon, &WQmlBalloon::arrowAnchorChanged, &balloon, look);
        connect(&balloon, &WQmlBalloon::backgroundColorChanged, &balloon, look);
        connect(&balloon, &WQmlBalloon::borderColorChanged, &balloon, look);
        connect(&balloon, &WQmlBalloon::arrowOffsetChanged, &balloon, look);
        connect(&balloon, &WQmlBalloon::arrowSizeChanged, &balloon, look);
        connect(&balloon, &WQmlBalloon::borderWidthChanged, &balloon, look);
        change(balloon);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(duringSignal, before);
        stage.frame();
        QCOMPARE(balloon.paints(), before + 1);
    }

    void memberPropertiesDoNotRepaint_data()
    {
        addColumns();
        addMemberWrites();
    }

    void memberPropertiesDoNotRepaint()
    {
        QFETCH(const Change, change);
        QFETCH(const QString, signal);
        Balloon balloon;
        balloon.setSize({120, 80});
        balloon.setBackgroundColor(Qt::red);
        balloon.setBorderColor(Qt::blue);
        Stage stage(balloon);
        QVERIFY(stage.isReady());
        const QImage shown = stage.frame();
        const int before = balloon.paints();
        QSignalSpy spy(&balloon, qPrintable(u"2%1()"_s.arg(signal)));

        change(balloon);
        QCOMPARE(spy.size(), 1);
        const QImage unchanged = stage.frame();
        QCOMPARE(balloon.paints(), before);
        COMPARE_IMAGES(unchanged, shown);

        balloon.setArrowOffset(1); // brings it to the screen
        const QImage changed = stage.frame();
        QCOMPARE(balloon.paints(), before + 1);
        QVERIFY(changed != shown);
    }

    void memberPropertiesShowWithTheNextSize()
    {
        Balloon balloon;
        balloon.setSize({120, 80});
        balloon.setBackgroundColor(Qt::red);
        Stage stage(balloon);
        QVERIFY(stage.isReady());
        balloon.setProperty("arrowSize", 30);
        const int before = balloon.paints();
        stage.frame();
        QCOMPARE(balloon.paints(), before);
        balloon.setWidth(121);
        stage.frame();
        QCOMPARE(balloon.paints(), before + 1);
    }

    void inAWindow_data()
    {
        QTest::addColumn<Form>("form");

        const Form forms[] = {
            {.size = {120, 80}, .offset = 9, .arrow = 12, .radius = 6, .border = 4},
            {.size = {61, 47}, .arrow = 5},
            {.size = {40, 40}, .offset = 30, .arrow = 12, .radius = 16, .border = 2},
        };
        for (Form form : forms) {
            for (const Anchor anchor : Anchors) {
                form.anchor = anchor;
                QTest::newRow(qPrintable(form.text())) << form;
            }
        }
    }

    // The item's bounds cut off what is painted outside: the outer half of the border.
    void inAWindow()
    {
        QFETCH(const Form, form);
        Balloon balloon;
        balloon.setPosition({20, 30});
        balloon.setBackgroundColor(QColor(0x40, 0x80, 0xc0));
        balloon.setBorderColor(QColor(0xc0, 0x20, 0x30));
        form.applyTo(balloon);
        Stage stage(balloon);
        QVERIFY(stage.isReady());
        const QImage actual = stage.frame().convertToFormat(QImage::Format_ARGB32_Premultiplied);

        QImage expected(actual.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::white);
        QPainter painter(&expected);
        painter.translate(balloon.position());
        painter.setClipRect(QRectF(QPointF(), form.size));
        paintExpected(painter, form, QColor(0x40, 0x80, 0xc0), QColor(0xc0, 0x20, 0x30));
        painter.end();
        COMPARE_IMAGES(actual, expected, 2);
        QCOMPARE(actual.pixelColor(19, 50), QColor(Qt::white));
    }

    void painting_data()
    {
        QTest::addColumn<Form>("form");

        const Form forms[] = {
            {.size = {100, 60}},
            {.size = {100, 60}, .offset = 17, .radius = 4},
            {.size = {100, 60}, .offset = -17, .border = 2, .scale = 2},
            {.size = {100, 60}, .offset = 400, .arrow = 6, .radius = 5, .border = 3},
            {.size = {100, 60}, .offset = -400, .arrow = 6, .radius = 5, .border = 0, .scale = 2},
            {.size = {100.7, 60.3}, .offset = 3, .arrow = 8, .radius = 7},
            {.size = {10.7, 33.9}, .arrow = 4, .scale = 1.25},
            {.size = {99.5, 70.5}, .offset = -3, .arrow = 9, .radius = 16, .border = 5, .scale = 1.5},
            {.size = {40, 40}, .arrow = 12, .radius = 16}, // less than twice arrow and radius
            {.size = {40, 40}, .offset = -30, .arrow = 12, .radius = 16, .border = 2},
            {.size = {40, 40}, .offset = 30, .arrow = 12, .radius = 16, .border = 2},
            {.size = {30, 24}, .arrow = 12, .radius = 20, .scale = 2}, // corners larger than the body
            {.size = {8, 8}, .arrow = 10}, // an arrow larger than the item
            {.size = {80, 50}, .offset = 5, .arrow = 0, .radius = 3},
        };
        for (Form form : forms) {
            for (const Anchor anchor : Anchors) {
                for (const Alignment alignment : Alignments) {
                    form.anchor = anchor;
                    form.alignment = alignment;
                    QTest::newRow(qPrintable(form.text())) << form;
                }
            }
        }
    }

    void painting()
    {
        QFETCH(const Form, form);
        WQmlBalloon balloon;
        form.applyTo(balloon);
        balloon.setBackgroundColor(Fill);
        balloon.setBorderColor(Line);
        const QImage actual = picture(balloon, form.scale);
        QVERIFY(!Pixels::isBlank(actual));
        COMPARE_IMAGES(actual, expectedPicture(form));
    }

    void filledArea_data()
    {
        QTest::addColumn<Form>("form");

        const Form forms[] = {
            {.size = {120, 90}, .arrow = 12},
            {.size = {121.5, 90.5}, .offset = 11, .arrow = 14, .radius = 10},
            {.size = {150, 130}, .offset = -23, .arrow = 20, .radius = 24},
        };
        for (Form form : forms) {
            for (const Anchor anchor :
                 {WQmlBalloon::Top, WQmlBalloon::Bottom, WQmlBalloon::Left, WQmlBalloon::Right, UnknownAnchor}) {
                for (const Alignment alignment : Alignments) {
                    form.anchor = anchor;
                    form.alignment = alignment;
                    QTest::newRow(qPrintable(form.text())) << form;
                }
            }
        }
    }

    // Every pixel well inside is filled once, every pixel well outside is empty.
    void filledArea()
    {
        QFETCH(const Form, form);
        WQmlBalloon balloon;
        form.applyTo(balloon);
        balloon.setBackgroundColor(Qt::red);
        const QImage image = picture(balloon);
        int inside = 0;
        int outside = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const double distance = depth(form, QPointF(x - margin + 0.5, y - margin + 0.5));
                if (std::abs(distance) < 0.75)
                    continue;
                const QColor expected = distance > 0 ? Qt::red : Qt::transparent;
                QVERIFY2(image.pixelColor(x, y) == expected, qPrintable(u"(%1, %2)"_s.arg(x - margin).arg(y - margin)));
                ++(distance > 0 ? inside : outside);
            }
        }
        QVERIFY(inside > 5000);
        QVERIFY(outside > 5000);
    }

    void tip_data()
    {
        QTest::addColumn<Form>("form");
        QTest::addColumn<double>("tip");

        using B = WQmlBalloon;
        const auto row = [](const char *what, const Form &form, double tip) {
            for (const bool far : {false, true}) {
                Form across = form;
                across.anchor = far ? B::Bottom : B::Top;
                QTest::addRow("%s, %s", what, far ? "bottom" : "top") << across << tip;
                Form down = form; // the same along the other axis
                down.anchor = far ? B::Right : B::Left;
                down.size.transpose();
                if (form.alignment == B::LeftAlignment)
                    down.alignment = B::TopAlignment;
                else if (form.alignment == B::RightAlignment)
                    down.alignment = B::BottomAlignment;
                QTest::addRow("%s, %s", what, far ? "right" : "left") << down << tip;
            }
        };
        row("centre", {.size = {100, 200}}, 50);
        row("start", {.size = {100, 200}, .alignment = B::LeftAlignment}, 10);
        row("end", {.size = {100, 200}, .alignment = B::RightAlignment}, 90);
        row("centre of an odd length", {.size = {101, 200}}, 50.5);
        row("centre of a fractional length", {.size = {100.5, 200}}, 50.25);
        row("centre with offset", {.size = {100, 200}, .offset = 7}, 57);
        row("start with offset", {.size = {100, 200}, .offset = 7, .alignment = B::LeftAlignment}, 17);
        row("end with offset", {.size = {100, 200}, .offset = -7, .alignment = B::RightAlignment}, 83);
        row("end of a fractional length", {.size = {100.5, 200}, .offset = -7, .alignment = B::RightAlignment}, 83.5);
        row("start, kept clear of the corner",
            {.size = {100, 200}, .arrow = 12, .radius = 16, .alignment = B::LeftAlignment}, 28);
        row("end, kept clear of the corner",
            {.size = {100, 200}, .arrow = 12, .radius = 16, .alignment = B::RightAlignment}, 72);
        row("far before the start", {.size = {100, 200}, .offset = -1000, .arrow = 12, .radius = 16}, 28);
        row("far behind the end", {.size = {100, 200}, .offset = 1000, .arrow = 12, .radius = 16}, 72);
        row("just inside the start", {.size = {100, 200}, .offset = -21, .arrow = 12, .radius = 16}, 29);
        row("on the start", {.size = {100, 200}, .offset = -22, .arrow = 12, .radius = 16}, 28);
        row("just before the start", {.size = {100, 200}, .offset = -23, .arrow = 12, .radius = 16}, 28);
        row("just inside the end", {.size = {100, 200}, .offset = 21, .arrow = 12, .radius = 16}, 71);
        row("just behind the end", {.size = {100, 200}, .offset = 23, .arrow = 12, .radius = 16}, 72);
        row("the largest offset",
            {.size = {100, 200}, .offset = INT_MAX, .arrow = 12, .radius = 16, .alignment = B::LeftAlignment}, 72);
        row("the smallest offset",
            {.size = {100, 200}, .offset = INT_MIN, .arrow = 12, .radius = 16, .alignment = B::RightAlignment}, 28);

        // Too short for arrow and corners: 40 - 28 = 12 is below 28.
        row("too short, before the lower bound", {.size = {40, 200}, .arrow = 12, .radius = 16}, 28);
        row("too short, on the lower bound", {.size = {40, 200}, .offset = 8, .arrow = 12, .radius = 16}, 12);
        row("too short, just before it", {.size = {40, 200}, .offset = 7, .arrow = 12, .radius = 16}, 28);
        row("too short, behind it", {.size = {40, 200}, .offset = 100, .arrow = 12, .radius = 16}, 12);
        row("too short, end", {.size = {40, 200}, .arrow = 12, .radius = 16, .alignment = B::RightAlignment}, 12);
        row("too short, start", {.size = {40, 200}, .arrow = 12, .radius = 16, .alignment = B::LeftAlignment}, 28);
        row("unknown alignment", {.size = {100, 200}, .alignment = UnknownAlignment}, 50);

        const auto mismatch = [](const char *what, Anchor anchor, Alignment alignment) {
            const Form form{.size = {140, 140}, .offset = 5, .anchor = anchor, .alignment = alignment};
            QTest::addRow("centre for want of a fit, %s", what) << form << 75.0;
        };
        mismatch("top with top", B::Top, B::TopAlignment);
        mismatch("top with bottom", B::Top, B::BottomAlignment);
        mismatch("bottom with top", B::Bottom, B::TopAlignment);
        mismatch("bottom with bottom", B::Bottom, B::BottomAlignment);
        mismatch("left with left", B::Left, B::LeftAlignment);
        mismatch("left with right", B::Left, B::RightAlignment);
        mismatch("right with left", B::Right, B::LeftAlignment);
        mismatch("right with right", B::Right, B::RightAlignment);
    }

    // Bounds that cross are not symmetric: the lower one wins only over positions below it.
    void tip()
    {
        QFETCH(const Form, form);
        QFETCH(const double, tip);
        WQmlBalloon balloon;
        form.applyTo(balloon);
        balloon.setBackgroundColor(Qt::black);
        const double painted = paintedTip(form, balloon);
        QVERIFY2(std::abs(painted - tip) < 0.05, qPrintable(u"the tip is at %1, not %2"_s.arg(painted).arg(tip)));
    }

    void tipTouchesTheEdge_data()
    {
        QTest::addColumn<Anchor>("anchor");
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<QPoint>("outward");

        QTest::newRow("top") << WQmlBalloon::Top << QPoint(200, 0) << QPoint(0, -1);
        QTest::newRow("bottom") << WQmlBalloon::Bottom << QPoint(200, 399) << QPoint(0, 1);
        QTest::newRow("left") << WQmlBalloon::Left << QPoint(0, 200) << QPoint(-1, 0);
        QTest::newRow("right") << WQmlBalloon::Right << QPoint(399, 200) << QPoint(1, 0);
    }

    void tipTouchesTheEdge()
    {
        QFETCH(const Anchor, anchor);
        QFETCH(const QPoint, pixel);
        QFETCH(const QPoint, outward);
        WQmlBalloon balloon;
        balloon.setSize({100, 100});
        balloon.setArrowAnchor(anchor);
        balloon.setBackgroundColor(Qt::black);
        const QImage image = picture(balloon, 4);
        const QPoint onImage = pixel + QPoint(4 * margin, 4 * margin);
        QVERIFY(image.pixelColor(onImage).alpha() > 0);
        QCOMPARE(image.pixelColor(onImage + outward), QColor(Qt::transparent));
    }

    void withoutArrowTheSizeIsTruncated_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QSize>("painted");

        QTest::newRow("whole") << QSizeF(10, 20) << QSize(10, 20);
        QTest::newRow("10.7 x 20.2") << QSizeF(10.7, 20.2) << QSize(10, 20);
        QTest::newRow("10.999 x 20.5") << QSizeF(10.999, 20.5) << QSize(10, 20);
    }

    void withoutArrowTheSizeIsTruncated()
    {
        QFETCH(const QSizeF, size);
        QFETCH(const QSize, painted);
        WQmlBalloon balloon;
        balloon.setSize(size);
        balloon.setArrowAnchor(WQmlBalloon::None);
        balloon.setBackgroundColor(Qt::red);
        QImage expected = canvas(size, 1);
        QPainter(&expected).fillRect(QRect(QPoint(margin, margin), painted), Qt::red);
        COMPARE_IMAGES(picture(balloon), expected);
    }

    // Unlike none, an edge that does not exist keeps the fraction of the size.
    void unknownAnchorPaintsTheFractionalSize()
    {
        WQmlBalloon balloon;
        balloon.setSize({10.5, 20});
        balloon.setArrowAnchor(UnknownAnchor);
        balloon.setBackgroundColor(Qt::black);
        const QImage image = picture(balloon);
        QCOMPARE(pixel(image, 9, 10), QColor(Qt::black));
        QVERIFY(std::abs(pixel(image, 10, 10).alpha() - 128) <= 2);
        QCOMPARE(pixel(image, 11, 10).alpha(), 0);
    }

    // Half of the border lies outside the item.
    void borderIsCentredOnTheEdge_data()
    {
        QTest::addColumn<Anchor>("anchor");
        QTest::newRow("no arrow") << WQmlBalloon::None;
        QTest::newRow("unknown edge") << UnknownAnchor;
        QTest::newRow("arrow on the other side") << WQmlBalloon::Right;
    }

    void borderIsCentredOnTheEdge()
    {
        QFETCH(const Anchor, anchor);
        WQmlBalloon balloon;
        balloon.setSize({100, 80});
        balloon.setArrowAnchor(anchor);
        balloon.setBorderWidth(6);
        balloon.setBorderColor(Qt::blue);
        balloon.setBackgroundColor(Qt::red);
        const QImage image = picture(balloon);
        QCOMPARE(pixel(image, -4, 40).alpha(), 0);
        QCOMPARE(pixel(image, -3, 40), QColor(Qt::blue));
        QCOMPARE(pixel(image, 2, 40), QColor(Qt::blue));
        QCOMPARE(pixel(image, 3, 40), QColor(Qt::red));
    }

    void borderOfWidthZeroIsAHairline_data()
    {
        QTest::addColumn<double>("scale");
        QTest::newRow("1") << 1.0;
        QTest::newRow("3") << 3.0;
    }

    void borderOfWidthZeroIsAHairline()
    {
        QFETCH(const double, scale);
        WQmlBalloon balloon;
        balloon.setSize({100, 80});
        balloon.setArrowAnchor(WQmlBalloon::None);
        balloon.setBorderWidth(0);
        balloon.setBorderColor(Qt::black);
        const QImage image = picture(balloon, scale);
        int sum = 0;
        for (int x = 0; x < image.width() / 2; ++x)
            sum += image.pixelColor(x, image.height() / 2).alpha();
        QVERIFY2(std::abs(sum - 255) <= 2, qPrintable(QString::number(sum)));
    }

    // Painting changes the painter it is given, which belongs to the item for that one call.
    void painterState()
    {
        WQmlBalloon balloon;
        balloon.setSize({50, 40});
        balloon.setBackgroundColor(Fill);
        balloon.setBorderColor(Line);
        balloon.setBorderWidth(3);
        QImage image = canvas(balloon.size(), 1);
        QPainter painter(&image);
        balloon.paint(&painter);
        QPen pen(Line);
        pen.setWidth(3);
        QCOMPARE(painter.pen(), pen);
        QCOMPARE(painter.brush(), QBrush(Fill, Qt::SolidPattern));
        QVERIFY(painter.testRenderHint(QPainter::Antialiasing));
    }

    void arrowTypes_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<Anchor>("anchor");

        QTest::newRow("none") << int(Qt::NoArrow) << WQmlBalloon::None;
        QTest::newRow("up") << int(Qt::UpArrow) << WQmlBalloon::Top;
        QTest::newRow("down") << int(Qt::DownArrow) << WQmlBalloon::Bottom;
        QTest::newRow("left") << int(Qt::LeftArrow) << WQmlBalloon::Left;
        QTest::newRow("right") << int(Qt::RightArrow) << WQmlBalloon::Right;
        for (int type : {5, 6, 7}) // the values that fit the bits of Qt's type
            QTest::addRow("unknown %d", type) << type << WQmlBalloon::None;
    }

    void arrowTypes()
    {
        QFETCH(const int, type);
        QFETCH(const Anchor, anchor);
        QCOMPARE(WQmlBalloon::arrowAnchorFromArrowType(Qt::ArrowType(type)), anchor);
    }

    void anchors_data()
    {
        QTest::addColumn<Anchor>("anchor");
        QTest::addColumn<int>("type");
        QTest::addColumn<Anchor>("opposite");

        using B = WQmlBalloon;
        QTest::newRow("none") << B::None << int(Qt::NoArrow) << B::None;
        QTest::newRow("top") << B::Top << int(Qt::UpArrow) << B::Bottom;
        QTest::newRow("bottom") << B::Bottom << int(Qt::DownArrow) << B::Top;
        QTest::newRow("left") << B::Left << int(Qt::LeftArrow) << B::Right;
        QTest::newRow("right") << B::Right << int(Qt::RightArrow) << B::Left;
        for (int value : {-1, 5, 9, INT_MIN, INT_MAX})
            QTest::addRow("unknown %d", value) << Anchor(value) << int(Qt::NoArrow) << B::None;
    }

    void anchors()
    {
        QFETCH(const Anchor, anchor);
        QFETCH(const int, type);
        QFETCH(const Anchor, opposite);
        QCOMPARE(int(WQmlBalloon::arrowTypeFromArrowAnchor(anchor)), type);
        QCOMPARE(WQmlBalloon::flipAnchor(anchor), opposite);
    }

    void popupPosition_data()
    {
        QTest::addColumn<Anchor>("anchor");
        QTest::addColumn<Alignment>("alignment");
        QTest::addColumn<QPoint>("position");

        // The item covers 100..110 x 200..206, its middle is at (105, 203); the popup is 41 x 31, the offset 3, the
        // arrow 8.
        using B = WQmlBalloon;
        const auto row = [](Anchor anchor, Alignment alignment, int x, int y) {
            QTest::addRow("%s, %s", qPrintable(name(anchor)), qPrintable(name(alignment)))
                << anchor << alignment << QPoint(x, y);
        };
        const std::pair<Anchor, int> horizontal[] = {
            {B::None, 200}, {B::Top, 206}, {B::Bottom, 169}, {UnknownAnchor, 200}};
        for (const auto &[anchor, y] : horizontal) {
            row(anchor, B::LeftAlignment, 94, y);
            row(anchor, B::CenterAlignment, 82, y);
            row(anchor, B::RightAlignment, 69, y);
            row(anchor, B::TopAlignment, 82, y);
            row(anchor, B::BottomAlignment, 82, y);
            row(anchor, UnknownAlignment, 82, y);
        }
        const std::pair<Anchor, int> vertical[] = {{B::Left, 110}, {B::Right, 59}};
        for (const auto &[anchor, x] : vertical) {
            row(anchor, B::LeftAlignment, x, 185);
            row(anchor, B::CenterAlignment, x, 185);
            row(anchor, B::RightAlignment, x, 185);
            row(anchor, B::TopAlignment, x, 192);
            row(anchor, B::BottomAlignment, x, 177);
            row(anchor, UnknownAlignment, x, 185);
        }
    }

    void popupPosition()
    {
        QFETCH(const Anchor, anchor);
        QFETCH(const Alignment, alignment);
        QFETCH(const QPoint, position);
        QQuickWindow window;
        window.setPosition(90, 180);
        QQuickItem item(window.contentItem());
        item.setPosition({10, 20});
        item.setSize({11, 7});
        QCOMPARE(WQmlBalloon::calcArrowPos(&item, QSize(41, 31), anchor, alignment, 3, 8), position);
    }

    void popupPositionOfItem_data()
    {
        QTest::addColumn<QPoint>("window");
        QTest::addColumn<QRectF>("item");
        QTest::addColumn<QSize>("popup");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QPoint>("below");
        QTest::addColumn<QPoint>("above");
        QTest::addColumn<QPoint>("rightOf");
        QTest::addColumn<QPoint>("leftOf");

        QTest::newRow("11 wide at 100") << QPoint(100, 50) << QRectF(0, 0, 11, 11) << QSize(0, 0) << 0
                                        << QPoint(105, 60) << QPoint(105, 50) << QPoint(110, 55) << QPoint(100, 55);
        QTest::newRow("even") << QPoint(100, 50) << QRectF(0, 0, 10, 10) << QSize(40, 30) << 0 << QPoint(84, 59)
                              << QPoint(84, 20) << QPoint(109, 39) << QPoint(60, 39);
        QTest::newRow("odd popup") << QPoint(100, 50) << QRectF(0, 0, 10, 10) << QSize(41, 31) << 0 << QPoint(84, 59)
                                   << QPoint(84, 19) << QPoint(109, 39) << QPoint(59, 39);
        QTest::newRow("no size") << QPoint(100, 50) << QRectF(4, 6, 0, 0) << QSize(40, 30) << 0 << QPoint(83, 55)
                                 << QPoint(83, 26) << QPoint(103, 40) << QPoint(64, 40);
        QTest::newRow("negative, halves and fractions")
            << QPoint(-1500, -37) << QRectF(3.6, 2.5, 10.5, 6.4) << QSize(40, 30) << 0 << QPoint(-1511, -30)
            << QPoint(-1511, -65) << QPoint(-1486, -48) << QPoint(-1536, -48);
        QTest::newRow("across the origin") << QPoint(-3, -2) << QRectF(0, 0, 5, 3) << QSize(7, 5) << 0 << QPoint(-4, 0)
                                           << QPoint(-4, -7) << QPoint(1, -3) << QPoint(-10, -3);
        QTest::newRow("negative offset") << QPoint(100, 50) << QRectF(0, 0, 11, 11) << QSize(40, 30) << -9
                                         << QPoint(94, 60) << QPoint(94, 20) << QPoint(110, 49) << QPoint(60, 49);
    }

    void popupPositionOfItem()
    {
        QFETCH(const QPoint, window);
        QFETCH(const QRectF, item);
        QFETCH(const QSize, popup);
        QFETCH(const int, offset);
        QFETCH(const QPoint, below);
        QFETCH(const QPoint, above);
        QFETCH(const QPoint, rightOf);
        QFETCH(const QPoint, leftOf);
        QQuickWindow view;
        view.setPosition(window);
        QQuickItem target(view.contentItem());
        target.setPosition(item.topLeft());
        target.setSize(item.size());
        const auto position = [&](Anchor anchor) {
            return WQmlBalloon::calcArrowPos(&target, popup, anchor, WQmlBalloon::CenterAlignment, offset, 10);
        };
        QCOMPARE(position(WQmlBalloon::Top), below);
        QCOMPARE(position(WQmlBalloon::Bottom), above);
        QCOMPARE(position(WQmlBalloon::Left), rightOf);
        QCOMPARE(position(WQmlBalloon::Right), leftOf);
    }

    void popupPositionWithoutItem()
    {
        for (const Anchor anchor : Anchors) {
            for (const Alignment alignment : Alignments)
                QCOMPARE(WQmlBalloon::calcArrowPos(nullptr, QSize(41, 31), anchor, alignment, 3, 8), QPoint(0, 0));
        }
    }

    // Only the corner is mapped; the size is the item's own.
    void popupPositionOfTransformedItem_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<double>("rotation");
        QTest::addColumn<QPoint>("position");

        QTest::newRow("plain") << 1.0 << 0.0 << QPoint(110, 220);
        QTest::newRow("twice as large") << 2.0 << 0.0 << QPoint(105, 215);
        QTest::newRow("upside down") << 1.0 << 180.0 << QPoint(120, 230);
    }

    void popupPositionOfTransformedItem()
    {
        QFETCH(const double, scale);
        QFETCH(const double, rotation);
        QFETCH(const QPoint, position);
        QQuickWindow window;
        window.setPosition(90, 190);
        QQuickItem item(window.contentItem());
        item.setPosition({20, 30});
        item.setSize({10, 10});
        item.setScale(scale);
        item.setRotation(rotation);
        QCOMPARE(WQmlBalloon::calcArrowPos(&item, QSize(), WQmlBalloon::None, WQmlBalloon::CenterAlignment, 0, 0).y(),
                 position.y());
        QCOMPARE(
            WQmlBalloon::calcArrowPos(&item, QSize(0, 0), WQmlBalloon::Right, WQmlBalloon::CenterAlignment, 0, 0).x(),
            position.x());
        QCOMPARE(
            WQmlBalloon::calcArrowPos(&item, QSize(0, 0), WQmlBalloon::Left, WQmlBalloon::CenterAlignment, 0, 0).x(),
            position.x() + 9);
    }

    void popupPositionInAShownWindow()
    {
        QQuickItem item;
        item.setPosition({15, 25});
        item.setSize({30, 20});
        Stage stage(item);
        QVERIFY(stage.isReady());
        const QRect onScreen(item.window()->mapToGlobal(QPoint(15, 25)), QSize(30, 20));
        QCOMPARE(WQmlBalloon::calcArrowPos(&item, QSize(40, 30), WQmlBalloon::Top, WQmlBalloon::LeftAlignment, 2, 6),
                 QPoint(onScreen.right() - 15 - 2 - 6, onScreen.bottom()));
    }
};

LUMAKIT_TEST_MAIN(tst_WQmlBalloon)

#include "tst_wqmlballoon.moc"
