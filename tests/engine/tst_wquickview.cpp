#include "TestController.h"

#include <TestCase.h>
#include <WQAbstractNativeEventFilter.h>
#include <WQmlEngine.h>
#include <WQuickView.h>

#include <QMetaMethod>
#include <QPainter>
#include <QQuickItem>
#include <QQuickItemGrabResult>
#include <QScreen>
#include <QShowEvent>
#include <QTemporaryDir>
#include <QThread>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

const QUrl PlainUrl(u"qrc:/Qml/Plain.qml"_s);
const QUrl ControlledUrl(u"qrc:/Qml/Controlled.qml"_s);

// Opens what is protected.
class View : public WQuickView
{
public:
    using WQuickView::event;
    using WQuickView::findController;
    using WQuickView::WQuickView;
};

int connectionCount(const QObject *object, const char *signal)
{
    struct Opened : QObject
    {
        using QObject::receivers;
    };
    return (object->*&Opened::receivers)(signal);
}

// Listens to what becomes of a view; the names of its signals in the order they come.
QStringList *watch(WQuickView *view, QStringList *log)
{
    QObject::connect(view, &WQuickView::aboutToShow, view, [log] { *log << u"aboutToShow"_s; });
    QObject::connect(view, &WQuickView::aboutToClose, view, [log] { *log << u"aboutToClose"_s; });
    QObject::connect(view, &QWindow::visibleChanged, view,
                     [log](bool visible) { *log << (visible ? u"shown"_s : u"hidden"_s); });
    QObject::connect(view, &QObject::destroyed, qApp, [log] { *log << u"destroyed"_s; });
    return log;
}

// A native handler that keeps a record.
class RecordingHandler : public WQAbstractNativeEventFilter
{
    Q_OBJECT

public:
    bool nativeEventFilter(const QByteArray &eventType, void *, qintptr *result) override
    {
        types << eventType;
        if (answer && result)
            *result = 5;
        return answer;
    }
    void showEvent(QShowEvent *event, QPointer<QWindow> window) override
    {
        if (log)
            *log << u"show hook"_s;
        lastType = event->type();
        lastWindow = window;
    }

    QStringList *log = nullptr;
    QByteArrayList types;
    bool answer = false;
    QEvent::Type lastType = QEvent::None;
    QPointer<QWindow> lastWindow;
};

// A window of its own kind that takes the activation away.
std::unique_ptr<QWindow> makeOtherWindow()
{
    auto window = std::make_unique<QWindow>();
    window->setGeometry(900, 600, 200, 100);
    window->show();
    window->requestActivate();
    return window;
}

} // namespace

class tst_WQuickView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaObject();
    void defaultOptions();
    void optionsLayout();
    void optionsAreCopied_data();
    void optionsAreCopied();
    void optionsForgetDeadWindows();
    void uniqueConnections();
    void parentWindowsAddUp();
    void noConnectionsWithoutHiding();

    void plainView();
    void engineView();
    void icons_data();
    void icons();

    void showOrder();
    void closing_data();
    void closing();
    void closingTwice();
    void closingUnshown();
    void closingLater();

    void dispatchShow();
    void dispatchShowOfPlainView();
    void dispatchShowOfDeletedView();

    void showAt_data();
    void showAt();
    void showAtOfChildView();
    void showAtDispatches();
    void showAtWidget_data();
    void showAtWidget();

    void adjustViewSize_data();
    void adjustViewSize();
    void adjustViewSizeFollows();
    void adjustViewSizeWithoutRoot();

    void focusOnActivate_data();
    void focusOnActivate();
    void focusReason();
    void focusNeedsAReadyView();
    void hideOnDeactivate_data();
    void hideOnDeactivate();
    void hideWhenParentWindowMoves_data();
    void hideWhenParentWindowMoves();
    void activeViewStaysWhenParentWindowMoves();
    void inactiveHiddenViewStays();
    void hideAfterOptionWasCleared();

    void nativeShowHook();
    void nativeShowHookEachTime();
    void nativeEvents_data();
    void nativeEvents();
    void nativeEventsOfTheSystem();
    void nativeHandlerIsShared();

    void performance();
    void performanceOff();
    void performanceTwice();
    void performanceOfEachFrame();

    void controllers_data();
    void controllers();
    void controllerWithoutRoot();
    void underMouse_data();
    void underMouse();

protected:
    void tidy() override;

private:
    WQmlEngine *m_engine = nullptr;
};

void tst_WQuickView::initTestCase()
{
    TestController::registerType();
    m_engine = qobject_cast<TestApplication *>(qApp)->getQmlEngine();
}

void tst_WQuickView::tidy()
{
    TestController::journal().clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_COMPARE(QGuiApplication::topLevelWindows().size(), 0);
}

void tst_WQuickView::metaObject()
{
    const QMetaObject &meta = WQuickView::staticMetaObject;
    QCOMPARE(meta.superClass(), &QQuickView::staticMetaObject);
    QByteArrayList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        signatures << (method.methodType() == QMetaMethod::Signal ? "signal " : "slot ") + method.methodSignature();
    }
    const QByteArrayList expected{"signal aboutToClose()",  "signal aboutToShow()",
                                  "signal _dispatchShow()", "signal finishedRendering(QString,qlonglong)",
                                  "slot onActiveChanged()", "slot updateSize()"};
    QCOMPARE(signatures, expected);
    const QMetaMethod rendering = meta.method(meta.indexOfSignal("finishedRendering(QString,qlonglong)"));
    QCOMPARE(rendering.parameterNames(), (QByteArrayList{"source", "milisec"}));
}

