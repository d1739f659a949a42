#include <TestCase.h>
#include <WPopupQuickView.h>
#include <WQmlEngine.h>

#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

// Runs on the three screens of screens.json.
class tst_WPopupQuickViewScreens : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_window.reset(); }

    void placement_data();
    void placement();
    void notOnAnyScreen_data();
    void notOnAnyScreen();
    void slideOfTheOwnScreen();
    void positionFromWidget_data();
    void positionFromWidget();
    void popupOnTheParentsScreen_data();
    void popupOnTheParentsScreen();
    void popupWithoutParent();
    void nativeFilter();

private:
    static QScreen *screen(const QString &name);

    MemoryResources m_resources{{{u"/Qml/Popup.qml"_s, "import QtQuick\nItem { width: 200; height: 100 }\n"}}};
    std::unique_ptr<QWindow> m_window;
};

QScreen *tst_WPopupQuickViewScreens::screen(const QString &name)
{
    for (QScreen *candidate : QGuiApplication::screens()) {
        if (candidate->name() == name)
            return candidate;
    }
    return nullptr;
}

void tst_WPopupQuickViewScreens::initTestCase()
{
    QCOMPARE(QGuiApplication::screens().size(), 3);
    QCOMPARE(screen(u"main"_s)->availableGeometry(), QRect(0, 0, 1000, 800));
    QCOMPARE(screen(u"left"_s)->availableGeometry(), QRect(-1920, -200, 1920, 1080));
    QCOMPARE(screen(u"right"_s)->availableGeometry(), QRect(1000, 100, 800, 600));
    m_window = std::make_unique<QWindow>();
    m_window->setGeometry(400, 300, 100, 100);
    m_window->show();
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(WApplication::isInFocus());
}

void tst_WPopupQuickViewScreens::placement_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<Qt::ArrowType>("direction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("expected"); // of a popup of 200 x 100
    QTest::addColumn<int>("slide");

    const QRectF onLeft(-1000, 300, 20, 20);
    QTest::newRow("left: up") << onLeft << Qt::UpArrow << Qt::UpArrow << u"left"_s << QPoint(-1090, 320) << 0;
    QTest::newRow("left: down") << onLeft << Qt::DownArrow << Qt::DownArrow << u"left"_s << QPoint(-1090, 200) << 0;
    QTest::newRow("left: left") << onLeft << Qt::LeftArrow << Qt::LeftArrow << u"left"_s << QPoint(-980, 260) << 0;
    QTest::newRow("left: right") << onLeft << Qt::RightArrow << Qt::RightArrow << u"left"_s << QPoint(-1200, 260) << 0;
    // The centre is at -990.5, half of a pixel is rounded away from zero.
    QTest::newRow("left: half pixels") << QRectF(-1000, 300, 19, 20) << Qt::UpArrow << Qt::UpArrow << u"left"_s
                                       << QPoint(-1091, 320) << 0;
    QTest::newRow("main: half pixels") << QRectF(400, 300, 19, 20) << Qt::UpArrow << Qt::UpArrow << u"main"_s
                                       << QPoint(310, 320) << 0;
    QTest::newRow("left: flips at its bottom")
        << QRectF(-1000, 850, 20, 20) << Qt::UpArrow << Qt::DownArrow << u"left"_s << QPoint(-1090, 750) << 0;
    QTest::newRow("left: flips at its top")
        << QRectF(-1000, -150, 20, 20) << Qt::DownArrow << Qt::UpArrow << u"left"_s << QPoint(-1090, -130) << 0;
    QTest::newRow("left: stays above the main screen's top")
        << QRectF(-1000, -50, 20, 20) << Qt::DownArrow << Qt::DownArrow << u"left"_s << QPoint(-1090, -150) << 0;
    QTest::newRow("left: flips at the main screen")
        << QRectF(-100, 300, 20, 20) << Qt::LeftArrow << Qt::RightArrow << u"left"_s << QPoint(-300, 260) << 0;
    QTest::newRow("left: slides at the main screen")
        << QRectF(-40, 300, 20, 20) << Qt::UpArrow << Qt::UpArrow << u"left"_s << QPoint(-200, 320) << 70;
    QTest::newRow("left: slides at its left edge")
        << QRectF(-1880, 300, 20, 20) << Qt::DownArrow << Qt::DownArrow << u"left"_s << QPoint(-1920, 200) << -50;
    QTest::newRow("right: flips at its right edge")
        << QRectF(1700, 300, 20, 20) << Qt::LeftArrow << Qt::RightArrow << u"right"_s << QPoint(1500, 260) << 0;
    QTest::newRow("right: flips at its bottom, slides")
        << QRectF(1770, 650, 20, 20) << Qt::UpArrow << Qt::DownArrow << u"right"_s << QPoint(1600, 550) << 80;
    QTest::newRow("right: slides at its bottom")
        << QRectF(1300, 670, 20, 20) << Qt::LeftArrow << Qt::LeftArrow << u"right"_s << QPoint(1320, 600) << 30;
    QTest::newRow("right: left of it is the main screen")
        << QRectF(1000, 300, 20, 20) << Qt::RightArrow << Qt::RightArrow << u"main"_s << QPoint(800, 260) << 0;
}

