#include "PaintedItems.h"

#include <MetaDescription.h>
#include <Pixels.h>
#include <TestCase.h>
#include <WQmlHalfPill.h>

#include <QPainterPath>
#include <QQmlComponent>

#include <functional>

using namespace Qt::StringLiterals;
using namespace PaintedItems;

using Edge = WQmlHalfPill::RoundEdge;
using Pill = Counted<WQmlHalfPill>;
using Change = std::function<void(WQmlHalfPill &)>;

Q_DECLARE_METATYPE(Change)

namespace {

constexpr auto UnknownEdge = Edge(7);
constexpr Edge Edges[] = {WQmlHalfPill::Left, WQmlHalfPill::Right, WQmlHalfPill::None, UnknownEdge};

constexpr QColor Fill(0x40, 0x80, 0xc0, 0x80);
constexpr QColor Line(0xc0, 0x20, 0x30, 0xa0);

QString name(Edge edge)
{
    const char *key = QMetaEnum::fromType<Edge>().valueToKey(edge);
    return key ? QString::fromLatin1(key) : u"unknown %1"_s.arg(int(edge));
}

struct Form
{
    QSizeF size;
    int border = 1;
    double scale = 1;
    Edge edge = WQmlHalfPill::Left;
    bool left = true;
    bool top = true;
    bool right = true;
    bool bottom = true;