void tst_WQuickView::defaultOptions()
{
    const ViewOptions options;
    QCOMPARE(options.dispatchShowEnabled, false);
    QCOMPARE(options.hideOnDeactivate, false);
    QCOMPARE(options.deleteOnClose, true);
    QCOMPARE(options.preventClose, false);
    QCOMPARE(options.focusOnActivate, false);
    QVERIFY(options.parentWindow.isNull());
}

// The flags come first, in this order; code that was built against them relies on it.
void tst_WQuickView::optionsLayout()
{
    const ViewOptions options;
    const auto offset = [&options](const auto &member) {
        return reinterpret_cast<const char *>(&member) - reinterpret_cast<const char *>(&options);
    };
    QCOMPARE(offset(options.dispatchShowEnabled), 0);
    QCOMPARE(offset(options.hideOnDeactivate), 1);
    QCOMPARE(offset(options.deleteOnClose), 2);
    QCOMPARE(offset(options.preventClose), 3);
    QCOMPARE(offset(options.focusOnActivate), 4);
    QCOMPARE(offset(options.parentWindow), qptrdiff(alignof(QPointer<QWindow>)));
}

void tst_WQuickView::optionsAreCopied_data()
{
    QTest::addColumn<int>("flags");
    for (int flags = 0; flags < 32; ++flags)
        QTest::addRow("%d%d%d%d%d", flags & 1, flags >> 1 & 1, flags >> 2 & 1, flags >> 3 & 1, flags >> 4 & 1) << flags;
}

void tst_WQuickView::optionsAreCopied()
{
    QFETCH(const int, flags);
    QWindow window;
    ViewOptions options;
    options.dispatchShowEnabled = flags & 1;
    options.hideOnDeactivate = flags & 2;
    options.deleteOnClose = flags & 4;
    options.preventClose = flags & 8;
    options.focusOnActivate = flags & 16;
    options.parentWindow = &window;

    View set;
    set.setViewOptions(options);
    View constructed(m_engine, nullptr, options);
    for (View *view : {&set, &constructed}) {
        const ViewOptions copy = view->getViewOptions();
        QCOMPARE(copy.dispatchShowEnabled, bool(flags & 1));
        QCOMPARE(copy.hideOnDeactivate, bool(flags & 2));
        QCOMPARE(copy.deleteOnClose, bool(flags & 4));
        QCOMPARE(copy.preventClose, bool(flags & 8));
        QCOMPARE(copy.focusOnActivate, bool(flags & 16));
        QCOMPARE(copy.parentWindow, &window);
    }
}

void tst_WQuickView::optionsForgetDeadWindows()
{
    auto window = std::make_unique<QWindow>();
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.parentWindow = window.get();
    View view;
    view.setViewOptions(options);
    window.reset();
    QVERIFY(view.getViewOptions().parentWindow.isNull());
    view.setViewOptions(options);
    QVERIFY(view.getViewOptions().parentWindow.isNull());
}

void tst_WQuickView::uniqueConnections()
{
    QWindow window;
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.parentWindow = &window;
    View view(m_engine, nullptr, ViewOptions());
    const auto counts = [&] {
        return QList<int>{connectionCount(&view, SIGNAL(activeChanged())),
                          connectionCount(qApp, SIGNAL(focusWindowChanged(QWindow *))),
                          connectionCount(&window, SIGNAL(xChanged(int))),
                          connectionCount(&window, SIGNAL(yChanged(int))),
                          connectionCount(&view, SIGNAL(_dispatchShow()))};
    };
    const QList<int> before = counts();
    view.setViewOptions(options);
    const QList<int> once{before[0] + 1, before[1] + 1, before[2] + 1, before[3] + 1, before[4]};
    QCOMPARE(counts(), once);
    view.setViewOptions(options);
    view.setViewOptions(view.getViewOptions());
    QCOMPARE(counts(), once);

    // Clearing the flag disconnects nothing.
    view.setViewOptions(ViewOptions());
    QCOMPARE(counts(), once);
}

void tst_WQuickView::parentWindowsAddUp()
{
    QWindow first;
    QWindow second;
    View view;
    ViewOptions options;
    options.hideOnDeactivate = true;
    for (QWindow *window : {&first, &second}) {
        options.parentWindow = window;
        view.setViewOptions(options);
    }
    QCOMPARE(connectionCount(&first, SIGNAL(xChanged(int))), 1);
    QCOMPARE(connectionCount(&second, SIGNAL(xChanged(int))), 1);
}

void tst_WQuickView::noConnectionsWithoutHiding()
{
    QWindow window;
    ViewOptions options;
    options.focusOnActivate = true;
    options.parentWindow = &window;
    View view;
    const int before = connectionCount(&view, SIGNAL(activeChanged()));
    view.setViewOptions(options);
    QCOMPARE(connectionCount(&view, SIGNAL(activeChanged())), before);
    QCOMPARE(connectionCount(&window, SIGNAL(xChanged(int))), 0);
}

void tst_WQuickView::plainView()
{
    QWindow parent;
    const auto *child = new WQuickView(&parent);
    QCOMPARE(child->parent(QWindow::ExcludeTransients), &parent);
    WQuickView view;
    QCOMPARE(view.parent(), nullptr);
    QVERIFY(view.engine() != m_engine);
    QVERIFY(view.icon().isNull());
    QVERIFY(child->icon().isNull());
    QVERIFY(!view.isVisible());
    QVERIFY(!view.getPerformanceWatcherEnabled());
    QCOMPARE(view.getViewOptions().deleteOnClose, true);
    QCOMPARE(connectionCount(&view, SIGNAL(_dispatchShow())), 0);
}