void tst_WPopupQuickViewScreens::placement()
{
    QFETCH(const QRectF, rect);
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const Qt::ArrowType, direction);
    QFETCH(const QString, name);
    QFETCH(const QPoint, expected);
    QFETCH(const int, slide);
    WPopupQuickView view;
    view.resize(200, 100);
    QSignalSpy flipped(&view, &WPopupQuickView::arrowFlipped);
    view.showAtRect(rect, arrow);
    QVERIFY(view.isVisible());
    QCOMPARE(flipped.count(), arrow == direction ? 0 : 1);
    if (arrow != direction)
        QCOMPARE(flipped.first().first().value<Qt::ArrowType>(), direction);
    QCOMPARE(view.position(), expected);
    QCOMPARE(view.screen()->name(), name);
    QCOMPARE(view.adjustArrowOffset(direction), slide);
}

void tst_WPopupQuickViewScreens::notOnAnyScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<bool>("flips"); // on the view's own screen
    QTest::addColumn<int>("slide");
    // A popup of 200 x 100 beside (4990, 90) 20 x 20, right of all screens.
    QTest::newRow("main: up") << u"main"_s << Qt::UpArrow << false << 4100;
    QTest::newRow("main: left") << u"main"_s << Qt::LeftArrow << true << 0;
    QTest::newRow("main: right") << u"main"_s << Qt::RightArrow << false << 0;
    QTest::newRow("right: up") << u"right"_s << Qt::UpArrow << false << 3300;
    QTest::newRow("right: down") << u"right"_s << Qt::DownArrow << true << 3300;
    QTest::newRow("right: right") << u"right"_s << Qt::RightArrow << false << -50;
    QTest::newRow("left: down") << u"left"_s << Qt::DownArrow << false << 5100;
}

void tst_WPopupQuickViewScreens::notOnAnyScreen()
{
    QFETCH(const QString, name);
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const bool, flips);
    QFETCH(const int, slide);
    WPopupQuickView view;
    view.resize(200, 100);
    view.setScreen(screen(name));
    // Asked for before the view is shown: its own screen is then the one it was given.
    QSignalSpy flipped(&view, &WPopupQuickView::arrowFlipped);
    const QRectF rect(4990, 90, 20, 20);
    view.showAtRect(rect, arrow);
    QCOMPARE(flipped.count(), flips ? 1 : 0);
    QVERIFY(view.isVisible());
    if (flips)
        return; // shown on the other side, where the next question has another answer
    QCOMPARE(view.position(), view.getPointFromRect(rect, arrow).toPoint());
    QCOMPARE(view.screen()->name(), name);
    QCOMPARE(view.adjustArrowOffset(arrow), slide);
}

