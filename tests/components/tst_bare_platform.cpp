#include <ComponentTest.h>

#include <QQuickView>
#include <QSignalSpy>
#include <QStyleHints>

using namespace Qt::StringLiterals;

// What components do themselves where the platform moves and sizes no windows and draws no shaders.
class tst_BarePlatform : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void moveArea();
    void moveAreaLeavesClicks();
    void moveAreaInAFullScreenWindow();
    void resizeFrame_data();
    void resizeFrame();
    void resizeFrameHasTheWindowsLimits();
    void resizeFrameOfAFixedWidth();
    void resizeFrameOfAMaximizedWindow();
    void resizeFrameLeavesTheMiddle();
    void noDropShadow();

private:
    void drag(const QPoint &from, const QPoint &distance);
    void ignoreSizeHints(int count);
    bool showResizeFrame(const QByteArray &properties);
};

// In two steps; the window may move below the cursor meanwhile, and the cursor leave the window.
void tst_BarePlatform::drag(const QPoint &from, const QPoint &distance)
{
    const QPoint start = window()->mapToGlobal(from);
    const auto send = [this](QEvent::Type type, const QPoint &global, Qt::MouseButtons buttons) {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const QPoint local = window()->mapFromGlobal(global);
        QMouseEvent event(type, local, local, global, button, buttons, {});
        QCoreApplication::sendEvent(window(), &event);
    };
    send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    send(QEvent::MouseMove, start + distance / 2, Qt::LeftButton);
    send(QEvent::MouseMove, start + distance, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, start + distance, {});
}

// The platform says so each time a window's smallest or largest size changes.
void tst_BarePlatform::ignoreSizeHints(int count)
{
    for (int i = 0; i < count; ++i)
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
}

void tst_BarePlatform::moveArea()
{
    QVERIFY(show("Item { WMoveWindowArea { objectName: 'area'; x: 10; width: 200; height: 40 } }"));
    window()->setGeometry(100, 100, 400, 300);
    drag({50, 20}, {60, -40});
    QCOMPARE(window()->geometry(), QRect(160, 60, 400, 300));
    QCOMPARE(find(u"area"_s)->property("clickPos").toPointF(), QPointF(40, 20));
    drag({50, 20}, {-30, 30});
    QCOMPARE(window()->geometry(), QRect(130, 90, 400, 300));
    drag({50, 200}, {-30, 30});
    QCOMPARE(window()->geometry(), QRect(130, 90, 400, 300));
}

void tst_BarePlatform::moveAreaLeavesClicks()
{
    QVERIFY(show("Item { WMoveWindowArea { objectName: 'area'; width: 200; height: 40 } }"));
    window()->setGeometry(100, 100, 400, 300);
    QSignalSpy clicked(find(u"area"_s), SIGNAL(clicked(QQuickMouseEvent *)));
    QSignalSpy doubleClicked(find(u"area"_s), SIGNAL(doubleClicked(QQuickMouseEvent *)));
    drag({50, 20}, {QGuiApplication::styleHints()->startDragDistance() - 1, 0});
    QCOMPARE(window()->position(), QPoint(100, 100));
    QCOMPARE(clicked.count(), 1);
    QTest::mouseDClick(window(), Qt::LeftButton, {}, {50, 20});
    QCOMPARE(doubleClicked.count(), 1);
    QCOMPARE(window()->position(), QPoint(100, 100));
}

void tst_BarePlatform::moveAreaInAFullScreenWindow()
{
    QVERIFY(show("Item { WMoveWindowArea { width: 200; height: 40 } }"));
    window()->showFullScreen();
    const QRect geometry = window()->geometry();
    drag({50, 20}, {60, 40});
    QCOMPARE(window()->geometry(), geometry);
}

bool tst_BarePlatform::showResizeFrame(const QByteArray &properties)
{
    if (!show("Item { WResizeFrame { objectName: 'frame'; anchors.fill: parent; " + properties + " } }"))
        return false;
    static_cast<QQuickView *>(window())->setResizeMode(QQuickView::SizeRootObjectToView);
    window()->setFlag(Qt::FramelessWindowHint);
    window()->setGeometry(100, 100, 400, 300);
    return QTest::qWaitFor([this] { return root()->size() == QSizeF(400, 300); });
}