void tst_WQuickView::engineView()
{
    QWindow parent;
    QPointer<WQuickView> child = new WQuickView(m_engine, &parent, ViewOptions());
    QCOMPARE(child->engine(), m_engine);
    QCOMPARE(static_cast<QObject *>(child)->parent(), &parent);
    QCOMPARE(child->parent(QWindow::ExcludeTransients), &parent);
    QVERIFY(!child->isVisible());
    QVERIFY(!child->getPerformanceWatcherEnabled());
    QCOMPARE(connectionCount(child, SIGNAL(_dispatchShow())), 1);
    delete child;
    QVERIFY(parent.children().isEmpty());
}

void tst_WQuickView::icons_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::addColumn<bool>("hasLogo");
    QTest::addColumn<QColor>("colour"); // invalid: no icon
    QTest::newRow("window without a logo") << false << false << QColor();
    QTest::newRow("window with a logo") << false << true << QColor(Qt::red);
    QTest::newRow("child without a logo") << true << false << QColor(Qt::transparent);
    QTest::newRow("child with a logo") << true << true << QColor(Qt::transparent);
}

void tst_WQuickView::icons()
{
    QFETCH(const bool, hasParent);
    QFETCH(const bool, hasLogo);
    QFETCH(const QColor, colour);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"logo.png"_s);
    QImage logo(32, 32, QImage::Format_ARGB32);
    logo.fill(Qt::red);
    QVERIFY(logo.save(path));
    auto *application = qobject_cast<WApplication *>(qApp);
    application->setLogoPngPath(hasLogo ? path : QString());

    QWindow parent;
    auto *view = new WQuickView(m_engine, hasParent ? &parent : nullptr, ViewOptions());
    const std::unique_ptr<WQuickView> owned(hasParent ? nullptr : view);
    application->setLogoPngPath(QString());
    QCOMPARE(view->icon().isNull(), !colour.isValid());
    if (!colour.isValid())
        return;
    QCOMPARE(view->icon().actualSize({32, 32}), QSize(32, 32));
    const QImage image = view->icon().pixmap(32, 32).toImage().convertToFormat(QImage::Format_ARGB32);
    for (const QPoint point : {QPoint(0, 0), QPoint(15, 15), QPoint(31, 31)})
        QCOMPARE(image.pixelColor(point), colour);
}

void tst_WQuickView::showOrder()
{
    QStringList log;
    View view(m_engine, nullptr, ViewOptions());
    watch(&view, &log);
    view.setSource(PlainUrl);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(log, (QStringList{u"shown"_s, u"aboutToShow"_s}));
    view.show();
    QCOMPARE(log.size(), 2);
    view.hide();
    view.show();
    QCOMPARE(log, (QStringList{u"shown"_s, u"aboutToShow"_s, u"hidden"_s, u"shown"_s, u"aboutToShow"_s}));
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    log.clear();
    view.hide();
    disconnect(&view, nullptr, qApp, nullptr);
}

void tst_WQuickView::closing_data()
{
    QTest::addColumn<bool>("deleteOnClose");
    QTest::addColumn<bool>("preventClose");
    QTest::addColumn<QStringList>("atOnce");
    QTest::addColumn<QStringList>("later");
    QTest::newRow("deleted") << true << false << QStringList{u"aboutToClose"_s, u"hidden"_s}
                             << QStringList{u"destroyed"_s};
    QTest::newRow("kept") << false << false << QStringList{u"aboutToClose"_s, u"hidden"_s} << QStringList{};
    QTest::newRow("prevented") << true << true << QStringList{u"aboutToClose"_s} << QStringList{};
    QTest::newRow("prevented and kept") << false << true << QStringList{u"aboutToClose"_s} << QStringList{};
}

void tst_WQuickView::closing()
{
    QFETCH(const bool, deleteOnClose);
    QFETCH(const bool, preventClose);
    QFETCH(const QStringList, atOnce);
    QFETCH(const QStringList, later);
    ViewOptions options;
    options.deleteOnClose = deleteOnClose;
    options.preventClose = preventClose;
    QPointer<WQuickView> view = new WQuickView(m_engine, nullptr, options);
    view->setSource(PlainUrl);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QStringList log;
    watch(view, &log);

    view->close();
    QCOMPARE(log, atOnce);
    QVERIFY(view);
    QCOMPARE(view->isVisible(), preventClose);
    log.clear();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(log, later);
    QCOMPARE(view.isNull(), !later.isEmpty());
    if (view)
        QCOMPARE(view->isExposed(), preventClose);
    disconnect(qApp, nullptr, qApp, nullptr);
    delete view;
}

void tst_WQuickView::closingTwice()
{
    QPointer<WQuickView> view = new WQuickView(m_engine, nullptr, ViewOptions());
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QSignalSpy aboutToClose(view, &WQuickView::aboutToClose);
    QSignalSpy destroyed(view, &QObject::destroyed);
    for (int i = 0; i < 3; ++i) {
        QCloseEvent event;
        QCoreApplication::sendEvent(view, &event);
    }
    QCOMPARE(aboutToClose.count(), 3);
    QTRY_COMPARE(destroyed.count(), 1);
}

// A window that was never shown gets no close event from Qt; one sent by hand counts.
void tst_WQuickView::closingUnshown()
{
    QPointer<WQuickView> view = new WQuickView(m_engine, nullptr, ViewOptions());
    QSignalSpy aboutToClose(view, &WQuickView::aboutToClose);
    QCloseEvent event;
    QCoreApplication::sendEvent(view, &event);
    QCOMPARE(aboutToClose.count(), 1);
    QTRY_VERIFY(!view);
}

