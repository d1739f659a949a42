#include <ComponentTest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr double Ratio = 1.25;

struct Run
{
    QRgb color;
    int length;

    bool operator==(const Run &) const = default;
};

/// The colours along a line, a run for each.
QList<Run> runsAlong(const QImage &image, QPoint start, QPoint end)
{
    QList<Run> runs;
    const QPoint step = start.x() == end.x() ? QPoint(0, 1) : QPoint(1, 0);
    for (QPoint place = start; place != end; place += step) {
        const QRgb color = image.pixel(place);
        if (!runs.isEmpty() && runs.last().color == color)
            ++runs.last().length;
        else
            runs.append({color, 1});
    }
    return runs;
}

QByteArray text(const QList<Run> &runs)
{
    QByteArray text;
    for (const Run &run : runs)
        text += QByteArray::number(run.length) + " x " + QColor(run.color).name().toLatin1() + "  ";
    return text;
}

/// Nothing but what is around, one pixel of border if there is one, and what is inside.
bool isCrisp(const QList<Run> &runs)
{
    if (runs.size() == 3)
        return runs[0].color == runs[2].color;
    return runs.size() == 5 && runs[0].color == runs[4].color && runs[1] == runs[3] && runs[1].length == 1;
}

/// The largest of a channel.
int difference(const QImage &image, const QImage &other)
{
    int most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb one = image.pixel(x, y);
            const QRgb two = other.pixel(x, y);
            most = std::max({most, std::abs(qRed(one) - qRed(two)), std::abs(qGreen(one) - qGreen(two)),
                             std::abs(qBlue(one) - qBlue(two))});
        }
    }
    return most;
}

} // namespace

/// In a window with a fractional device pixel ratio.
class tst_Face : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void edgesAreCrisp_data();
    void edgesAreCrisp();
    void edgesThatMeetMeetOnThePixel();
    void inALayer();
    void iconsAreTheSameEverywhere_data();
    void iconsAreTheSameEverywhere();
    void aTurnedFaceStays();
    void comesAndGoes();
    void ringIsCrisp_data();
    void ringIsCrisp();

private:
    /// The line through the middle of the item and 6 pixels beyond its edges.
    QList<Run> runsThrough(const QQuickItem *item, Qt::Orientation orientation) const
    {
        const QImage image = window()->grabWindow();
        const QRectF rect = item->mapRectToScene(QRectF(QPointF(), item->size()));
        const QPointF reach =
            orientation == Qt::Vertical ? QPointF(0, rect.height() / 2 + 6) : QPointF(rect.width() / 2 + 6, 0);
        const auto pixel = [](const QPointF &place) { return QPoint(int(place.x() * Ratio), int(place.y() * Ratio)); };
        return runsAlong(image, pixel(rect.center() - reach), pixel(rect.center() + reach));
    }
};

void tst_Face::edgesAreCrisp_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::addColumn<QByteArray>("face");
    QTest::addColumn<bool>("hasRoundEnds");
    const auto row = [](const char *name, const QByteArray &control, const QByteArray &face, bool hasRoundEnds) {
        QTest::newRow(name) << control << face << hasRoundEnds;
    };
    row("pill", "LKPillButton { width: 82.6; buttonSize: LKButtonSize.S; buttonStyle: LKButtonStyle.Secondary",
        "background", true);
    row("round button",
        "LKRoundButton { width: 61; buttonSize: LKButtonSize.XS; buttonStyle: LKButtonStyle.OutlineJoin", "background",
        true);
    row("tool button", "LKToolButton { hoverOverride: true", "background", false);
    row("button", "WButton { width: 81; height: 27; radius: 4; borderWidth: 1", "background", false);
    row("text field", "WTextField { width: 121; height: 31", "background", false);
    row("check box", "WCheckBox { width: 60; height: 21; rightPadding: 6", "indicator", false);
    row("slider", "WSlider { width: 159; handleWidth: 0; value: 0", "background", true);
}

void tst_Face::edgesAreCrisp()
{
    QFETCH(const QByteArray, control);
    QFETCH(const QByteArray, face);
    QFETCH(const bool, hasRoundEnds);
    QVERIFY(show("Item { width: 300; height: 200; Item { objectName: 'around'; x: 30; y: 20; " + control
                 + "; objectName: 'control' } } }"));
    QCOMPARE(window()->effectiveDevicePixelRatio(), Ratio);
    moveMouseAway();
    auto *around = find(u"around"_s);
    auto *inside = find(u"control"_s);
    const auto *rectangle = inside->property(face).value<QQuickItem *>();
    QVERIFY(rectangle);
    for (const double place : {0.0, 0.3, 0.5, 0.6, 1.0, 2.0, 3.0}) {
        for (QQuickItem *moved : {inside, around}) {
            moved->setPosition({moved == around ? 30 + place : place, moved == around ? 20 + place : place});
            const auto down = runsThrough(rectangle, Qt::Vertical);
            QVERIFY2(isCrisp(down), "down at " + QByteArray::number(place) + ": " + text(down));
            if (hasRoundEnds)
                continue;
            const auto across = runsThrough(rectangle, Qt::Horizontal);
            QVERIFY2(isCrisp(across), "across at " + QByteArray::number(place) + ": " + text(across));
        }
    }
}

// No gap, and none over the other.
void tst_Face::edgesThatMeetMeetOnThePixel()
{
    QVERIFY(show("Item { width: 300; height: 200; Column { objectName: 'column'; x: 20; y: 20; Repeater { model: 4; "
                 "WButton { width: 60; height: 27; radius: 4; borderWidth: 1 } } } }"));
    const auto *column = find(u"column"_s);
    const auto runs = runsThrough(column, Qt::Vertical);
    QCOMPARE(runs.size(), 2 + 4 * 2 + 1);
    for (qsizetype i = 1; i < runs.size() - 1; i += 2)
        QCOMPARE(runs[i].length, i == 1 || i == runs.size() - 2 ? 1 : 2);
}