// Asked for one direction the screen under the popup counts, not the one that the view is on.
void tst_WPopupQuickViewScreens::slideOfTheOwnScreen()
{
    WPopupQuickView view;
    view.resize(200, 100);
    view.setScreen(screen(u"main"_s));
    view.setActivationRectAndShow(QRectF(-1900, -190, 20, 20), Qt::NoArrow);
    QCOMPARE(view.adjustArrowOffset(Qt::LeftArrow), -30);
    view.setActivationRectAndShow(QRectF(1780, 660, 20, 20), Qt::NoArrow);
    QCOMPARE(view.adjustArrowOffset(Qt::RightArrow), 20);
}

void tst_WPopupQuickViewScreens::positionFromWidget_data()
{
    QTest::addColumn<QRect>("widget");
    QTest::addColumn<QPoint>("expected"); // of a popup of 200 x 100
    QTest::newRow("main: right edge") << QRect(960, 300, 31, 21) << QPoint(799, 320);
    QTest::newRow("main: left edge") << QRect(10, 300, 31, 21) << QPoint(0, 320);
    QTest::newRow("left: inside") << QRect(-1000, -100, 31, 21) << QPoint(-1085, -80);
    QTest::newRow("left: right edge") << QRect(-40, 300, 31, 21) << QPoint(-201, 320);
    QTest::newRow("left: left edge") << QRect(-1910, 300, 31, 21) << QPoint(-1920, 320);
    QTest::newRow("right: left edge") << QRect(1010, 300, 31, 21) << QPoint(1000, 320);
    QTest::newRow("right: right edge") << QRect(1760, 300, 31, 21) << QPoint(1599, 320);
    QTest::newRow("on none") << QRect(5000, 300, 31, 21) << QPoint(4915, 320);
}

void tst_WPopupQuickViewScreens::positionFromWidget()
{
    QFETCH(const QRect, widget);
    QFETCH(const QPoint, expected);
    QWidget under;
    under.setGeometry(widget);
    WPopupQuickView view;
    view.resize(200, 100);
    view.setPositionFromWidget(&under, WPopupQuickView::BottomAlignment);
    QCOMPARE(view.position(), expected);
}

void tst_WPopupQuickViewScreens::popupOnTheParentsScreen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("main") << u"main"_s;
    QTest::newRow("left") << u"left"_s;
    QTest::newRow("right") << u"right"_s;
}

void tst_WPopupQuickViewScreens::popupOnTheParentsScreen()
{
    QFETCH(const QString, name);
    QWindow parent;
    parent.setScreen(screen(name));
    const std::unique_ptr<WPopupQuickView> view(WQmlEngine::createQmlPopup(u"Popup.qml"_s, &parent).data());
    QCOMPARE(view->screen()->name(), name);
    QCOMPARE(view->parent(), nullptr);
    QCOMPARE(view->size(), QSize(200, 100));
}

void tst_WPopupQuickViewScreens::popupWithoutParent()
{
    const std::unique_ptr<WPopupQuickView> view(WQmlEngine::createQmlPopup(u"Popup.qml"_s).data());
    QCOMPARE(view->screen(), QGuiApplication::primaryScreen());
    QVERIFY(view->getViewOptions().parentWindow.isNull());
}

// The filter of fixed views: it does not maximize again what comes back.
void tst_WPopupQuickViewScreens::nativeFilter()
{
    const std::unique_ptr<WPopupQuickView> view(WQmlEngine::createQmlPopup(u"Popup.qml"_s).data());
    for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowMinimized, Qt::WindowNoState})
        view->setWindowState(state);
    QCOMPARE(view->windowState(), Qt::WindowNoState);
    QVERIFY(!view->isVisible());
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS_FILE);
    TestApplication::isolateSettings();
    auto startLog = std::make_unique<LogRecorder>();
    TestApplication application(argc, argv);
    startLog.reset();
    tst_WPopupQuickViewScreens test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_wpopupquickview_screens.moc"
