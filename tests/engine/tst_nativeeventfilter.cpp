#include <FixedNativeEventFilter.h>
#include <NativeEventFilter.h>
#include <TestCase.h>

#include <QShowEvent>
#include <QWindow>

#include <array>

using namespace Qt::StringLiterals;

using States = QList<Qt::WindowState>;

class tst_NativeEventFilter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjects_data();
    void metaObjects();
    void restore_data();
    void restore();
    void restoreEachTime();
    void maximizedBeforehand();
    void fixedWindowsStay();
    void realStates();
    void messages_data();
    void messages();
    void windowGone();
    void showHook_data();
    void showHook();
    void noWindow();
    void sharedOwnership();
};

void tst_NativeEventFilter::metaObjects_data()
{
    QTest::addColumn<const QMetaObject *>("meta");
    QTest::addColumn<const QMetaObject *>("base");
    QTest::newRow("abstract") << &WQAbstractNativeEventFilter::staticMetaObject << &QObject::staticMetaObject;
    QTest::newRow("resizable") << &NativeEventFilter::staticMetaObject
                               << &WQAbstractNativeEventFilter::staticMetaObject;
    QTest::newRow("fixed") << &FixedNativeEventFilter::staticMetaObject
                           << &WQAbstractNativeEventFilter::staticMetaObject;
}

void tst_NativeEventFilter::metaObjects()
{
    QFETCH(const QMetaObject *, meta);
    QTEST(meta->superClass(), "base");
    QCOMPARE(meta->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(meta->propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta->enumeratorCount(), 0);
}

void tst_NativeEventFilter::restore_data()
{
    QTest::addColumn<States>("states");
    QTest::addColumn<bool>("maximizedAgain");

    constexpr auto Normal = Qt::WindowNoState;
    constexpr auto Minimized = Qt::WindowMinimized;
    constexpr auto Maximized = Qt::WindowMaximized;
    constexpr auto FullScreen = Qt::WindowFullScreen;
    QTest::newRow("nothing") << States{} << false;
    QTest::newRow("normal, as it is") << States{Normal} << false;
    QTest::newRow("maximised") << States{Maximized} << false;
    QTest::newRow("minimised") << States{Minimized} << false;
    QTest::newRow("maximised, minimised") << States{Maximized, Minimized} << false;
    QTest::newRow("maximised, minimised, told twice") << States{Maximized, Minimized, Minimized} << false;
    QTest::newRow("maximised, minimised, normal") << States{Maximized, Minimized, Normal} << true;
    QTest::newRow("maximised, minimised, maximised") << States{Maximized, Minimized, Maximized} << true;
    QTest::newRow("maximised, minimised, full screen") << States{Maximized, Minimized, FullScreen} << true;
    QTest::newRow("repeated states count once")
        << States{Maximized, Maximized, Minimized, Minimized, Minimized, Normal} << true;
    QTest::newRow("from normal") << States{Minimized, Normal} << false;
    QTest::newRow("from full screen") << States{FullScreen, Minimized, Normal} << false;
    QTest::newRow("maximised long ago") << States{Maximized, Normal, Minimized, Normal} << false;
    QTest::newRow("full screen in between") << States{Maximized, FullScreen, Minimized, Normal} << false;
    QTest::newRow("first from normal, then from maximised")
        << States{Minimized, Normal, Maximized, Minimized, Normal} << true;
}

void tst_NativeEventFilter::restore()
{
    QFETCH(const States, states);
    QFETCH(const bool, maximizedAgain);
    QWindow window;
    NativeEventFilter filter(&window);
    for (const Qt::WindowState state : states)
        Q_EMIT window.windowStateChanged(state);
    QCOMPARE(window.isVisible(), maximizedAgain);
    QCOMPARE(window.windowState(), maximizedAgain ? Qt::WindowMaximized : Qt::WindowNoState);
}

void tst_NativeEventFilter::restoreEachTime()
{
    QWindow window;
    NativeEventFilter filter(&window);
    Q_EMIT window.windowStateChanged(Qt::WindowMaximized);
    for (int i = 0; i < 3; ++i) {
        window.hide();
        window.setWindowState(Qt::WindowMinimized);
        QVERIFY(!window.isVisible());
        window.setWindowState(Qt::WindowNoState);
        QVERIFY(window.isVisible());
        QCOMPARE(window.windowState(), Qt::WindowMaximized);
    }
}

// What the window was before the filter does not count as a change.
void tst_NativeEventFilter::maximizedBeforehand()
{
    QWindow window;
    window.setWindowState(Qt::WindowMaximized);
    NativeEventFilter filter(&window);
    Q_EMIT window.windowStateChanged(Qt::WindowMinimized);
    Q_EMIT window.windowStateChanged(Qt::WindowNoState);
    QVERIFY(!window.isVisible());
}

void tst_NativeEventFilter::fixedWindowsStay()
{
    QWindow window;
    FixedNativeEventFilter filter(&window);
    for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowMinimized, Qt::WindowNoState})
        window.setWindowState(state);
    QVERIFY(!window.isVisible());
    QCOMPARE(window.windowState(), Qt::WindowNoState);
}