    QString text() const
    {
        QStringList sides;
        for (const auto &[side, on] :
             {std::pair(u"left"_s, left), {u"top"_s, top}, {u"right"_s, right}, {u"bottom"_s, bottom}}) {
            if (on)
                sides << side;
        }
        return u"%1, %2 x %3, border %4 (%5), scale %6"_s.arg(
            name(edge), QString::number(size.width()), QString::number(size.height()), QString::number(border),
            sides.isEmpty() ? u"no side"_s : sides.join(u' '), QString::number(scale));
    }
    void applyTo(WQmlHalfPill &pill) const
    {
        pill.setSize(size);
        pill.setProperty("borderLeft", left);
        pill.setProperty("borderTop", top);
        pill.setProperty("borderRight", right);
        pill.setProperty("borderBottom", bottom);
        pill.setProperty("borderWidth", border);
        pill.setProperty("edge", QVariant::fromValue(edge));
    }
};

void fillExpected(QPainter &painter, const Form &form, const QColor &fill)
{
    const double w = form.size.width();
    const double h = form.size.height();
    const double b = form.border;
    painter.setPen(QColor(0, 0, 0, 0));
    painter.setBrush(fill);

    painter.setRenderHint(QPainter::Antialiasing, true);
    if (form.edge == WQmlHalfPill::Left) {
        const double d = form.left ? b / 2 : 0;
        painter.drawEllipse(QRectF(d, d, h, h - d));
    } else if (form.edge == WQmlHalfPill::Right) {
        const double d = form.right ? b / 2 : 0;
        painter.drawEllipse(QRectF(w - h - d, d, h, h - d));
    }

    painter.setRenderHint(QPainter::Antialiasing, false);
    if (form.edge == WQmlHalfPill::Left)
        painter.drawRect(QRectF(b + h / 2, 0, w, h));
    else if (form.edge == WQmlHalfPill::Right)
        painter.drawRect(QRectF(0, 0, w - (b + h / 2), h));
    else
        painter.drawRect(QRectF(0, 0, w, h));
}

void strokeExpected(QPainter &painter, const Form &form, const QColor &line)
{
    const double w = form.size.width();
    const double h = form.size.height();
    const double b = form.border;
    QRectF frame(-b / 2, b / 2, w, h);
    if (form.edge == WQmlHalfPill::Left)
        frame = QRectF(h / 2 + b - b / 2, b / 2, w, h);
    else if (form.edge == WQmlHalfPill::Right)
        frame = QRectF(-b / 2, b / 2, w - (h / 2 + b), h);

    QList<QLineF> lines;
    if (form.top)
        lines << QLineF(frame.x(), frame.y(), frame.width(), frame.y());
    if (form.bottom)
        lines << QLineF(frame.x(), frame.height() - b / 2, frame.width(), frame.height() - b / 2);
    if (form.right && form.edge != WQmlHalfPill::Right)
        lines << QLineF(frame.width() - b / 2, frame.y(), frame.width() - b / 2, frame.height());
    if (form.left && form.edge != WQmlHalfPill::Left)
        lines << QLineF(frame.x() + b, frame.y(), frame.x() + b, frame.height());

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(line, b, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (qsizetype count = 1; count <= lines.size(); ++count) {
        QPainterPath path;
        for (const QLineF &side : lines.first(count)) {
            path.moveTo(side.p1());
            path.lineTo(side.p2());
        }
        painter.drawPath(path);
    }
    if (form.edge == WQmlHalfPill::Left && form.left)
        painter.drawArc(QRectF(b / 2, b / 2, h, h - b), 1440, 2880);
    if (form.edge == WQmlHalfPill::Right && form.right)
        painter.drawArc(QRectF(w - h - b / 2, b / 2, h, h - b), 1440, -2880);
}

QImage drawn(const QSizeF &size, double scale, const std::function<void(QPainter &)> &draw)
{
    QImage image = canvas(size, scale);
    QPainter painter(&image);
    painter.setTransform(toCanvas(scale));
    draw(painter);
    return image;
}

// Every combination of sides for each form and end.
void addForms(std::initializer_list<Form> forms)
{
    QTest::addColumn<Form>("form");
    for (Form form : forms) {
        for (const Edge edge : Edges) {
            form.edge = edge;
            for (int sides = 0; sides < 16; ++sides) {
                form.left = sides & 1;
                form.top = sides & 2;
                form.right = sides & 4;
                form.bottom = sides & 8;
                QTest::newRow(qPrintable(form.text())) << form;
            }
        }
    }
}

void addWrites(bool qml)
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("signal");

    struct
    {
        const char *property;
        int value;
        const char *signal;
    } const writes[] = {
        {"borderBottom", false, "borderChanged"}, {"borderLeft", false, "borderChanged"},
        {"borderRight", false, "borderChanged"},  {"borderTop", false, "borderChanged"},
        {"borderWidth", 6, "borderChanged"},      {"edge", WQmlHalfPill::Right, "edgeChanged"},
    };
    for (const auto &write : writes) {
        const QString property = QString::fromLatin1(write.property);
        const QString statement = u"%1 = %2"_s.arg(property).arg(write.value);
        QTest::addRow("%s, as a property", write.property)
            << Change([=](WQmlHalfPill &pill) { pill.setProperty(write.property, write.value); })
            << QString::fromLatin1(write.signal);
        if (qml) {
            QTest::addRow("%s, from QML", write.property)
                << Change([=](WQmlHalfPill &pill) { runQml(&pill, statement); }) << QString::fromLatin1(write.signal);
        }
    }
}

struct Colors
{
    const char *property;
    void (WQmlHalfPill::*set)(const QColor &);
    QColor (WQmlHalfPill::*get)() const;
    void (WQmlHalfPill::*signal)();
};

constexpr Colors ColorProperties[] = {
    {"backgroundColor", &WQmlHalfPill::setBackgroundColor, &WQmlHalfPill::backgroundColor,
     &WQmlHalfPill::backgroundColorChanged},
    {"borderColor", &WQmlHalfPill::setBorderColor, &WQmlHalfPill::borderColor, &WQmlHalfPill::borderColorChanged},
};

void addColors()
{
    QTest::addColumn<Colors>("colors");
    for (const Colors &colors : ColorProperties)
        QTest::newRow(colors.property) << colors;
}

} // namespace