// The options of the moment decide.
void tst_WQuickView::closingLater()
{
    ViewOptions options;
    options.preventClose = true;
    View view(m_engine, nullptr, options);
    view.setSource(PlainUrl);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QSignalSpy aboutToClose(&view, &WQuickView::aboutToClose);
    view.close();
    QCOMPARE(aboutToClose.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(view.isVisible());
    QVERIFY(view.isExposed());

    options.preventClose = false;
    options.deleteOnClose = false;
    view.setViewOptions(options);
    QVERIFY(view.close());
    QCOMPARE(aboutToClose.count(), 2);
    QVERIFY(!view.isVisible());
}

void tst_WQuickView::dispatchShow()
{
    View view(m_engine, nullptr, ViewOptions());
    view.setSource(PlainUrl);
    QSignalSpy dispatched(&view, &WQuickView::_dispatchShow);
    QSignalSpy shown(&view, &WQuickView::aboutToShow);
    view.dispatchShow();
    QCOMPARE(dispatched.count(), 1);
    QCOMPARE(shown.count(), 0);
    QVERIFY(!view.isVisible());
    view.setPosition(321, 123); // still in time
    QTRY_VERIFY(view.isActive());
    QVERIFY(view.isVisible());
    QCOMPARE(shown.count(), 1);

    // Activates a view that is shown already.
    const auto other = makeOtherWindow();
    QVERIFY(QTest::qWaitForWindowActive(other.get()));
    QTRY_VERIFY(!view.isActive());
    view.dispatchShow();
    QVERIFY(!view.isActive());
    QTRY_VERIFY(view.isActive());
    QCOMPARE(shown.count(), 1);
}

void tst_WQuickView::dispatchShowOfPlainView()
{
    View view;
    QSignalSpy dispatched(&view, &WQuickView::_dispatchShow);
    view.dispatchShow();
    QCOMPARE(dispatched.count(), 1);
    QCoreApplication::processEvents();
    QVERIFY(!view.isVisible());

    ViewOptions options;
    options.dispatchShowEnabled = true;
    view.setViewOptions(options);
    view.showAt(QPoint(50, 50), nullptr);
    QCOMPARE(dispatched.count(), 2);
    QCoreApplication::processEvents();
    QVERIFY(!view.isVisible());
}

void tst_WQuickView::dispatchShowOfDeletedView()
{
    {
        View view(m_engine, nullptr, ViewOptions());
        view.dispatchShow();
    }
    QCoreApplication::processEvents();
    QVERIFY(QGuiApplication::topLevelWindows().isEmpty());
}

void tst_WQuickView::showAt_data()
{
    QTest::addColumn<bool>("giveScreen");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QPoint>("expected");
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint topLeft = area.topLeft();
    const QPoint end = area.bottomRight() + QPoint(1, 1); // the view is 200 x 100
    for (const bool give : {true, false}) {
        const char *with = give ? "given screen" : "own screen";
        QTest::addRow("%s: inside", with) << give << topLeft + QPoint(300, 200) << topLeft + QPoint(300, 200);
        QTest::addRow("%s: bottom-right corner", with) << give << end - QPoint(200, 100) << end - QPoint(200, 100);
        QTest::addRow("%s: off the right edge", with)
            << give << QPoint(end.x() - 150, 300) << QPoint(end.x() - 200, 300);
        QTest::addRow("%s: off the bottom edge", with)
            << give << QPoint(300, end.y() - 1) << QPoint(300, end.y() - 100);
        QTest::addRow("%s: off the corner", with) << give << end - QPoint(10, 10) << end - QPoint(200, 100);
        QTest::addRow("%s: off the left edge", with)
            << give << QPoint(topLeft.x() - 20, 300) << QPoint(topLeft.x(), 300);
        QTest::addRow("%s: off the top edge", with)
            << give << QPoint(300, topLeft.y() - 20) << QPoint(300, topLeft.y());
        QTest::addRow("%s: wholly outside", with) << give << end + QPoint(5, 5) << end + QPoint(5, 5);
    }
}

void tst_WQuickView::showAt()
{
    QFETCH(const bool, giveScreen);
    QFETCH(const QPoint, pos);
    QFETCH(const QPoint, expected);
    View view(m_engine, nullptr, ViewOptions());
    view.setFlags(Qt::ToolTip); // the window manager leaves these where they are
    view.setSource(PlainUrl);
    view.adjustViewSize();
    QCOMPARE(view.size(), QSize(200, 100));
    QSignalSpy dispatched(&view, &WQuickView::_dispatchShow);
    view.showAt(pos, giveScreen ? QGuiApplication::primaryScreen() : nullptr);
    QVERIFY(view.isVisible());
    QCOMPARE(dispatched.count(), 0);
    QCOMPARE(view.position(), expected);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTRY_COMPARE(view.geometry(), QRect(expected, QSize(200, 100)));
}

// A child window is on its parent's screen; it is not to be moved to another.
void tst_WQuickView::showAtOfChildView()
{
    QWindow parent;
    parent.setGeometry(100, 100, 600, 400);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    auto *view = new WQuickView(m_engine, &parent, ViewOptions());
    view->setSource(PlainUrl);
    view->showAt(QPoint(30, 20), nullptr);
    QVERIFY(view->isVisible());
    QCOMPARE(view->position(), QPoint(30, 20));
}

void tst_WQuickView::showAtDispatches()
{
    ViewOptions options;
    options.dispatchShowEnabled = true;
    View view(m_engine, nullptr, options);
    view.setSource(PlainUrl);
    view.adjustViewSize();
    QSignalSpy dispatched(&view, &WQuickView::_dispatchShow);
    view.showAt(QPoint(400, 300), nullptr);
    QCOMPARE(dispatched.count(), 1);
    QVERIFY(!view.isVisible());
    QCOMPARE(view.position(), QPoint(400, 300));
    QTRY_VERIFY(view.isActive());
}

void tst_WQuickView::showAtWidget_data()
{
    QTest::addColumn<QRect>("widget");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("narrower view") << QRect(300, 200, 200, 30) << QSize(100, 50) << QPoint(349, 229);
    QTest::newRow("wider view") << QRect(300, 200, 40, 30) << QSize(100, 50) << QPoint(269, 229);
    QTest::newRow("odd sizes") << QRect(300, 200, 201, 31) << QSize(101, 51) << QPoint(350, 230);
    QTest::newRow("at the left edge") << QRect(0, 200, 40, 30) << QSize(100, 50) << QPoint(0, 229);
    QTest::newRow("at the bottom edge") << QRect(
        300, QGuiApplication::primaryScreen()->availableGeometry().bottom() - 29, 100,
        30) << QSize(100, 50) << QPoint(299, QGuiApplication::primaryScreen()->availableGeometry().bottom() - 49);
}

void tst_WQuickView::showAtWidget()
{
    QFETCH(const QRect, widget);
    QFETCH(const QSize, size);
    QFETCH(const QPoint, expected);
    QWidget outer;
    outer.move(widget.topLeft() - QPoint(7, 11));
    QWidget button(&outer);
    button.setGeometry(QRect(QPoint(7, 11), widget.size()));
    QCOMPARE(button.mapToGlobal(QPoint()), widget.topLeft());

    View view(m_engine, nullptr, ViewOptions());
    view.setFlags(Qt::ToolTip);
    view.resize(size);
    view.showAt(&button, nullptr);
    QVERIFY(view.isVisible());
    QCOMPARE(view.position(), expected);
    view.hide();
    view.showAt(&button, QGuiApplication::primaryScreen());
    QCOMPARE(view.position(), expected);
}

void tst_WQuickView::adjustViewSize_data()
{
    QTest::addColumn<QSizeF>("item");
    QTest::addColumn<QSize>("window");
    QTest::newRow("whole") << QSizeF(320, 180) << QSize(320, 180);
    QTest::newRow("rounded down") << QSizeF(320.4, 180.49) << QSize(320, 180);
    QTest::newRow("rounded up") << QSizeF(320.5, 180.75) << QSize(321, 181);
    QTest::newRow("one pixel") << QSizeF(1, 1) << QSize(1, 1);
}

void tst_WQuickView::adjustViewSize()
{
    QFETCH(const QSizeF, item);
    QFETCH(const QSize, window);
    View view(m_engine, nullptr, ViewOptions());
    view.setSource(PlainUrl);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.rootObject()->setSize(item);
    QVERIFY(view.size() != window);
    view.adjustViewSize();
    QCOMPARE(view.size(), window);
}

void tst_WQuickView::adjustViewSizeFollows()
{
    View view(m_engine, nullptr, ViewOptions());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setSource(PlainUrl);
    QQuickItem *root = view.rootObject();
    const QSize before = view.size();
    root->setSize({333, 222});
    QCOMPARE(view.size(), before);

    const int widthListeners = connectionCount(root, SIGNAL(widthChanged()));
    const int heightListeners = connectionCount(root, SIGNAL(heightChanged()));
    view.adjustViewSize();
    QCOMPARE(view.size(), QSize(333, 222));
    view.adjustViewSize();
    QCOMPARE(connectionCount(root, SIGNAL(widthChanged())), widthListeners + 1);
    QCOMPARE(connectionCount(root, SIGNAL(heightChanged())), heightListeners + 1);

    root->setWidth(400);
    QCOMPARE(view.size(), QSize(400, 222));
    root->setHeight(250.6);
    QCOMPARE(view.size(), QSize(400, 251));
    view.setFlags(Qt::ToolTip);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    root->setSize({150, 90});
    QTRY_COMPARE(view.size(), QSize(150, 90));
}

void tst_WQuickView::adjustViewSizeWithoutRoot()
{
    View view(m_engine, nullptr, ViewOptions());
    view.resize(70, 60);
    view.adjustViewSize();
    QCOMPARE(view.size(), QSize(70, 60));
    view.setSource(PlainUrl);
    QVERIFY(view.rootObject());
}

void tst_WQuickView::focusOnActivate_data()
{
    QTest::addColumn<bool>("hideOnDeactivate");
    QTest::addColumn<bool>("focusOnActivate");
    QTest::newRow("neither") << false << false;
    QTest::newRow("focus") << false << true;
    QTest::newRow("hide") << true << false;
    QTest::newRow("hide and focus") << true << true;
}

void tst_WQuickView::focusOnActivate()
{
    QFETCH(const bool, hideOnDeactivate);
    QFETCH(const bool, focusOnActivate);
    ViewOptions options;
    options.hideOnDeactivate = hideOnDeactivate;
    options.focusOnActivate = focusOnActivate;
    options.deleteOnClose = false;
    View view(m_engine, nullptr, options);
    view.setSource(PlainUrl);
    view.show();
    view.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&view));

    view.contentItem()->setFocus(false, Qt::OtherFocusReason);
    QVERIFY(!view.contentItem()->hasFocus());
    view.onActiveChanged();
    QCOMPARE(view.contentItem()->hasFocus(), focusOnActivate);
    QVERIFY(view.isVisible());

    // By the signal, which is listened to only for hiding.
    view.contentItem()->setFocus(false, Qt::OtherFocusReason);
    Q_EMIT view.activeChanged();
    QCOMPARE(view.contentItem()->hasFocus(), focusOnActivate && hideOnDeactivate);
}