void tst_NativeEventFilter::realStates()
{
    QWindow window;
    window.setGeometry(200, 200, 300, 200);
    NativeEventFilter filter(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.showMaximized();
    QTRY_VERIFY(window.width() > 300);
    const QSize maximized = window.size();
    window.showMinimized();
    QTRY_VERIFY(!window.isExposed());

    window.showNormal();
    QTRY_VERIFY(window.isExposed());
    QTRY_COMPARE(window.windowState(), Qt::WindowMaximized);
    QTRY_COMPARE(window.size(), maximized);

    window.showNormal();
    QTRY_COMPARE(window.windowState(), Qt::WindowNoState);
    QTRY_COMPARE(window.size(), QSize(300, 200));
}

void tst_NativeEventFilter::messages_data()
{
    QTest::addColumn<bool>("fixed");
    QTest::addColumn<bool>("hasMessage");
    QTest::newRow("resizable, no message") << false << false;
    QTest::newRow("fixed, no message") << true << false;
#ifndef Q_OS_WIN // there a message has a meaning
    QTest::newRow("resizable") << false << true;
    QTest::newRow("fixed") << true << true;
#endif
}

void tst_NativeEventFilter::messages()
{
    QFETCH(const bool, fixed);
    QFETCH(const bool, hasMessage);
    QWindow window;
    std::unique_ptr<WQAbstractNativeEventFilter> filter;
    if (fixed)
        filter = std::make_unique<FixedNativeEventFilter>(&window);
    else
        filter = std::make_unique<NativeEventFilter>(&window);

    std::array<char, 64> message{};
    for (const QByteArray &type : {"windows_generic_MSG"_ba, "xcb_generic_event_t"_ba, ""_ba}) {
        qintptr result = 77;
        QCOMPARE(filter->nativeEventFilter(type, hasMessage ? message.data() : nullptr, &result), false);
        QCOMPARE(result, 77);
    }
    const std::array<char, 64> untouched{};
    QCOMPARE(message, untouched);
}

void tst_NativeEventFilter::windowGone()
{
    auto window = std::make_unique<QWindow>();
    NativeEventFilter resizable(window.get());
    FixedNativeEventFilter fixed(window.get());
    window.reset();
    qintptr result = 77;
    std::array<char, 64> message{};
    QCOMPARE(resizable.nativeEventFilter({}, message.data(), &result), false);
    QCOMPARE(result, 77);
    QShowEvent event;
    resizable.showEvent(&event, nullptr);
    fixed.showEvent(&event, nullptr);
    QVERIFY(event.isAccepted());
}

void tst_NativeEventFilter::showHook_data()
{
    QTest::addColumn<Qt::WindowFlags>("flags");
    QTest::newRow("plain") << Qt::WindowFlags(Qt::Window);
    QTest::newRow("frameless") << (Qt::Window | Qt::FramelessWindowHint);
    QTest::newRow("frameless dialog") << (Qt::Dialog | Qt::FramelessWindowHint);
}

void tst_NativeEventFilter::showHook()
{
    QFETCH(const Qt::WindowFlags, flags);
    QWindow window;
    window.setFlags(flags);
    NativeEventFilter resizable(&window);
    FixedNativeEventFilter fixed(&window);
    QShowEvent event;
    resizable.showEvent(&event, &window);
    fixed.showEvent(&event, &window);
#ifdef Q_OS_WIN
    QCOMPARE(window.flags(), flags & ~Qt::FramelessWindowHint);
#else
    QCOMPARE(window.flags(), flags);
    QVERIFY(!window.handle());
#endif
}

void tst_NativeEventFilter::noWindow()
{
    NativeEventFilter resizable(nullptr);
    FixedNativeEventFilter fixed(nullptr);
    QCOMPARE(resizable.parent(), nullptr);
    QCOMPARE(fixed.parent(), nullptr);
    qintptr result = 77;
    QCOMPARE(resizable.nativeEventFilter({}, nullptr, &result), false);
    QCOMPARE(fixed.nativeEventFilter({}, nullptr, &result), false);
    QCOMPARE(result, 77);
}

// A filter that goes first no longer listens.
void tst_NativeEventFilter::sharedOwnership()
{
    QWindow window;
    auto filter = std::make_shared<NativeEventFilter>(&window);
    const std::shared_ptr<WQAbstractNativeEventFilter> other = filter;
    filter.reset();
    Q_EMIT window.windowStateChanged(Qt::WindowMaximized);
    Q_EMIT window.windowStateChanged(Qt::WindowMinimized);
    QWindow second;
    {
        const NativeEventFilter shortLived(&second);
        Q_EMIT second.windowStateChanged(Qt::WindowMaximized);
        Q_EMIT second.windowStateChanged(Qt::WindowMinimized);
    }
    Q_EMIT second.windowStateChanged(Qt::WindowNoState);
    QVERIFY(!second.isVisible());
    Q_EMIT window.windowStateChanged(Qt::WindowNoState);
    QVERIFY(window.isVisible());
}

LUMAKIT_TEST_MAIN(tst_NativeEventFilter)
#include "tst_nativeeventfilter.moc"
