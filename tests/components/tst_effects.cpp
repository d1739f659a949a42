#include <ComponentTest.h>

#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_Effects : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void gradients_data();
    void gradients();
    void gradientOnABase();
    void gradientStates();
    void gradientFollowsTheTheme();
    void gradientIsAFocusScope();
    void dropShadow();
    void shadowRectReach_data();
    void shadowRectReach();
    void shadowRectOfNegativeReach();
    void shadowRectFadesOut();
    void fade_data();
    void fade();
    void fadeWithoutAnimations();
    void fadeStates();
    void fadeStatesOfAnotherItem();
    void fadeStatesTurnRound();
    void fadeStatesWithoutAnimations();

private:
    QColor colorOf(const QString &token) const { return application()->getColorSet(token).normal; }
    QColor pixel(const QPoint &position) const { return window()->grabWindow().pixelColor(position); }
};

namespace {

int distance(const QColor &one, const QColor &other)
{
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

} // namespace

void tst_Effects::gradients_data()
{
    QTest::addColumn<QByteArray>("component");
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QPoint>("start");
    QTest::addColumn<QPoint>("end");
    const QByteArray horizontal = "orientation: Gradient.Horizontal; ";
    const QByteArray mirrored = "LayoutMirroring.enabled: true; ";
    for (const QByteArray name : {"WGradientRectangle", "WGradientRectangleRoundCorner"}) {
        const QByteArray radius = name == "WGradientRectangle" ? "radius: 20; " : "cornerRadius: 20; ";
        const auto row = [&](const char *text) -> QTestData & { return QTest::addRow("%s, %s", name.data(), text); };
        row("vertical") << name << radius << QPoint(100, 1) << QPoint(100, 198);
        row("horizontal") << name << radius + horizontal << QPoint(1, 100) << QPoint(198, 100);
        row("horizontal, mirrored") << name << radius + horizontal + mirrored << QPoint(198, 100) << QPoint(1, 100);
        row("vertical, mirrored") << name << radius + mirrored << QPoint(100, 1) << QPoint(100, 198);
    }
}

void tst_Effects::gradients()
{
    QFETCH(const QByteArray, component);
    QFETCH(const QByteArray, properties);
    QFETCH(const QPoint, start);
    QFETCH(const QPoint, end);
    QVERIFY(show(component + " { implicitWidth: 200; implicitHeight: 200; " + properties
                 + "gradientStartColourSetName: 'button-primary-background'; "
                   "gradientEndColourSetName: 'label-error-text' }"));
    QCOMPARE_LT(distance(pixel(start), colorOf(u"button-primary-background"_s)), 8);
    QCOMPARE_LT(distance(pixel(end), colorOf(u"label-error-text"_s)), 8);
    QCOMPARE(pixel({0, 0}), QColor(Qt::white)); // outside the round corner
}

void tst_Effects::gradientOnABase()
{
    QVERIFY(show("WGradientRectangleRoundCorner { implicitWidth: 200; implicitHeight: 200; gradientStartColourSetName: "
                 "'overlayFade-primary-background-normal'; gradientEndColourSetName: ''; "
                 "gradientPrimary0BackgroundColorSetName: 'button-primary-background' }"));
    const QColor base = colorOf(u"button-primary-background"_s);
    const QColor over = colorOf(u"overlayFade-primary-background-normal"_s);
    const auto blend = [&over](int below, int above) {
        return int(below * (1 - over.alphaF()) + above * over.alphaF());
    };
    const QColor start(blend(base.red(), over.red()), blend(base.green(), over.green()),
                       blend(base.blue(), over.blue()));
    QCOMPARE_LT(distance(pixel({100, 1}), start), 8);
    QCOMPARE_LT(distance(pixel({100, 198}), base), 8);
}

void tst_Effects::gradientStates()
{
    QVERIFY(show("WGradientRectangle { implicitWidth: 200; implicitHeight: 200; controlsTarget: ({ pressed: true }); "
                 "gradientStartColourSetName: 'button-primary-background' }"));
    const WColorSet colors = application()->getColorSet(u"button-primary-background"_s);
    QCOMPARE(root()->property("startColor").value<QColor>(), colors.pressed);
    root()->setProperty("controlsTarget", QVariant::fromValue<QObject *>(nullptr));
    QCOMPARE(root()->property("startColor").value<QColor>(), colors.normal);
    root()->setEnabled(false);
    QCOMPARE(root()->property("startColor").value<QColor>(), colors.disabled);
}

void tst_Effects::gradientFollowsTheTheme()
{
    QVERIFY(show("WGradientRectangle { implicitWidth: 200; implicitHeight: 200 }"));
    application()->setThemeMode(u"dark"_s);
    QCOMPARE_LT(distance(pixel({100, 1}), colorOf(u"theme-gradient-primary-0-background"_s)), 8);
    QCOMPARE_LT(distance(pixel({100, 198}), colorOf(u"theme-gradient-primary-1-background"_s)), 8);
}

void tst_Effects::gradientIsAFocusScope()
{
    QVERIFY(show("WGradientRectangle { WButton { objectName: 'button'; focus: true } }"));
    root()->forceActiveFocus();
    QVERIFY(find(u"button"_s)->hasActiveFocus());
}

void tst_Effects::dropShadow()
{
    QVERIFY(show("Item { implicitWidth: 200; implicitHeight: 200; "
                 "WDropShadow { objectName: 'shadow'; anchors.fill: card; source: card } "
                 "WRectangle { id: card; x: 50; y: 50; width: 100; height: 100; "
                 "backgroundColorSetName: 'button-primary-background' } }"));
    QVERIFY(find(u"shadow"_s)->isVisible());
    QCOMPARE(pixel({100, 100}), colorOf(u"button-primary-background"_s));
    QTRY_COMPARE_LT(pixel({100, 152}).lightness(), 250);
    QCOMPARE_LT(pixel({100, 152}).lightness(), pixel({100, 156}).lightness());
    QCOMPARE_LT(pixel({100, 152}).lightness(), pixel({100, 47}).lightness()); // the light comes from above
    QCOMPARE(pixel({100, 180}), QColor(Qt::white));
}

void tst_Effects::shadowRectReach_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<int>("offset");
    QTest::newRow("by default") << QByteArray() << 4;
    QTest::newRow("twice as high") << QByteArray("offsetFactor: 2") << 8;
    QTest::newRow("rounded") << QByteArray("offsetFactor: 0.6") << 2;
    QTest::newRow("none") << QByteArray("offsetFactor: 0") << 0;
    QTest::newRow("by itself") << QByteArray("offset: 6") << 6;
}