void tst_WQuickView::focusReason()
{
    struct Recorder : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::FocusIn)
                reasons << static_cast<QFocusEvent *>(event)->reason();
            return false;
        }
        QList<Qt::FocusReason> reasons;
    };
    ViewOptions options;
    options.focusOnActivate = true;
    View view(m_engine, nullptr, options);
    view.setSource(PlainUrl);
    view.show();
    view.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.contentItem()->setFocus(false, Qt::OtherFocusReason);
    Recorder recorder;
    view.contentItem()->installEventFilter(&recorder);
    for (QObject *child : view.contentItem()->findChildren<QQuickItem *>())
        child->installEventFilter(&recorder);
    view.rootObject()->installEventFilter(&recorder);
    view.rootObject()->findChild<QQuickItem *>(u"focusable"_s)->installEventFilter(&recorder);
    view.onActiveChanged();
    QVERIFY(!recorder.reasons.isEmpty());
    for (const Qt::FocusReason reason : recorder.reasons)
        QCOMPARE(reason, Qt::ActiveWindowFocusReason);
}

void tst_WQuickView::focusNeedsAReadyView()
{
    ViewOptions options;
    options.focusOnActivate = true;
    View view(m_engine, nullptr, options);
    view.show();
    view.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QCOMPARE(view.status(), QQuickView::Null);
    view.contentItem()->setFocus(false, Qt::OtherFocusReason);
    view.onActiveChanged();
    QVERIFY(!view.contentItem()->hasFocus());
}