void tst_BarePlatform::resizeFrame_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("distance");
    QTest::addColumn<QRect>("geometry");
    QTest::newRow("right") << QPoint(399, 150) << QPoint(40, 40) << QRect(100, 100, 440, 300);
    QTest::newRow("left") << QPoint(0, 150) << QPoint(40, 40) << QRect(140, 100, 360, 300);
    QTest::newRow("top") << QPoint(200, 0) << QPoint(40, 40) << QRect(100, 140, 400, 260);
    QTest::newRow("bottom") << QPoint(200, 299) << QPoint(40, 40) << QRect(100, 100, 400, 340);
    QTest::newRow("top left") << QPoint(0, 0) << QPoint(-20, -20) << QRect(80, 80, 420, 320);
    QTest::newRow("top right") << QPoint(399, 0) << QPoint(20, -20) << QRect(100, 80, 420, 320);
    QTest::newRow("bottom left") << QPoint(0, 299) << QPoint(-20, 20) << QRect(80, 100, 420, 320);
    QTest::newRow("bottom right") << QPoint(399, 299) << QPoint(20, 20) << QRect(100, 100, 420, 320);
    QTest::newRow("right, to the smallest") << QPoint(399, 150) << QPoint(-200, 0) << QRect(100, 100, 300, 300);
    QTest::newRow("left, to the smallest: the right edge stays")
        << QPoint(0, 150) << QPoint(200, 0) << QRect(200, 100, 300, 300);
    QTest::newRow("left, to the largest") << QPoint(0, 150) << QPoint(-300, 0) << QRect(0, 100, 500, 300);
    QTest::newRow("top, to the smallest: the bottom edge stays")
        << QPoint(200, 0) << QPoint(0, 200) << QRect(100, 200, 400, 200);
    QTest::newRow("bottom, to the largest") << QPoint(200, 299) << QPoint(0, 300) << QRect(100, 100, 400, 400);
}

void tst_BarePlatform::resizeFrame()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, distance);
    QFETCH(const QRect, geometry);
    QVERIFY(showResizeFrame("minWidth: 300; maxWidth: 500; minHeight: 200; maxHeight: 400"));
    QCOMPARE(find(u"frame"_s)->property("startTime").toDouble(), 0);
    ignoreSizeHints(4);
    drag(from, distance);
    QCOMPARE(window()->geometry(), geometry);
    QVERIFY(find(u"frame"_s)->property("startTime").toDouble() > 0);
    QCOMPARE(window()->minimumSize(), QSize(300, 200));
    QCOMPARE(window()->maximumSize(), QSize(500, 400));
}

void tst_BarePlatform::resizeFrameHasTheWindowsLimits()
{
    QVERIFY(showResizeFrame({}));
    ignoreSizeHints(2);
    window()->setMinimumSize({350, 250});
    window()->setMaximumSize({450, 350});
    const auto *frame = find(u"frame"_s);
    QCOMPARE(frame->property("minWidth").toInt(), 350);
    QCOMPARE(frame->property("minHeight").toInt(), 250);
    QCOMPARE(frame->property("maxWidth").toInt(), 450);
    QCOMPARE(frame->property("maxHeight").toInt(), 350);
    drag({399, 299}, {-100, -100});
    QCOMPARE(window()->size(), QSize(350, 250));
}

void tst_BarePlatform::resizeFrameOfAFixedWidth()
{
    QVERIFY(showResizeFrame("minWidth: 400; maxWidth: 400; minHeight: 200; maxHeight: 400"));
    drag({399, 150}, {40, 40});
    QCOMPARE(window()->size(), QSize(400, 300));
    ignoreSizeHints(4);
    drag({399, 299}, {40, 40});
    QCOMPARE(window()->size(), QSize(400, 340));
}

void tst_BarePlatform::resizeFrameOfAMaximizedWindow()
{
    QVERIFY(showResizeFrame({}));
    window()->showMaximized();
    const QRect geometry = window()->geometry();
    drag({geometry.width() - 1, geometry.height() / 2}, {-40, 0});
    QCOMPARE(window()->geometry(), geometry);
}

void tst_BarePlatform::resizeFrameLeavesTheMiddle()
{
    QVERIFY(show("Item { implicitWidth: 400; implicitHeight: 300; "
                 "MouseArea { objectName: 'below'; anchors.fill: parent } WResizeFrame { anchors.fill: parent } }"));
    QSignalSpy clicked(find(u"below"_s), SIGNAL(clicked(QQuickMouseEvent *)));
    click(root(), {5, 150});
    click(root(), {200, 150});
    QCOMPARE(clicked.count(), 2);
    click(root(), {2, 150});
    QCOMPARE(clicked.count(), 2);
}

void tst_BarePlatform::noDropShadow()
{
    QVERIFY(show("Item { WDropShadow { objectName: 'shadow'; anchors.fill: card; source: card } "
                 "WRectangle { id: card; width: 100; height: 100; backgroundColorSetName: 'separator-primary' } }"));
    QVERIFY(!find(u"shadow"_s)->isVisible());
    QCOMPARE(window()->grabWindow().pixelColor(50, 50), application()->getColorSet(u"separator-primary"_s).normal);
}

LUMAKIT_TEST_MAIN(tst_BarePlatform)
#include "tst_bare_platform.moc"