void tst_Effects::shadowRectReach()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const int, offset);
    QVERIFY(show("Item { implicitWidth: 200; implicitHeight: 200; "
                 "WDropShadowRect { objectName: 'shadow'; x: 50; y: 50; width: 100; height: 100; radius: 0; "
                 + properties
                 + " } WRectangle { x: 50; y: 50; width: 100; height: 100; "
                   "backgroundColorSetName: 'button-primary-background' } }"));
    QCOMPARE(find(u"shadow"_s)->property("offset").toInt(), offset);
    const QImage image = window()->grabWindow();
    const auto isShadow = [&image](int x, int y) { return image.pixelColor(x, y) != QColor(Qt::white); };
    QCOMPARE(isShadow(149 + offset, 100), true); // the card itself where there is no shadow
    QCOMPARE(isShadow(150 + offset, 100), false);
    QCOMPARE(isShadow(50 - offset, 100), true);
    QCOMPARE(isShadow(49 - offset, 100), false);
    QCOMPARE(isShadow(100, 149 + offset + offset / 2), true);
    QCOMPARE(isShadow(100, 150 + offset + offset / 2), false);
    QCOMPARE(isShadow(100, 49 - offset + offset / 2), false);
}

void tst_Effects::shadowRectOfNegativeReach()
{
    QVERIFY(show("Item { implicitWidth: 200; implicitHeight: 200; "
                 "WDropShadowRect { x: 50; y: 50; width: 100; height: 100; offset: -3 } }"));
    const QImage image = window()->grabWindow();
    QCOMPARE(image.pixelColor(49, 100), QColor(Qt::white));
    QCOMPARE(image.pixelColor(100, 151), QColor(Qt::white));
}

void tst_Effects::shadowRectFadesOut()
{
    QVERIFY(show("Item { implicitWidth: 200; implicitHeight: 200; "
                 "WDropShadowRect { x: 50; y: 50; width: 100; height: 100; offsetFactor: 4 } }"));
    const QImage image = window()->grabWindow();
    const QColor darkest = colorOf(u"overlayFade-secondary-background-normal"_s);
    const int expected = qRound(255 * (1 - darkest.alphaF()));
    QCOMPARE_LE(std::abs(image.pixelColor(100, 100).lightness() - expected), 6);
    int last = image.pixelColor(100, 100).lightness();
    for (int x = 149; x < 170; ++x) {
        const int present = image.pixelColor(x, 100).lightness();
        QCOMPARE_GE(present, last);
        QCOMPARE_LE(present - last, 24); // no hard edge
        last = present;
    }
    QCOMPARE(last, 255);
}