void tst_WQuickView::hideOnDeactivate_data()
{
    QTest::addColumn<bool>("hideOnDeactivate");
    QTest::addColumn<bool>("deleteOnClose");
    QTest::addColumn<bool>("preventClose");
    QTest::addColumn<QStringList>("signalOrder");
    QTest::newRow("stays") << false << true << false << QStringList{};
    QTest::newRow("hides") << true << false << false << QStringList{u"hidden"_s};
    QTest::newRow("hides and closes") << true << true << false
                                      << QStringList{u"hidden"_s, u"aboutToClose"_s, u"destroyed"_s};
    QTest::newRow("hides, refuses to close") << true << true << true << QStringList{u"hidden"_s, u"aboutToClose"_s};
}

void tst_WQuickView::hideOnDeactivate()
{
    QFETCH(const bool, hideOnDeactivate);
    QFETCH(const bool, deleteOnClose);
    QFETCH(const bool, preventClose);
    QFETCH(const QStringList, signalOrder);
    ViewOptions options;
    options.hideOnDeactivate = hideOnDeactivate;
    options.deleteOnClose = deleteOnClose;
    options.preventClose = preventClose;
    QPointer<WQuickView> view = new WQuickView(m_engine, nullptr, options);
    view->setSource(PlainUrl);
    view->dispatchShow();
    QVERIFY(QTest::qWaitForWindowActive(view));
    QStringList log;
    watch(view, &log);

    const auto other = makeOtherWindow();
    QVERIFY(QTest::qWaitForWindowActive(other.get()));
    QTRY_COMPARE(log, signalOrder);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(log, signalOrder);
    if (view) {
        QCOMPARE(view->isVisible(), !hideOnDeactivate);
        view->disconnect();
        delete view;
    }
}

void tst_WQuickView::hideWhenParentWindowMoves_data()
{
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("sideways") << QPoint(40, 0) << true;
    QTest::newRow("up and down") << QPoint(0, 40) << true;
    QTest::newRow("both") << QPoint(-30, 20) << true;
    QTest::newRow("not at all") << QPoint(0, 0) << false;
}

void tst_WQuickView::hideWhenParentWindowMoves()
{
    QFETCH(const QPoint, by);
    QFETCH(const bool, hidden);
    QWindow parent;
    parent.setGeometry(200, 200, 300, 200);
    parent.show();
    parent.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    const QPoint start = parent.position();

    ViewOptions options;
    options.hideOnDeactivate = true;
    options.parentWindow = &parent;
    QPointer<WQuickView> view = new WQuickView(m_engine, nullptr, options);
    view->setFlags(Qt::ToolTip); // never becomes the active window
    view->setSource(PlainUrl);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QVERIFY(parent.isActive());
    QVERIFY(view->isVisible());
    QStringList log;
    watch(view, &log);

    parent.setPosition(start + by);
    QTRY_COMPARE(parent.position(), start + by);
    parent.resize(310, 210); // a new size alone changes nothing
    QTRY_COMPARE(parent.size(), QSize(310, 210));
    if (hidden) {
        QTRY_COMPARE(log, (QStringList{u"hidden"_s, u"aboutToClose"_s, u"destroyed"_s}));
        QVERIFY(!view);
    } else {
        QCOMPARE(log, QStringList());
        QVERIFY(view->isVisible());
        view->disconnect();
        delete view;
    }
}

void tst_WQuickView::activeViewStaysWhenParentWindowMoves()
{
    QWindow parent;
    parent.setGeometry(200, 200, 300, 200);
    parent.show();
    parent.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    View view(m_engine, nullptr, ViewOptions());
    view.setSource(PlainUrl);
    view.setPosition(600, 500);
    view.dispatchShow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.deleteOnClose = false;
    options.parentWindow = &parent;
    view.setViewOptions(options); // not before: the activation is on its way from window to window till then

    QSignalSpy moved(&parent, &QWindow::xChanged);
    parent.setX(parent.x() + 50);
    QTRY_VERIFY(moved.count() > 0);
    QVERIFY(view.isVisible());
    QVERIFY(view.isActive());
}

void tst_WQuickView::inactiveHiddenViewStays()
{
    QWindow parent;
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.parentWindow = &parent;
    View view(m_engine, nullptr, options);
    QStringList log;
    watch(&view, &log);
    parent.setPosition(300, 300);
    view.onActiveChanged();
    Q_EMIT qApp->focusWindowChanged(nullptr);
    QCOMPARE(log, QStringList());
    disconnect(&view, nullptr, qApp, nullptr);
}