void tst_Face::iconsAreTheSameEverywhere_data()
{
    QTest::addColumn<QByteArray>("icon");
    QTest::newRow("icon") << QByteArray("WSvgIcon { width: 16; height: 16; svgName: 'settings-bold'");
    QTest::newRow("of a button") << QByteArray("LKRoundButton { width: 16; height: 16; buttonIcon: 'settings-bold';"
                                               "buttonStyle: LKButtonStyle.Ghost; buttonSize: LKButtonSize.S");
}

void tst_Face::iconsAreTheSameEverywhere()
{
    QFETCH(const QByteArray, icon);
    QVERIFY(show("Item { width: 300; height: 200; Item { objectName: 'around'; x: 40; y: 40;" + icon
                 + "; objectName: 'icon' } } }"));
    auto *around = find(u"around"_s);
    moveMouseAway();
    auto *inside = find(u"icon"_s);
    const auto shown = [&](QPoint corner) { return window()->grabWindow().copy(QRect(corner, QSize(20, 20))); };
    const QImage sharp = shown({50, 50});
    for (const double place : {0.1, 0.3, 0.4, 0.5, 0.7, 0.8}) {
        for (QQuickItem *moved : {inside, around}) {
            const double origin = moved == around ? 40 : 0;
            moved->setPosition({origin + place, origin + place});
            const int corner = 50 + int(std::floor(place * Ratio + 0.51));
            QCOMPARE_LE(difference(shown({corner, corner}), sharp), 2); // a place on a pixel has an error of its own
            moved->setPosition({origin, origin});
        }
    }
}

// What counts is the place in the layer's texture.
void tst_Face::inALayer()
{
    QVERIFY(show("Item { width: 300; height: 200; Item { x: 0.5; y: 0.5; Item { x: 31.5; y: 19.5; width: 120; "
                 "height: 80; layer.enabled: true; WButton { x: 4; y: 4.5; width: 80; height: 28; radius: 4; "
                 "borderWidth: 1; objectName: 'control' } } } }"));
    const auto runs = runsThrough(find(u"control"_s), Qt::Vertical);
    QVERIFY2(isCrisp(runs), text(runs));
}

void tst_Face::aTurnedFaceStays()
{
    QVERIFY(show("Item { width: 300; height: 200; Item { objectName: 'around'; x: 30; y: 20; WButton { y: 0.5; width: "
                 "80; height: 28; radius: 4; borderWidth: 1; objectName: 'control' } } }"));
    auto *around = find(u"around"_s);
    const auto *control = find(u"control"_s);
    const auto before = runsThrough(control, Qt::Vertical);
    QVERIFY2(isCrisp(before), text(before));
    around->setScale(1.01);
    QVERIFY(!isCrisp(runsThrough(control, Qt::Vertical)));
    around->setScale(1);
    QCOMPARE(text(runsThrough(control, Qt::Vertical)), text(before));
}

void tst_Face::comesAndGoes()
{
    QVERIFY(show("Item { width: 300; height: 200; LKRoundButton { x: 30; y: 20.5; buttonStyle: "
                 "LKButtonStyle.Secondary; objectName: 'control' } }"));
    auto *control = find(u"control"_s);
    const auto before = runsThrough(control, Qt::Vertical);
    QVERIFY2(isCrisp(before), text(before));
    auto *rectangle = control->property("background").value<QQuickItem *>();
    rectangle->setHeight(0);
    QCOMPARE(runsThrough(control, Qt::Vertical).size(), 1);
    rectangle->setHeight(control->height());
    QCOMPARE(text(runsThrough(control, Qt::Vertical)), text(before));
    rectangle->setVisible(false);
    QCOMPARE(runsThrough(control, Qt::Vertical).size(), 1);
    rectangle->setVisible(true);
    QCOMPARE(text(runsThrough(control, Qt::Vertical)), text(before));
}

void tst_Face::ringIsCrisp_data()
{
    QTest::addColumn<QByteArray>("control");
    QTest::newRow("pill") << QByteArray("LKPillButton { width: 82.6; buttonSize: LKButtonSize.S; x: 30.2; y: 20.5");
    QTest::newRow("large pill") << QByteArray("LKPillButton { width: 90; buttonSize: LKButtonSize.XL; x: 30; y: 21");
    QTest::newRow("button") << QByteArray("WButton { width: 81; height: 27; x: 31; y: 22.5");
}

// 3 pixels of ring, 3 of gap, likewise on the other side.
void tst_Face::ringIsCrisp()
{
    QFETCH(const QByteArray, control);
    QVERIFY(show("Item { width: 300; height: 200; " + control + "; objectName: 'control' } }"));
    auto *target = find(u"control"_s);
    target->forceActiveFocus(Qt::TabFocusReason);
    const auto runs = runsThrough(target, Qt::Vertical);
    QVERIFY2(runs.size() >= 7, text(runs));
    QCOMPARE(runs[1].length, 3);
    QCOMPARE(runs[2], (Run{runs.first().color, 3}));
    QCOMPARE(runs[runs.size() - 2], runs[1]);
    QCOMPARE(runs[runs.size() - 3], runs[2]);
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", QByteArray::number(Ratio));
    TestApplication::isolateSettings();
    auto startLog = std::make_unique<LogRecorder>();
    TestApplication application(argc, argv);
    startLog.reset();
    tst_Face test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_face.moc"