void tst_Effects::fade_data()
{
    QTest::addColumn<bool>("fadeIn");
    QTest::newRow("in") << true;
    QTest::newRow("out") << false;
}

void tst_Effects::fade()
{
    QFETCH(const bool, fadeIn);
    QVERIFY(show("Item { WFade { objectName: 'fade'; target: item; fadeIn: " + QByteArray(fadeIn ? "true" : "false")
                 + " } Item { id: item; objectName: 'item'; opacity: 0.5 } }"));
    auto *animation = find<QObject>(u"fade"_s);
    const QQuickItem *item = find(u"item"_s);
    QSignalSpy finished(animation, SIGNAL(finished()));
    QVERIFY(animation->property("duration").toInt() > 0);
    QVERIFY(QMetaObject::invokeMethod(animation, "start"));
    QCOMPARE(item->opacity(), fadeIn ? 0 : 1);
    QVERIFY(finished.wait());
    QCOMPARE(item->opacity(), fadeIn ? 1 : 0);
}

void tst_Effects::fadeWithoutAnimations()
{
    application()->setAnimationsDisabled(true);
    QVERIFY(
        show("Item { WFade { objectName: 'fade'; target: item } Item { id: item; objectName: 'item'; opacity: 0 } }"));
    auto *animation = find<QObject>(u"fade"_s);
    QSignalSpy finished(animation, SIGNAL(finished()));
    QVERIFY(QMetaObject::invokeMethod(animation, "start"));
    QCOMPARE(find(u"item"_s)->opacity(), 1);
    QCOMPARE(finished.count(), 1);
}

void tst_Effects::fadeStates()
{
    QVERIFY(show("Item { WFadeStates { objectName: 'fading'; width: 100; height: 100; "
                 "MouseArea { objectName: 'area'; anchors.fill: parent } } }"));
    auto *fading = find(u"fading"_s);
    QSignalSpy clicked(find(u"area"_s), SIGNAL(clicked(QQuickMouseEvent *)));
    QCOMPARE(fading->opacity(), 1);
    fading->setState(fading->property("fadeOutState").toString());
    QVERIFY(fading->isVisible()); // still on its way
    QTRY_VERIFY(!fading->isVisible());
    QCOMPARE(fading->opacity(), 0);
    click(find(u"area"_s));
    QCOMPARE(clicked.count(), 0);
    fading->setState(QString());
    QVERIFY(fading->isVisible());
    QVERIFY(fading->opacity() < 1);
    QTRY_COMPARE(fading->opacity(), 1);
    click(find(u"area"_s));
    QCOMPARE(clicked.count(), 1);
}

void tst_Effects::fadeStatesOfAnotherItem()
{
    QVERIFY(show("Item { WFadeStates { objectName: 'fading'; fadeTarget: item; fadeOutState: 'gone' } "
                 "Item { id: item; objectName: 'item'; opacity: 0.8 } }"));
    auto *fading = find(u"fading"_s);
    const QQuickItem *item = find(u"item"_s);
    fading->setState(u"gone"_s);
    QTRY_VERIFY(!item->isVisible());
    QCOMPARE(item->opacity(), 0);
    QCOMPARE(fading->opacity(), 1);
    QVERIFY(fading->isVisible());
    fading->setState(QString());
    QTRY_COMPARE(item->opacity(), 0.8);
}

void tst_Effects::fadeStatesTurnRound()
{
    QVERIFY(show("Item { WFadeStates { objectName: 'fading' } }"));
    auto *fading = find(u"fading"_s);
    fading->setState(u"fadeOut"_s);
    QTRY_VERIFY(fading->opacity() < 0.9);
    const qreal midway = fading->opacity();
    fading->setState(QString());
    qreal lowest = 1;
    connect(fading, &QQuickItem::opacityChanged, this, [&] { lowest = std::min(lowest, fading->opacity()); });
    QVERIFY(fading->opacity() > midway - 0.1);
    QTRY_COMPARE(fading->opacity(), 1);
    QCOMPARE_GE(lowest, midway - 0.1);
}

void tst_Effects::fadeStatesWithoutAnimations()
{
    application()->setAnimationsDisabled(true);
    QVERIFY(show("Item { WFadeStates { objectName: 'fading' } }"));
    auto *fading = find(u"fading"_s);
    fading->setState(u"fadeOut"_s);
    QCOMPARE(fading->opacity(), 0);
    QVERIFY(!fading->isVisible());
    fading->setState(QString());
    QCOMPARE(fading->opacity(), 1);
    QVERIFY(fading->isVisible());
}

LUMAKIT_TEST_MAIN(tst_Effects)
#include "tst_effects.moc"