// The signals stay connected; what they do depends on the options of the moment.
void tst_WQuickView::hideAfterOptionWasCleared()
{
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.deleteOnClose = false;
    View view(m_engine, nullptr, options);
    view.setFlags(Qt::ToolTip);
    view.setSource(PlainUrl);
    view.setViewOptions(ViewOptions());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    Q_EMIT qApp->focusWindowChanged(nullptr);
    QVERIFY(view.isVisible());
    view.setViewOptions(options);
    Q_EMIT qApp->focusWindowChanged(nullptr);
    QVERIFY(!view.isVisible());
}

void tst_WQuickView::nativeShowHook()
{
    QStringList log;
    View view(m_engine, nullptr, ViewOptions());
    watch(&view, &log);
    auto handler = std::make_shared<RecordingHandler>();
    handler->log = &log;
    view.setCustomNativeHandler(handler);
    view.setSource(PlainUrl);
    QCOMPARE(log, QStringList());
    view.show();
    QCOMPARE(log, (QStringList{u"shown"_s, u"aboutToShow"_s, u"show hook"_s}));
    QCOMPARE(handler->lastType, QEvent::Show);
    QCOMPARE(handler->lastWindow, &view);
    QVERIFY(QTest::qWaitForWindowExposed(&view)); // the base class had its event, too
    view.disconnect();
}

void tst_WQuickView::nativeShowHookEachTime()
{
    QStringList log;
    View view(m_engine, nullptr, ViewOptions());
    auto handler = std::make_shared<RecordingHandler>();
    handler->log = &log;
    view.setCustomNativeHandler(handler);
    for (int i = 0; i < 3; ++i) {
        view.show();
        view.hide();
    }
    QCOMPARE(log.size(), 3);
    view.setCustomNativeHandler(nullptr);
    view.show();
    QCOMPARE(log.size(), 3);
}

void tst_WQuickView::nativeEvents_data()
{
    QTest::addColumn<bool>("answer");
    QTest::newRow("answered") << true;
    QTest::newRow("left to Qt") << false;
}

void tst_WQuickView::nativeEvents()
{
    QFETCH(const bool, answer);
    View view(m_engine, nullptr, ViewOptions());
    qintptr result = 1;
    QCOMPARE(view.nativeEvent("none", nullptr, &result), false);
    QCOMPARE(result, 1);

    auto handler = std::make_shared<RecordingHandler>();
    handler->answer = answer;
    view.setCustomNativeHandler(handler);
    QCOMPARE(view.nativeEvent("some type", nullptr, &result), answer);
    QCOMPARE(result, answer ? 5 : 1);
    QCOMPARE(handler->types, QByteArrayList{"some type"});

    view.setCustomNativeHandler(nullptr);
    result = 1;
    QCOMPARE(view.nativeEvent("another", nullptr, &result), false);
    QCOMPARE(result, 1);
    QCOMPARE(handler->types.size(), 1);
}

void tst_WQuickView::nativeEventsOfTheSystem()
{
    View view(m_engine, nullptr, ViewOptions());
    auto handler = std::make_shared<RecordingHandler>();
    view.setCustomNativeHandler(handler);
    view.setSource(PlainUrl);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(!handler->types.isEmpty());
    for (const QByteArray &type : handler->types)
        QCOMPARE(type, "xcb_generic_event_t"_ba);
}

void tst_WQuickView::nativeHandlerIsShared()
{
    auto handler = std::make_shared<RecordingHandler>();
    const std::weak_ptr<RecordingHandler> observer = handler;
    {
        View view(m_engine, nullptr, ViewOptions());
        view.setCustomNativeHandler(handler);
        QCOMPARE(handler.use_count(), 2);
        view.setCustomNativeHandler(handler);
        QCOMPARE(handler.use_count(), 2);
    }
    QCOMPARE(handler.use_count(), 1);
    {
        View view(m_engine, nullptr, ViewOptions());
        view.setCustomNativeHandler(std::move(handler));
        QVERIFY(!observer.expired());
        view.setCustomNativeHandler(std::make_shared<RecordingHandler>());
        QVERIFY(observer.expired());
    }
}

void tst_WQuickView::performance()
{
    View view(m_engine, nullptr, ViewOptions());
    view.setObjectName(u"Timed"_s);
    view.setSource(PlainUrl);
    QVERIFY(!view.getPerformanceWatcherEnabled());
    view.setPerformanceWatcherEnabled(true);
    QVERIFY(view.getPerformanceWatcherEnabled());

    QSignalSpy finished(&view, &WQuickView::finishedRendering);
    QThread *emittedIn = nullptr;
    connect(
        &view, &WQuickView::finishedRendering, &view, [&] { emittedIn = QThread::currentThread(); },
        Qt::DirectConnection);
    QElapsedTimer total;
    total.start();
    view.show();
    QTRY_VERIFY(finished.count() >= 1);
    QCOMPARE(emittedIn, thread());
    for (int frame = 0; frame < 3; ++frame) {
        const auto before = finished.count();
        view.rootObject()->setProperty("color", QColor(frame * 50, 0, 0));
        QTRY_VERIFY(finished.count() > before);
    }
    for (const QVariantList &arguments : finished) {
        QCOMPARE(arguments.at(0).toString(), u"Timed"_s);
        QCOMPARE_GE(arguments.at(1).toLongLong(), 0);
        QCOMPARE_LE(arguments.at(1).toLongLong(), total.elapsed());
    }
}