class tst_WQmlHalfPill : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject()
    {
        const QMetaObject &meta = WQmlHalfPill::staticMetaObject;
        QCOMPARE(meta.superClass(), &QQuickPaintedItem::staticMetaObject);
        QCOMPARE(MetaDescription::properties(meta),
                 (QStringList{
                     u"QColor backgroundColor, backgroundColorChanged"_s,
                     u"QColor borderColor, borderColorChanged"_s,
                     u"bool borderBottom, borderChanged"_s,
                     u"bool borderLeft, borderChanged"_s,
                     u"bool borderRight, borderChanged"_s,
                     u"bool borderTop, borderChanged"_s,
                     u"int borderWidth, borderChanged"_s,
                     u"WQmlHalfPill::RoundEdge edge, edgeChanged"_s,
                 }));
        QCOMPARE(MetaDescription::signalsOf(meta),
                 (QStringList{
                     u"void backgroundColorChanged()"_s,
                     u"void borderColorChanged()"_s,
                     u"void borderChanged()"_s,
                     u"void edgeChanged()"_s,
                 }));
        QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
        QCOMPARE(MetaDescription::invokables(meta), QStringList());
        QCOMPARE(MetaDescription::enums(meta), QStringList(u"RoundEdge: Left 0, Right 1, None 2"_s));
    }

    void defaults()
    {
        QQuickItem parent;
        const WQmlHalfPill pill(&parent);
        QCOMPARE(pill.parentItem(), &parent);
        QCOMPARE(pill.parent(), &parent);
        QCOMPARE(pill.backgroundColor(), QColor(Qt::transparent));
        QCOMPARE(pill.borderColor(), QColor(Qt::transparent));
        for (const char *side : {"borderBottom", "borderLeft", "borderRight", "borderTop"})
            QCOMPARE(pill.property(side), QVariant(true));
        QCOMPARE(pill.property("borderWidth"), QVariant(1));
        QCOMPARE(pill.property("edge").value<Edge>(), WQmlHalfPill::Left);
        QCOMPARE(pill.size(), QSizeF(0, 0));
        QCOMPARE(WQmlHalfPill().parentItem(), nullptr);
    }

    void typeInQml()
    {
        qmlRegisterType<WQmlHalfPill>("Shapes", 1, 0, "HalfPill");
        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick\n"
                          "import Shapes 1.0\n"
                          "HalfPill { edge: HalfPill.Right; backgroundColor: '#102030'; borderColor: 'red'\n"
                          "  borderWidth: 3; borderTop: false\n"
                          "  readonly property var edges: [HalfPill.Left, HalfPill.Right, HalfPill.None] }",
                          QUrl());
        const std::unique_ptr<QObject> object(component.create());
        const auto *pill = qobject_cast<WQmlHalfPill *>(object.get());
        QVERIFY2(pill, qPrintable(component.errorString()));
        QCOMPARE(pill->property("edge").value<Edge>(), WQmlHalfPill::Right);
        QCOMPARE(pill->backgroundColor(), QColor(0x10, 0x20, 0x30));
        QCOMPARE(pill->borderColor(), QColor(Qt::red));
        QCOMPARE(pill->property("borderWidth"), QVariant(3));
        QCOMPARE(pill->property("borderTop"), QVariant(false));
        // Not those of the same name that every item has.
        QCOMPARE(pill->property("edges").value<QJSValue>().toVariant().toList(), (QVariantList{0, 1, 2}));
    }

    void colorsEmitAlways_data() { addColors(); }

    void colorsEmitAlways()
    {
        QFETCH(const Colors, colors);
        WQmlHalfPill pill;
        SignalCounts counts(pill, WQmlHalfPill::staticMetaObject);
        const QStringList once(QString::fromLatin1(colors.property) + u"Changed 1"_s);
        QColor seen;
        connect(&pill, colors.signal, &pill, [&] { seen = (pill.*colors.get)(); });
        for (const QColor &color : {QColor(Qt::transparent), QColor(Qt::red), QColor(Qt::red), QColor()}) {
            (pill.*colors.set)(color);
            QCOMPARE(counts.take(), once);
            QCOMPARE(seen, color);
        }
        pill.setProperty(colors.property, QColor());
        QCOMPARE(counts.take(), once);
    }

    void colorsRepaintAlways_data() { addColors(); }

    void colorsRepaintAlways()
    {
        QFETCH(const Colors, colors);
        Pill pill;
        pill.setSize({120, 40});
        Stage stage(pill);
        QVERIFY(stage.isReady());
        const int before = pill.paints();
        QVERIFY(before > 0);
        stage.frame();
        QCOMPARE(pill.paints(), before);

        (pill.*colors.set)(Qt::red);
        stage.frame();
        QCOMPARE(pill.paints(), before + 1);
        (pill.*colors.set)(Qt::red); // the colour that is there
        stage.frame();
        QCOMPARE(pill.paints(), before + 2);
    }

    void signalComesBeforeTheRepaint_data() { addColors(); }

    // A frame drawn from the handler of the signal does not paint the item, the next one does.
    void signalComesBeforeTheRepaint()
    {
        QFETCH(const Colors, colors);
        Pill pill;
        pill.setSize({120, 40});
        Stage stage(pill);
        QVERIFY(stage.isReady());
        const int before = pill.paints();
        int duringSignal = -1;
        connect(&pill, colors.signal, &pill, [&] {
            stage.frame();
            duringSignal = pill.paints();
        });
        (pill.*colors.set)(Qt::red);
        QCOMPARE(duringSignal, before);
        stage.frame();
        QCOMPARE(pill.paints(), before + 1);
    }

    void memberProperties_data() { addWrites(true); }

    void memberProperties()
    {
        QFETCH(const Change, change);
        QFETCH(const QString, signal);
        WQmlHalfPill pill;
        SignalCounts counts(pill, WQmlHalfPill::staticMetaObject);
        change(pill);
        QCOMPARE(counts.take(), QStringList(signal + u" 1"_s));
        change(pill); // the value that is there
        QCOMPARE(counts.take(), QStringList());
    }

    void memberPropertiesDoNotRepaint_data() { addWrites(true); }

    void memberPropertiesDoNotRepaint()
    {
        QFETCH(const Change, change);
        Pill pill;
        pill.setSize({120, 40});
        pill.setBackgroundColor(Qt::red);
        pill.setBorderColor(Qt::blue);
        Stage stage(pill);
        QVERIFY(stage.isReady());
        const QImage shown = stage.frame();
        const int before = pill.paints();

        change(pill);
        const QImage unchanged = stage.frame();
        QCOMPARE(pill.paints(), before);
        COMPARE_IMAGES(unchanged, shown);

        pill.setBorderColor(Qt::blue); // brings it to the screen
        const QImage changed = stage.frame();
        QCOMPARE(pill.paints(), before + 1);
        QVERIFY(changed != shown);
    }

    void memberPropertiesShowWithTheNextSize_data() { addWrites(false); }

    void memberPropertiesShowWithTheNextSize()
    {
        QFETCH(const Change, change);
        Pill pill;
        pill.setSize({120, 40});
        Stage stage(pill);
        QVERIFY(stage.isReady());
        change(pill);
        const int before = pill.paints();
        stage.frame();
        QCOMPARE(pill.paints(), before);
        pill.setWidth(121);
        stage.frame();
        QCOMPARE(pill.paints(), before + 1);
    }

    void inAWindow_data() { addForms({{.size = {120, 41}, .border = 3}}); }

    // The item's bounds cut off what is painted outside: the fill that runs past the right side, the ends of lines.
    void inAWindow()
    {
        QFETCH(const Form, form);
        WQmlHalfPill pill;
        pill.setPosition({20, 30});
        pill.setBackgroundColor(QColor(0x40, 0x80, 0xc0));
        pill.setBorderColor(QColor(0xc0, 0x20, 0x30));
        form.applyTo(pill);
        Stage stage(pill);
        QVERIFY(stage.isReady());
        const QImage actual = stage.frame().convertToFormat(QImage::Format_ARGB32_Premultiplied);

        QImage item(form.size.toSize(), QImage::Format_ARGB32_Premultiplied);
        item.fill(Qt::transparent);
        QPainter itemPainter(&item);
        fillExpected(itemPainter, form, QColor(0x40, 0x80, 0xc0));
        strokeExpected(itemPainter, form, QColor(0xc0, 0x20, 0x30));
        itemPainter.end();
        QImage expected(actual.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::white);
        QPainter painter(&expected);
        painter.drawImage(20, 30, item);
        painter.end();
        COMPARE_IMAGES(actual, expected, 2);
    }

    void painting_data()
    {
        addForms({
            {.size = {120, 40}},
            {.size = {120, 40}, .border = 0, .scale = 2},
            {.size = {121, 41}, .border = 2, .scale = 1.25},
            {.size = {99.6, 33.3}, .border = 3},
            {.size = {90, 30}, .border = 8, .scale = 1.5},
            {.size = {20, 40}, .border = 2}, // narrower than high
            {.size = {5, 4}, .border = 6}, // a border thicker than the item
        });
    }

    void painting()
    {
        QFETCH(const Form, form);
        WQmlHalfPill pill;
        form.applyTo(pill);
        pill.setBackgroundColor(Fill);
        pill.setBorderColor(Line);
        const QImage actual = picture(pill, form.scale);
        QVERIFY(!Pixels::isBlank(actual));
        COMPARE_IMAGES(actual, drawn(form.size, form.scale, [&](QPainter &painter) {
                           fillExpected(painter, form, Fill);
                           strokeExpected(painter, form, Line);
                       }));
    }

    // The border is drawn with what is passed in, except for the end that is round.
    void drawBordersTakesItsArguments_data() { addForms({{.size = {80, 30}, .border = 4}}); }

    void drawBordersTakesItsArguments()
    {
        QFETCH(const Form, form);
        WQmlHalfPill pill;
        Form({.size = {10, 10},
              .border = 1,
              .edge = form.edge,
              .left = !form.left,
              .top = !form.top,
              .right = !form.right,
              .bottom = !form.bottom})
            .applyTo(pill);
        pill.setBorderColor(Qt::green);
        const QImage actual = drawn(form.size, 1, [&](QPainter &painter) {
            pill.drawBorders(&painter, form.size, Line, form.border, form.left, form.top, form.right, form.bottom);
        });
        COMPARE_IMAGES(actual, drawn(form.size, 1, [&](QPainter &painter) { strokeExpected(painter, form, Line); }));
    }

    void painterIsLeftAsItWas_data()
    {
        QTest::addColumn<Edge>("edge");
        for (const Edge edge : Edges)
            QTest::newRow(qPrintable(name(edge))) << edge;
    }

    void painterIsLeftAsItWas()
    {
        QFETCH(const Edge, edge);
        WQmlHalfPill pill;
        Form({.size = {80, 30}, .border = 4, .edge = edge}).applyTo(pill);
        drawn(pill.size(), 1, [&](QPainter &painter) {
            const QPen pen(Qt::green, 5);
            const QBrush brush(Qt::yellow);
            painter.setPen(pen);
            painter.setBrush(brush);
            pill.paint(&painter);
            QCOMPARE(painter.pen(), pen);
            QCOMPARE(painter.brush(), brush);
            QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
        });
    }

    // The fill of the bar keeps the painter's hints; the round end and the border are always smooth.
    void barFollowsTheHintsOfThePainter_data()
    {
        QTest::addColumn<bool>("smooth");
        QTest::addColumn<int>("alpha");
        QTest::newRow("smooth") << true << 128;
        QTest::newRow("sharp") << false << 255;
    }

    void barFollowsTheHintsOfThePainter()
    {
        QFETCH(const bool, smooth);
        QFETCH(const int, alpha);
        WQmlHalfPill pill;
        Form({.size = {80, 30.5}, .edge = WQmlHalfPill::None}).applyTo(pill);
        pill.setBackgroundColor(Qt::red);
        const QImage image = drawn(pill.size(), 1, [&](QPainter &painter) {
            painter.setRenderHint(QPainter::Antialiasing, smooth);
            pill.drawRect(&painter, pill.size());
        });
        QVERIFY(std::abs(pixel(image, 40, 30).alpha() - alpha) <= 2);
        QCOMPARE(pixel(image, 40, 29), QColor(Qt::red));
    }

    void filledExtents_data()
    {
        QTest::addColumn<Edge>("edge");
        QTest::addColumn<bool>("border");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("bottom");

        // 100 x 40 with a border of 8: the ellipse is 40 wide, and 36 high or 40 without the border.
        using P = WQmlHalfPill;
        QTest::newRow("left, middle of the ellipse") << P::Left << true << 24 << 4 << 39;
        QTest::newRow("left without border, middle of the ellipse") << P::Left << false << 20 << 0 << 39;
        QTest::newRow("left, first column of the bar") << P::Left << true << 28 << 0 << 39;
        QTest::newRow("left without border, first column of the bar") << P::Left << false << 28 << 0 << 39;
        QTest::newRow("left, last column") << P::Left << true << 99 << 0 << 39;
        QTest::newRow("left, past the item") << P::Left << true << 127 << 0 << 39;
        QTest::newRow("left, past the bar") << P::Left << true << 128 << -1 << -1;
        QTest::newRow("left, before the ellipse") << P::Left << true << 3 << -1 << -1;
        QTest::newRow("left without border, before the item") << P::Left << false << -1 << -1 << -1;
        QTest::newRow("right, first column") << P::Right << true << 0 << 0 << 39;
        QTest::newRow("right, last column of the bar") << P::Right << true << 71 << 0 << 39;
        QTest::newRow("right, middle of the ellipse") << P::Right << true << 76 << 4 << 39;
        QTest::newRow("right without border, middle of the ellipse") << P::Right << false << 80 << 0 << 39;
        QTest::newRow("right, behind the ellipse") << P::Right << true << 96 << -1 << -1;
        QTest::newRow("none, first column") << P::None << true << 0 << 0 << 39;
        QTest::newRow("none, last column") << P::None << true << 99 << 0 << 39;
        QTest::newRow("none, past the item") << P::None << true << 100 << -1 << -1;
        QTest::newRow("none, before the item") << P::None << true << -1 << -1 << -1;
    }

    // The ellipse is as wide as the item is high but loses the inset at its top only.
    void filledExtents()
    {
        QFETCH(const Edge, edge);
        QFETCH(const bool, border);
        QFETCH(const int, column);
        QFETCH(const int, top);
        QFETCH(const int, bottom);
        WQmlHalfPill pill;
        Form({.size = {100, 40}, .border = 8, .edge = edge, .left = border, .right = border}).applyTo(pill);
        pill.setBackgroundColor(Qt::red);
        const QImage image = picture(pill);
        int first = -1;
        int last = -1;
        for (int y = -margin; y < 40 + margin; ++y) {
            if (pixel(image, column, y).alpha() < 128)
                continue;
            first = first < 0 ? y : first;
            last = y;
        }
        QCOMPARE(first, top);
        QCOMPARE(last, bottom);
    }

    void lineExtents_data()
    {
        QTest::addColumn<Edge>("edge");
        QTest::addColumn<QRect>("top");
        QTest::addColumn<QRect>("bottom");
        QTest::addColumn<QRect>("left");
        QTest::addColumn<QRect>("right");

        // 100 x 40 with a border of 8: caps of 4 at the ends, which are at the width and the height of the frame.
        const auto span = [](int x1, int y1, int x2, int y2) { return QRect(QPoint(x1, y1), QPoint(x2 - 1, y2 - 1)); };
        QTest::newRow("left") << WQmlHalfPill::Left << span(20, 0, 104, 8) << span(20, 32, 104, 40) << QRect()
                              << span(92, 0, 100, 44);
        QTest::newRow("right") << WQmlHalfPill::Right << span(-8, 0, 76, 8) << span(-8, 32, 76, 40) << span(0, 0, 8, 44)
                               << QRect();
        QTest::newRow("none") << WQmlHalfPill::None << span(-8, 0, 104, 8) << span(-8, 32, 104, 40) << span(0, 0, 8, 44)
                              << span(92, 0, 100, 44);
        QTest::newRow("unknown") << UnknownEdge << span(-8, 0, 104, 8) << span(-8, 32, 104, 40) << span(0, 0, 8, 44)
                                 << span(92, 0, 100, 44);
    }

    // Lines end at the frame's width, not at its right edge.
    void lineExtents()
    {
        QFETCH(const Edge, edge);
        QFETCH(const QRect, top);
        QFETCH(const QRect, bottom);
        QFETCH(const QRect, left);
        QFETCH(const QRect, right);
        const QSizeF size(100, 40);
        WQmlHalfPill pill;
        pill.setProperty("edge", QVariant::fromValue(edge));
        const auto side = [&](bool onLeft, bool onTop, bool onRight, bool onBottom) {
            return drawn(size, 1, [&](QPainter &painter) {
                pill.drawBorders(&painter, size, Qt::blue, 8, onLeft, onTop, onRight, onBottom);
            });
        };
        const auto expected = [&](const QRect &rect) {
            return drawn(size, 1, [&](QPainter &painter) { painter.fillRect(rect, Qt::blue); });
        };
        COMPARE_IMAGES(side(false, true, false, false), expected(top));
        COMPARE_IMAGES(side(false, false, false, true), expected(bottom));
        if (edge != WQmlHalfPill::Left)
            COMPARE_IMAGES(side(true, false, false, false), expected(left));
        if (edge != WQmlHalfPill::Right)
            COMPARE_IMAGES(side(false, false, true, false), expected(right));
    }

    void roundEnd_data()
    {
        QTest::addColumn<Edge>("edge");
        QTest::addColumn<bool>("left");
        QTest::addColumn<bool>("right");
        QTest::addColumn<QPoint>("outermost");
        QTest::addColumn<bool>("drawn");

        // 100 x 40 with a border of 8: the middle of the line is 4 inside the item, at half of its height.
        using P = WQmlHalfPill;
        QTest::newRow("left") << P::Left << true << false << QPoint(4, 20) << true;
        QTest::newRow("left without border") << P::Left << false << true << QPoint(4, 20) << false;
        QTest::newRow("right") << P::Right << false << true << QPoint(95, 20) << true;
        QTest::newRow("right without border") << P::Right << true << false << QPoint(95, 20) << false;
    }

    // The side of the round end is an arc or nothing, never a straight line.
    void roundEnd()
    {
        QFETCH(const Edge, edge);
        QFETCH(const bool, left);
        QFETCH(const bool, right);
        QFETCH(const QPoint, outermost);
        QFETCH(const bool, drawn);
        WQmlHalfPill pill;
        Form(
            {.size = {100, 40}, .border = 8, .edge = edge, .left = left, .top = false, .right = right, .bottom = false})
            .applyTo(pill);
        pill.setBorderColor(Qt::blue);
        const QImage image = picture(pill);
        QCOMPARE(pixel(image, outermost.x(), outermost.y()), drawn ? QColor(Qt::blue) : QColor(Qt::transparent));
        QCOMPARE(pixel(image, outermost.x(), 2), QColor(Qt::transparent));
        QCOMPARE(pixel(image, outermost.x(), 38), QColor(Qt::transparent));
    }

    // Each side draws those before it again: seen where the colour is translucent.
    void earlierSidesDarken()
    {
        WQmlHalfPill pill;
        Form({.size = {100, 60}, .border = 6, .edge = WQmlHalfPill::None}).applyTo(pill);
        pill.setBorderColor(QColor(0, 0, 0, 128));
        const QImage image = picture(pill);
        const auto isAbout = [](int actual, int expected) { return std::abs(actual - expected) <= 2; };
        QVERIFY(isAbout(pixel(image, 50, 3).alpha(), 240)); // top, four times
        QVERIFY(isAbout(pixel(image, 50, 57).alpha(), 224)); // bottom, three times
        QVERIFY(isAbout(pixel(image, 97, 30).alpha(), 192)); // right, twice
        QVERIFY(isAbout(pixel(image, 3, 30).alpha(), 128)); // left, once
    }

    void earlierSidesStayWhereTheColorIsOpaque()
    {
        WQmlHalfPill pill;
        Form({.size = {100, 60}, .border = 6, .edge = WQmlHalfPill::None}).applyTo(pill);
        pill.setBorderColor(Qt::blue);
        const QImage image = picture(pill);
        for (const QPoint &point : {QPoint(50, 3), QPoint(50, 57), QPoint(97, 30), QPoint(3, 30)})
            QCOMPARE(pixel(image, point.x(), point.y()), QColor(Qt::blue));
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
        WQmlHalfPill pill;
        Form({.size = {100, 40},
              .border = 0,
              .edge = WQmlHalfPill::None,
              .left = false,
              .right = false,
              .bottom = false})
            .applyTo(pill);
        pill.setBorderColor(Qt::black);
        const QImage image = picture(pill, scale);
        int sum = 0;
        for (int y = 0; y < image.height(); ++y)
            sum += image.pixelColor(image.width() / 2, y).alpha();
        QVERIFY2(std::abs(sum - 255) <= 2, qPrintable(QString::number(sum)));
    }
};

LUMAKIT_TEST_MAIN(tst_WQmlHalfPill)

#include "tst_wqmlhalfpill.moc"
