#include <TestCase.h>
#include <WQuickView.h>

#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

// Runs on the three screens of screens.json.
class tst_WQuickViewScreens : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showAt_data();
    void showAt();
    void showAtTakesTheScreen_data();
    void showAtTakesTheScreen();
    void showAtOwnScreen();
    void showAtWidget();
    void noScreenChangeWithoutNeed();

private:
    static QScreen *screen(const QString &name);
};

QScreen *tst_WQuickViewScreens::screen(const QString &name)
{
    for (QScreen *candidate : QGuiApplication::screens()) {
        if (candidate->name() == name)
            return candidate;
    }
    return nullptr;
}

void tst_WQuickViewScreens::initTestCase()
{
    QCOMPARE(QGuiApplication::screens().size(), 3);
    QCOMPARE(screen(u"main"_s)->availableGeometry(), QRect(0, 0, 1000, 800));
    QCOMPARE(screen(u"left"_s)->availableGeometry(), QRect(-1920, -200, 1920, 1080));
    QCOMPARE(screen(u"right"_s)->availableGeometry(), QRect(1000, 100, 800, 600));
}

void tst_WQuickViewScreens::showAt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QPoint>("expected"); // of a view of 200 x 100
    QTest::newRow("left: inside") << u"left"_s << QPoint(-1000, 0) << QPoint(-1000, 0);
    QTest::newRow("left: off the right edge") << u"left"_s << QPoint(-100, 0) << QPoint(-200, 0);
    QTest::newRow("left: off the bottom edge") << u"left"_s << QPoint(-1000, 850) << QPoint(-1000, 780);
    QTest::newRow("left: off the left edge") << u"left"_s << QPoint(-1950, 0) << QPoint(-1920, 0);
    QTest::newRow("left: off the top-left corner") << u"left"_s << QPoint(-1930, -210) << QPoint(-1920, -200);
    QTest::newRow("left: off the left edge by most") << u"left"_s << QPoint(-2100, 0) << QPoint(-1920, 0);
    QTest::newRow("right: inside") << u"right"_s << QPoint(1100, 200) << QPoint(1100, 200);
    QTest::newRow("right: off the bottom-right corner") << u"right"_s << QPoint(1700, 650) << QPoint(1600, 600);
    QTest::newRow("right: from the main screen") << u"right"_s << QPoint(950, 300) << QPoint(1000, 300);
    QTest::newRow("main: at the edge to the right screen") << u"main"_s << QPoint(900, 300) << QPoint(800, 300);
    QTest::newRow("main: at the edge to the left screen") << u"main"_s << QPoint(-50, 300) << QPoint(0, 300);
    QTest::newRow("outside of the screen that is asked for") << u"right"_s << QPoint(10, 10) << QPoint(10, 10);
}

void tst_WQuickViewScreens::showAt()
{
    QFETCH(const QString, name);
    QFETCH(const QPoint, pos);
    QFETCH(const QPoint, expected);
    WQuickView view;
    view.resize(200, 100);
    view.setScreen(screen(u"main"_s));
    QSignalSpy screenChanged(&view, &QWindow::screenChanged);
    view.showAt(pos, screen(name));
    QVERIFY(view.isVisible());
    QCOMPARE(view.position(), expected);
    QCOMPARE(view.size(), QSize(200, 100));
    if (screen(name)->geometry().contains(expected)) {
        QCOMPARE(view.screen()->name(), name);
        QCOMPARE(screenChanged.count(), name == "main"_L1 ? 0 : 1);
    }
}

void tst_WQuickViewScreens::showAtTakesTheScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("main") << u"main"_s;
    QTest::newRow("left") << u"left"_s;
    QTest::newRow("right") << u"right"_s;
}

// Before it is shown: a window that is on display changes its screen with its position by itself.
void tst_WQuickViewScreens::showAtTakesTheScreen()
{
    QFETCH(const QString, name);
    ViewOptions options;
    options.dispatchShowEnabled = true;
    WQuickView view; // a plain one, which is not shown later either
    view.setViewOptions(options);
    for (const QString &before : {u"main"_s, u"left"_s, u"right"_s}) {
        view.setScreen(screen(before));
        view.showAt(QPoint(5000, 5000), screen(name));
        QVERIFY(!view.isVisible());
        QCOMPARE(view.screen()->name(), name);
    }
}

void tst_WQuickViewScreens::showAtOwnScreen()
{
    WQuickView view;
    view.resize(200, 100);
    view.setScreen(screen(u"left"_s));
    view.showAt(QPoint(-100, 0), nullptr);
    QCOMPARE(view.screen()->name(), u"left"_s);
    QCOMPARE(view.position(), QPoint(-200, 0));
}

void tst_WQuickViewScreens::showAtWidget()
{
    QWidget widget;
    widget.setGeometry(-60, 0, 50, 30);
    WQuickView view;
    view.resize(200, 100);
    view.showAt(&widget, screen(u"left"_s)); // centred it would begin at -136
    QCOMPARE(view.screen()->name(), u"left"_s);
    QCOMPARE(view.position(), QPoint(-200, 29));
}

void tst_WQuickViewScreens::noScreenChangeWithoutNeed()
{
    WQuickView view;
    view.resize(200, 100);
    view.showAt(QPoint(-1000, 0), screen(u"left"_s));
    QSignalSpy screenChanged(&view, &QWindow::screenChanged);
    view.showAt(QPoint(-900, 0), screen(u"left"_s));
    view.showAt(QPoint(-800, 0), nullptr);
    QCOMPARE(screenChanged.count(), 0);
    QCOMPARE(view.position(), QPoint(-800, 0));
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS_FILE);
    TestApplication::isolateSettings();
    auto startLog = std::make_unique<LogRecorder>();
    TestApplication application(argc, argv);
    startLog.reset();
    tst_WQuickViewScreens test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_wquickview_screens.moc"