void tst_WQuickView::performanceOff()
{
    View view(m_engine, nullptr, ViewOptions());
    view.setSource(PlainUrl);
    view.setPerformanceWatcherEnabled(true);
    QSignalSpy finished(&view, &WQuickView::finishedRendering);
    view.show();
    QTRY_VERIFY(finished.count() >= 1);
    view.setPerformanceWatcherEnabled(false);
    QVERIFY(!view.getPerformanceWatcherEnabled());
    finished.clear();

    QSignalSpy swapped(&view, &QQuickWindow::frameSwapped);
    view.rootObject()->setProperty("color", QColor(Qt::yellow));
    QTRY_VERIFY(swapped.count() >= 1);
    QCoreApplication::processEvents();
    QCOMPARE(finished.count(), 0);
    // Switched off twice, and a frame that comes late.
    view.setPerformanceWatcherEnabled(false);
    Q_EMIT view.afterRendering();
    QCOMPARE(finished.count(), 0);
}

void tst_WQuickView::performanceTwice()
{
    View view(m_engine, nullptr, ViewOptions());
    view.setObjectName(u"Timed"_s);
    QSignalSpy finished(&view, &WQuickView::finishedRendering);
    view.setPerformanceWatcherEnabled(true);
    view.setPerformanceWatcherEnabled(true);
    Q_EMIT view.beforeRendering();
    QCOMPARE(finished.count(), 0);
    Q_EMIT view.afterRendering();
    QCOMPARE(finished.count(), 1);
    view.setObjectName(u"Renamed"_s);
    Q_EMIT view.afterRendering();
    QCOMPARE(finished.count(), 2);
    QCOMPARE(finished.at(0).at(0).toString(), u"Timed"_s);
    QCOMPARE(finished.at(1).at(0).toString(), u"Renamed"_s);

    view.setPerformanceWatcherEnabled(false);
    view.setPerformanceWatcherEnabled(true);
    Q_EMIT view.afterRendering();
    QCOMPARE(finished.count(), 3);
}

// A frame's time begins with the frame, the first one's when watching begins.
void tst_WQuickView::performanceOfEachFrame()
{
    View view(m_engine, nullptr, ViewOptions());
    view.setPerformanceWatcherEnabled(true);
    QSignalSpy finished(&view, &WQuickView::finishedRendering);
    QElapsedTimer total;
    total.start();
    QVERIFY(QTest::qWaitFor([&] { return total.hasExpired(100); }));
    Q_EMIT view.afterRendering();
    QCOMPARE_GE(finished.at(0).at(1).toLongLong(), 100);

    QElapsedTimer frame;
    frame.start();
    Q_EMIT view.beforeRendering();
    Q_EMIT view.afterRendering();
    QCOMPARE_LE(finished.at(1).at(1).toLongLong(), frame.elapsed());
}

void tst_WQuickView::controllers_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name"); // null: none
    QTest::newRow("none") << u"Plain"_s << QString();
    QTest::newRow("one") << u"Controlled"_s << u"controlled"_s;
    QTest::newRow("a grandchild") << u"NestedController"_s << QString();
    QTest::newRow("the first of two") << u"ManyControllers"_s << u"first"_s;
}

void tst_WQuickView::controllers()
{
    QFETCH(const QString, file);
    QFETCH(const QString, name);
    View view(m_engine, nullptr, ViewOptions());
    view.setSource(QUrl("qrc:/Qml/"_L1 + file + ".qml"_L1));
    QCOMPARE(view.status(), QQuickView::Ready);

    const QPointer<WQmlController> found = view.findController();
    QCOMPARE(found.isNull(), name.isNull());
    QList<WQmlController *> calledBack;
    view.callControllerCallback([&](WQmlController *controller) { calledBack << controller; });
    view.callControllerCallback({});
    QCOMPARE(calledBack, found ? QList<WQmlController *>{found} : QList<WQmlController *>{});
    if (found) {
        QCOMPARE(qobject_cast<TestController *>(found)->name(), name);
        QCOMPARE(found->parent(), view.rootObject());
    }
    QCOMPARE(TestController::journal(), QStringList()); // no init() without the engine's factories
}

void tst_WQuickView::controllerWithoutRoot()
{
    View view(m_engine, nullptr, ViewOptions());
    QVERIFY(view.findController().isNull());
    bool called = false;
    view.callControllerCallback([&](WQmlController *) { called = true; });
    QVERIFY(!called);

    view.setSource(ControlledUrl);
    const QPointer<WQmlController> controller = view.findController();
    QVERIFY(controller);
    delete view.rootObject();
    QVERIFY(!controller);
    QVERIFY(view.findController().isNull());
    view.callControllerCallback([&](WQmlController *) { called = true; });
    QVERIFY(!called);
}

void tst_WQuickView::underMouse_data()
{
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<bool>("under");
    QTest::newRow("centre") << QPoint(400, 350) << true;
    QTest::newRow("top-left pixel") << QPoint(300, 300) << true;
    QTest::newRow("bottom-right pixel") << QPoint(499, 399) << true;
    QTest::newRow("left of it") << QPoint(299, 350) << false;
    QTest::newRow("right of it") << QPoint(500, 350) << false;
    QTest::newRow("above it") << QPoint(400, 299) << false;
    QTest::newRow("below it") << QPoint(400, 400) << false;
}

void tst_WQuickView::underMouse()
{
    QFETCH(const QPoint, cursor);
    View view(m_engine, nullptr, ViewOptions());
    view.setFlags(Qt::ToolTip);
    view.setGeometry(300, 300, 200, 100);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.geometry(), QRect(300, 300, 200, 100));
    QCursor::setPos(cursor);
    QTRY_COMPARE(QCursor::pos(), cursor);
    QTEST(view.underMouse(), "under");
}

LUMAKIT_TEST_MAIN(tst_WQuickView)
#include "tst_wquickview.moc"
