#include <TestCase.h>
#include <WQmlEngine.h>
#include <WQuickView.h>

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {
const QString NoEngine =
    u"Unable to create QML view! WQmlEngine is not attached to WApplication! This should never happen!"_s;
const QString EmptyView = u"Trying to create a Qml view for an empty source! This should never happen!"_s;
} // namespace

// A process whose application object is not the library's.
class tst_WQmlEngineNoApplication : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void factories_data();
    void factories();
    void viewOfItsOwn();
};

void tst_WQmlEngineNoApplication::factories_data()
{
    QTest::addColumn<QString>("factory");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("warnings");
    QTest::newRow("window") << u"window"_s << u"Plain.qml"_s << QStringList{NoEngine};
    QTest::newRow("dialog") << u"dialog"_s << u"Plain.qml"_s << QStringList{NoEngine};
    QTest::newRow("component") << u"component"_s << u"Plain.qml"_s << QStringList{NoEngine};
    QTest::newRow("window, empty source") << u"window"_s << u""_s << QStringList{EmptyView};
    QTest::newRow("dialog, empty source") << u"dialog"_s << u""_s << QStringList{EmptyView};
    QTest::newRow("component, empty source")
        << u"component"_s << u""_s << QStringList{EmptyView + " Resource:  \"\""_L1};
}

void tst_WQmlEngineNoApplication::factories()
{
    QFETCH(const QString, factory);
    QFETCH(const QString, source);
    QFETCH(const QStringList, warnings);
    QWindow parent;
    int calls = 0;
    const auto callback = [&calls](WQmlController *) { ++calls; };
    const auto componentCallback = [&calls](QObject *, WQmlController *) { ++calls; };

    const LogRecorder log;
    if (factory == "window"_L1)
        QVERIFY(WQmlEngine::createQmlWindow(source, &parent, {}, callback).isNull());
    else if (factory == "dialog"_L1)
        QVERIFY(WQmlEngine::createQmlDialog(source, &parent, {}, callback, true).isNull());
    else
        WQmlEngine::createQmlComponent(source, &parent, {}, componentCallback);
    QCoreApplication::processEvents();
    QCOMPARE(log.texts(), warnings);
    QCOMPARE(log.warnings(), warnings);
    QCOMPARE(calls, 0);
    QVERIFY(parent.children().isEmpty());
}

// A view on an engine that the caller made has no application to take an icon from.
void tst_WQmlEngineNoApplication::viewOfItsOwn()
{
    WQmlEngine engine;
    const WQuickView view(&engine, nullptr, ViewOptions());
    QCOMPARE(view.engine(), &engine);
    QVERIFY(view.icon().isNull());
}

LUMAKIT_PLAIN_TEST_MAIN(tst_WQmlEngineNoApplication)
#include "tst_wqmlengine_noapplication.moc"
