#include "MetaDescription.h"
#include "Scenario.h"

#include <IWApplication.h>
#include <SvgImageProvider.h>
#include <TestCase.h>
#include <WQmlEngine.h>

#include <QJSEngine>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlContext>
#include <QTemporaryDir>

#include <private/qmetaobject_p.h>
#include <private/qobject_p.h>

#include <cstring>

using namespace Qt::StringLiterals;
using Scenario::say;

namespace {

QByteArray theme(const char *name, const char *color)
{
    return R"({"tokens":{")" + QByteArray(name) + R"(":{"normal":)" + color + "}}}";
}

constexpr auto Red = R"({"r":255,"g":0,"b":0,"a":1})";
constexpr auto Green = R"({"r":0,"g":128,"b":0,"a":1})";
constexpr auto Blue = R"({"r":0,"g":0,"b":255,"a":1})";

QMap<QString, QByteArray> themeFiles()
{
    return {{u"/Themes/meridian_default.json"_s, theme("light-only", Red)},
            {u"/Themes/default.json"_s, theme("both", Green)},
            {u"/Themes/meridian_dark.json"_s, theme("dark-only", Red)},
            {u"/Themes/dark.json"_s, theme("both", Blue)},
            {u"/Themes/meridian_.json"_s, theme("empty-only", Red)},
            {u"/Themes/.json"_s, theme("both", Red)},
            {u"/Themes/meridian_half.json"_s, theme("half", Red)}};
}

const QString NoTokens = u"Could not find the 'tokens' object in the json file"_s;
const QString CreatingEngine = u"[UILifecycle][Startup] Creating WQmlEngine."_s;
const QString FinishedEngine = u"[UILifecycle][Startup] Finished creating WQmlEngine."_s;

/// A host that writes into the log when its hook is called.
class Host : public IWApplication
{
    Q_OBJECT

public:
    using IWApplication::IWApplication;

    QPointer<WQmlEngine> preparedEngine;
    bool hadProvider = false;
    WQmlEngine *engineInHook = nullptr;

    void prepareQmlEngine(WQmlEngine *engine) override
    {
        preparedEngine = engine;
        hadProvider = engine->imageProvider(u"svg"_s);
        engineInHook = getQmlEngine();
        qInfo() << "prepareQmlEngine";
    }
};

Host *host()
{
    return static_cast<Host *>(QCoreApplication::instance());
}

QStringList emitted; // the library's own signals while an application object is made

void recordSignal(QObject *sender, int signalIndex, void **)
{
    const QMetaMethod method = QMetaObjectPrivate::signal(sender->metaObject(), signalIndex);
    const QMetaObject *owner = method.enclosingMetaObject();
    if (owner && QByteArrayView(owner->className()).endsWith("WApplication"))
        emitted << QString::fromLatin1(method.methodSignature());
}

QStringList startMessages;

} // namespace

class tst_IWApplication : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void virtualTableOrder();
    void start();
    void nothingEmittedWhileConstructing();

    void setThemeMode();
    void setThemeModeEmitsLast();
    void setSameThemeMode();
    void setThemeModeWithinItsSignal();
    void setThemeModeMessages_data();
    void setThemeModeMessages();
    void themeModeProperty();

    void colorSet_data();
    void colorSet();
    void colorSetOfMetaObject();
    void colorSets();
    void defaults();

    void qmlEngine();
    void qmlBindings();

    void storedMode_data();
    void storedMode();
    void settingsAreOfOrganisationAndName();
    void destroyedWithEngine();
    void destroyedWithoutEngine();

protected:
    void tidy() override
    {
        const LogRecorder log;
        host()->setThemeMode(u"default"_s);
    }
};

void tst_IWApplication::metaObject()
{
    const QMetaObject &meta = IWApplication::staticMetaObject;
    QCOMPARE(meta.superClass(), &QApplication::staticMetaObject);
    QCOMPARE(MetaDescription::properties(meta), QStringList{u"QString themeMode, themeModeChanged"_s});
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList{u"void themeModeChanged()"_s});
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    QCOMPARE(MetaDescription::invokables(meta),
             (QStringList{u"WColorSet getColorSet(QString,QString)"_s, u"WColorSet getColorSet(QString)"_s,
                          u"bool animationsDisabled()"_s}));
    QVERIFY(meta.method(meta.indexOfMethod("getColorSet(QString,QString)")).isConst());
    QVERIFY(!meta.method(meta.indexOfMethod("animationsDisabled()")).isConst());
}

void tst_IWApplication::virtualTableOrder()
{
#ifdef __GXX_ABI_VERSION
    const auto place = [](auto member) {
        std::ptrdiff_t parts[2] = {};
        static_assert(sizeof member == sizeof parts);
        std::memcpy(parts, &member, sizeof parts);
        return parts[0];
    };
    // A member pointer to a virtual function holds its offset in the table, plus one.
    const auto notify = place(&QApplication::notify);
    const auto movieSource = place(&IWApplication::getMovieProviderSource);
    const auto hook = place(&Host::prepareQmlEngine);
    QCOMPARE(movieSource % 2, 1);
    QCOMPARE_LT(notify, movieSource);
    QCOMPARE(hook - movieSource, std::ptrdiff_t(sizeof(void *)));
#else
    QSKIP("another ABI");
#endif
}

void tst_IWApplication::start()
{
    QCOMPARE(host()->getThemeMode(), u"default"_s);
    QCOMPARE(startMessages, QStringList());
    QCOMPARE(host()->getColorSets().size(), 4U);
    QCOMPARE(host()->getColorSet(u"light-only"_s, {}), WColorSet(u"light-only"_s, QColor(255, 0, 0)));
    QCOMPARE(host()->getColorSet(u"both"_s, {}), WColorSet(u"both"_s, QColor(0, 128, 0)));
}

void tst_IWApplication::nothingEmittedWhileConstructing()
{
    QCOMPARE(emitted, QStringList{u"themeModeChanged()"_s}); // the recorder works: main() emits that one afterwards
}

void tst_IWApplication::setThemeMode()
{
    QSignalSpy spy(host(), &IWApplication::themeModeChanged);
    LogRecorder log;
    host()->setThemeMode(u"dark"_s);
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtDebugMsg, u"setThemeMode:  \"dark\""_s}}));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(host()->getThemeMode(), u"dark"_s);
    QCOMPARE(QSettings().value(u"ThemeMode"_s).toString(), u"dark"_s);
    QCOMPARE(QSettings().allKeys(), QStringList{u"ThemeMode"_s});
    // The catalogue is replaced whole.
    QCOMPARE(host()->getColorSets().size(), 4U);
    QVERIFY(!host()->getColorSets().contains("light-only"));
    QCOMPARE(host()->getColorSet(u"dark-only"_s, {}).normal, QColor(255, 0, 0));
    QCOMPARE(host()->getColorSet(u"both"_s, {}).normal, QColor(0, 0, 255));
    QCOMPARE(host()->getColorSet(u"transparent"_s, {}).normal, QColor(Qt::transparent));
}

void tst_IWApplication::setThemeModeEmitsLast()
{
    LogRecorder log;
    int calls = 0;
    const auto connection = connect(host(), &IWApplication::themeModeChanged, this, [&] {
        ++calls;
        QCOMPARE(host()->getThemeMode(), u"dark"_s);
        QCOMPARE(QSettings().value(u"ThemeMode"_s).toString(), u"dark"_s);
        QCOMPARE(host()->getColorSet(u"both"_s, {}).normal, QColor(0, 0, 255));
        QCOMPARE(log.texts(), QStringList{u"setThemeMode:  \"dark\""_s});
    });
    host()->setThemeMode(u"dark"_s);
    disconnect(connection);
    QCOMPARE(calls, 1);
}

void tst_IWApplication::setSameThemeMode()
{
    QSettings().setValue(u"ThemeMode"_s, u"untouched"_s);
    const auto *set = &*host()->getColorSets().find("both");
    QSignalSpy spy(host(), &IWApplication::themeModeChanged);
    LogRecorder log;
    host()->setThemeMode(u"default"_s);
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtDebugMsg, u"The theme already is \"default\""_s}}));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(QSettings().value(u"ThemeMode"_s).toString(), u"untouched"_s);
    QCOMPARE(&*host()->getColorSets().find("both"), set);

    log.clear();
    host()->setThemeMode(u"dark"_s);
    host()->setThemeMode(u"dark"_s);
    QCOMPARE(log.texts(), (QStringList{u"setThemeMode:  \"dark\""_s, u"The theme already is \"dark\""_s}));
    QCOMPARE(spy.count(), 1);
}

void tst_IWApplication::setThemeModeWithinItsSignal()
{
    QSignalSpy spy(host(), &IWApplication::themeModeChanged);
    const auto connection =
        connect(host(), &IWApplication::themeModeChanged, this, [] { host()->setThemeMode(u"half"_s); });
    LogRecorder log;
    host()->setThemeMode(u"dark"_s);
    disconnect(connection);
    QCOMPARE(log.texts(),
             (QStringList{u"setThemeMode:  \"dark\""_s, NoTokens, u"setThemeMode:  \"half\""_s,
                          u"The theme already is \"half\""_s}));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(host()->getThemeMode(), u"half"_s);
    QCOMPARE(QSettings().value(u"ThemeMode"_s).toString(), u"half"_s);
    QVERIFY(host()->getColorSets().contains("half"));
}

void tst_IWApplication::setThemeModeMessages_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<int>("sets");
    QTest::newRow("complete") << u"dark"_s << QStringList{u"setThemeMode:  \"dark\""_s} << 4;
    QTest::newRow("one file") << u"half"_s << QStringList{NoTokens, u"setThemeMode:  \"half\""_s} << 3;
    QTest::newRow("no files") << u"nope"_s << QStringList{NoTokens, NoTokens, u"setThemeMode:  \"nope\""_s} << 2;
    QTest::newRow("empty") << u""_s << QStringList{u"setThemeMode:  \"\""_s} << 4;
    QTest::newRow("another case") << u"Dark"_s << QStringList{NoTokens, NoTokens, u"setThemeMode:  \"Dark\""_s} << 2;
    QTest::newRow("path characters") << u"../dark"_s << QStringList{NoTokens, NoTokens, u"setThemeMode:  \"../dark\""_s}
                                     << 2;
    // The design system's pattern then names ":/Themes/dark.json".
    QTest::newRow("path characters that name another theme's file")
        << u"../../dark"_s << QStringList{NoTokens, u"setThemeMode:  \"../../dark\""_s} << 3;
    QTest::newRow("back slashes") << u"..\\dark"_s
                                  << QStringList{NoTokens, NoTokens, u"setThemeMode:  \"..\\\\dark\""_s} << 2;
    QTest::newRow("line break") << u"a\nb"_s << QStringList{NoTokens, NoTokens, u"setThemeMode:  \"a\\nb\""_s} << 2;
    QTest::newRow("not ASCII") << u"d\u00e4rk"_s << QStringList{NoTokens, NoTokens, u"setThemeMode:  \"d\u00e4rk\""_s}
                               << 2;
}

void tst_IWApplication::setThemeModeMessages()
{
    QFETCH(QString, mode);
    QFETCH(QStringList, messages);
    QFETCH(int, sets);
    QSignalSpy spy(host(), &IWApplication::themeModeChanged);
    LogRecorder log;
    host()->setThemeMode(mode);
    QCOMPARE(log.texts(), messages);
    QCOMPARE(log.lines().last().type, QtDebugMsg);
    QCOMPARE(log.warnings(), messages.first(messages.size() - 1));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(host()->getThemeMode(), mode);
    QCOMPARE(QSettings().value(u"ThemeMode"_s).toString(), mode);
    QCOMPARE(host()->getColorSets().size(), size_t(sets));
}

void tst_IWApplication::themeModeProperty()
{
    QSignalSpy spy(host(), &IWApplication::themeModeChanged);
    QCOMPARE(host()->property("themeMode").toString(), u"default"_s);
    LogRecorder log;
    QVERIFY(host()->setProperty("themeMode", u"dark"_s));
    QCOMPARE(host()->property("themeMode").toString(), u"dark"_s);
    QVERIFY(host()->setProperty("themeMode", u"dark"_s));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(log.texts(), (QStringList{u"setThemeMode:  \"dark\""_s, u"The theme already is \"dark\""_s}));
}

void tst_IWApplication::colorSet_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<WColorSet>("expected");
    QTest::addColumn<QStringList>("messages");
    const auto unknown = [](const QString &quoted) {
        return QStringList{u"ColorSet name does not exist!  "_s + quoted};
    };
    QTest::newRow("known") << u"t"_s << WColorSet(u"t"_s, QColor(255, 0, 0)) << QStringList();
    QTest::newRow("not ASCII") << u"\u00fc-\U0001f33f"_s << WColorSet(u"\u00fc-\U0001f33f"_s, QColor(0, 128, 0))
                               << QStringList();
    QTest::newRow("transparent") << u"transparent"_s << WColorSet(u"transparent"_s, Qt::transparent) << QStringList();
    QTest::newRow("#00000000") << u"#00000000"_s << WColorSet(u"transparent"_s, Qt::transparent) << QStringList();
    QTest::newRow("empty") << u""_s << WColorSet() << QStringList();
    QTest::newRow("null") << QString() << WColorSet() << QStringList();
    QTest::newRow("unknown") << u"nope"_s << WColorSet() << unknown(u"\"nope\""_s);
    QTest::newRow("another case") << u"T"_s << WColorSet() << unknown(u"\"T\""_s);
    QTest::newRow("with a zero behind") << u"t\0"_s << WColorSet() << unknown(u"\"t\\u0000\""_s);
}

void tst_IWApplication::colorSet()
{
    QFETCH(QString, name);
    QFETCH(WColorSet, expected);
    QFETCH(QStringList, messages);
    const MemoryResources resources(
        {{u"/Themes/meridian_rows.json"_s,
          R"({"tokens":{"t":{"normal":)" + QByteArray(Red) + R"(},"\u00fc-\ud83c\udf3f":{"normal":)" + Green + "}}}"}});
    LogRecorder log;
    host()->setThemeMode(u"rows"_s);
    log.clear();
    QCOMPARE(host()->getColorSet(name), expected);
    QCOMPARE(host()->getColorSet(name, u"t"_s), expected);
    QCOMPARE(log.texts(), messages + messages);
    QCOMPARE(log.warnings(), messages + messages);
}

void tst_IWApplication::colorSetOfMetaObject()
{
    WColorSet set;
    QVERIFY(QMetaObject::invokeMethod(host(), "getColorSet", qReturnArg(set), u"both"_s));
    QCOMPARE(set.normal, QColor(0, 128, 0));
    set = {};
    QVERIFY(QMetaObject::invokeMethod(host(), "getColorSet", qReturnArg(set), u"both"_s, u"ignored"_s));
    QCOMPARE(set.normal, QColor(0, 128, 0));
}

void tst_IWApplication::colorSets()
{
    const auto *sets = &host()->getColorSets();
    {
        const LogRecorder log;
        host()->setThemeMode(u"dark"_s);
    }
    QCOMPARE(&host()->getColorSets(), sets); // the member, whatever is in it
    QStringList names;
    for (const auto &[name, set] : host()->getColorSets())
        names << QString::fromStdString(name);
    names.sort();
    QCOMPARE(names, (QStringList{u"#00000000"_s, u"both"_s, u"dark-only"_s, u"transparent"_s}));
}

void tst_IWApplication::defaults()
{
    QVERIFY(!host()->animationsDisabled());
    QCOMPARE(host()->getMovieProviderSource(), nullptr);
    bool disabled = true;
    QVERIFY(QMetaObject::invokeMethod(host(), "animationsDisabled", qReturnArg(disabled)));
    QVERIFY(!disabled);
}

void tst_IWApplication::qmlEngine()
{
    LogRecorder log;
    WQmlEngine *engine = host()->getQmlEngine();
    QVERIFY(engine);
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{
                 {QtDebugMsg, CreatingEngine}, {QtInfoMsg, u"prepareQmlEngine"_s}, {QtDebugMsg, FinishedEngine}}));
    QCOMPARE(engine->parent(), nullptr);
    QCOMPARE(host()->preparedEngine, engine);
    QCOMPARE(host()->engineInHook, engine);
    QVERIFY(!host()->hadProvider);
    QVERIFY(dynamic_cast<SvgImageProvider *>(engine->imageProvider(u"svg"_s)));

    const QPointer<QQmlImageProviderBase> provider = engine->imageProvider(u"svg"_s);
    log.clear();
    QCOMPARE(host()->getQmlEngine(), engine);
    QCOMPARE(static_cast<const IWApplication *>(host())->getQmlEngine(), engine);
    QCOMPARE(log.texts(), QStringList());
    QCOMPARE(engine->imageProvider(u"svg"_s), provider);
}

void tst_IWApplication::qmlBindings()
{
    WQmlEngine *engine = nullptr;
    {
        const LogRecorder log;
        engine = host()->getQmlEngine();
    }
    QQmlContext context(engine);
    context.setContextProperty(u"App"_s, host());
    QQmlComponent component(engine);
    component.setData(
        "import QtQuick\n"
        "QtObject {\n"
        "  property color both: { App.themeMode; ++counter.value; return App.getColorSet('both').normal }\n"
        "  property bool known: App.getColorSet('both', 'x').isValid\n"
        "  property bool animations: !App.animationsDisabled()\n"
        "  property var counter: ({ value: 0 })\n"
        "  function evaluations() : int { return counter.value }\n"
        "}\n",
        QUrl());
    const std::unique_ptr<QObject> object(component.create(&context));
    QCOMPARE(component.errors(), QList<QQmlError>());
    QCOMPARE(object->property("both").value<QColor>(), QColor(0, 128, 0));
    QVERIFY(object->property("known").toBool());
    QVERIFY(object->property("animations").toBool());
    const auto evaluations = [&object] {
        int result = -1;
        QMetaObject::invokeMethod(object.get(), "evaluations", qReturnArg(result));
        return result;
    };
    QCOMPARE(evaluations(), 1);

    const LogRecorder log;
    host()->setThemeMode(u"dark"_s);
    QCOMPARE(object->property("both").value<QColor>(), QColor(0, 0, 255));
    QCOMPARE(evaluations(), 2);
    host()->setThemeMode(u"dark"_s);
    QCOMPARE(evaluations(), 2);
}

// The scenarios below run in processes of their own.

static void sayMode(int &argc, char **argv)
{
    const MemoryResources resources(themeFiles());
    const LogRecorder log;
    const IWApplication application(argc, argv);
    say(u"mode \"%1\""_s.arg(application.getThemeMode()));
    QStringList names;
    for (const auto &[name, set] : application.getColorSets())
        names << QString::fromStdString(name);
    names.sort();
    say(names.join(u' '));
    Scenario::sayLog(log);
    say(u"keys "_s + QSettings().allKeys().join(u' '));
}

static void setDark(int &argc, char **argv)
{
    const MemoryResources resources(themeFiles());
    const LogRecorder log;
    IWApplication application(argc, argv);
    application.setThemeMode(u"dark"_s);
    Scenario::sayLog(log);
}

static void sayModeOfAnotherName(int &argc, char **argv)
{
    QCoreApplication::setApplicationName(u"another"_s);
    sayMode(argc, argv);
}

static void destroyWithEngine(int &argc, char **argv)
{
    const MemoryResources resources(themeFiles());
    const LogRecorder log;
    {
        Host application(argc, argv);
        QQmlEngine *engine = application.getQmlEngine();
        auto *context = new QQmlContext(engine, engine);
        context->setContextProperty(u"App"_s, &application);
        QQmlComponent component(engine);
        component.setData(
            "import QtQuick\nQtObject {\n"
            "  property color both: { App.themeMode; return App.getColorSet('both').normal }\n"
            "  Component.onDestruction: console.info('QML ends, both is', App.getColorSet('both').normal)\n"
            "}\n",
            QUrl());
        QObject *object = component.create(context);
        object->setParent(engine);
        QObject::connect(engine, &QObject::destroyed, [] {
            say(u"the engine is destroyed, an application object: %1"_s.arg(QCoreApplication::instance() ? u"there"_s
                                                                                                         : u"gone"_s));
        });
        say(u"leaving"_s);
    }
    say(u"left"_s);
    Scenario::sayLog(log);
}

static void destroyWithoutEngine(int &argc, char **argv)
{
    const MemoryResources resources(themeFiles());
    const LogRecorder log;
    {
        const Host application(argc, argv);
    }
    Scenario::sayLog(log);
    say(u"left"_s);
}

void tst_IWApplication::storedMode_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QStringList>("lines");
    const QString fromDefault = u"#00000000 both light-only transparent"_s;
    const QString warning = u"warning: "_s + NoTokens;
    QTest::newRow("nothing") << QVariant() << QStringList{u"mode \"default\""_s, fromDefault, u"keys "_s};
    QTest::newRow("dark") << QVariant(
        u"dark"_s) << QStringList{u"mode \"dark\""_s, u"#00000000 both dark-only transparent"_s, u"keys ThemeMode"_s};
    QTest::newRow("empty") << QVariant(
        u""_s) << QStringList{u"mode \"\""_s, u"#00000000 both empty-only transparent"_s, u"keys ThemeMode"_s};
    QTest::newRow("unknown") << QVariant(u"nope"_s)
                             << QStringList{u"mode \"nope\""_s, u"#00000000 transparent"_s, warning, warning,
                                            u"keys ThemeMode"_s};
    QTest::newRow("a number") << QVariant(
        7) << QStringList{u"mode \"7\""_s, u"#00000000 transparent"_s, warning, warning, u"keys ThemeMode"_s};
    QTest::newRow("path characters") << QVariant(u"../dark"_s)
                                     << QStringList{u"mode \"../dark\""_s, u"#00000000 transparent"_s, warning, warning,
                                                    u"keys ThemeMode"_s};
}

void tst_IWApplication::storedMode()
{
    QFETCH(QVariant, stored);
    QFETCH(QStringList, lines);
    const QTemporaryDir folder;
    if (stored.isValid()) {
        QSettings settings(folder.filePath(u"LumakitQml/scenario.ini"_s), QSettings::IniFormat);
        settings.setValue(u"ThemeMode"_s, stored);
    }
    COMPARE_SCENARIO(u"sayMode"_s, folder.path(), lines);
}

void tst_IWApplication::settingsAreOfOrganisationAndName()
{
    const QTemporaryDir folder;
    COMPARE_SCENARIO(u"setDark"_s, folder.path(), QStringList{u"debug: setThemeMode:  \"dark\""_s});
    {
        const QSettings settings(folder.filePath(u"LumakitQml/scenario.ini"_s), QSettings::IniFormat);
        QCOMPARE(settings.allKeys(), QStringList{u"ThemeMode"_s});
        QCOMPARE(settings.value(u"ThemeMode"_s).toString(), u"dark"_s);
    }
    const QStringList dark{u"mode \"dark\""_s, u"#00000000 both dark-only transparent"_s, u"keys ThemeMode"_s};
    COMPARE_SCENARIO(u"sayMode"_s, folder.path(), dark);
    COMPARE_SCENARIO(u"setDark"_s, folder.path(), QStringList{u"debug: The theme already is \"dark\""_s});

    const QStringList fresh{u"mode \"default\""_s, u"#00000000 both light-only transparent"_s, u"keys "_s};
    COMPARE_SCENARIO(u"sayModeOfAnotherName"_s, folder.path(), fresh);
}

void tst_IWApplication::destroyedWithEngine()
{
    const QTemporaryDir folder;
    const QStringList lines{u"leaving"_s,
                            u"the engine is destroyed, an application object: there"_s,
                            u"left"_s,
                            u"debug: "_s + CreatingEngine,
                            u"info: prepareQmlEngine"_s,
                            u"debug: "_s + FinishedEngine,
                            u"info: QML ends, both is #008000"_s};
    COMPARE_SCENARIO(u"destroyWithEngine"_s, folder.path(), lines);
}

void tst_IWApplication::destroyedWithoutEngine()
{
    const QTemporaryDir folder;
    COMPARE_SCENARIO(u"destroyWithoutEngine"_s, folder.path(), QStringList{u"left"_s});
}

int main(int argc, char **argv)
{
    if (Scenario::runFromCommandLine(argc, argv,
                                     {{"sayMode", sayMode},
                                      {"setDark", setDark},
                                      {"sayModeOfAnotherName", sayModeOfAnotherName},
                                      {"destroyWithEngine", destroyWithEngine},
                                      {"destroyWithoutEngine", destroyWithoutEngine}}))
        return 0;

    TestApplication::isolateSettings();
    const MemoryResources resources(themeFiles());
    QSignalSpyCallbackSet callbacks{recordSignal, nullptr, nullptr, nullptr};
    qt_register_signal_spy_callbacks(&callbacks);
    auto startLog = std::make_unique<LogRecorder>();
    Host application(argc, argv);
    startMessages = startLog->texts();
    startLog.reset();
    Q_EMIT application.themeModeChanged();
    qt_register_signal_spy_callbacks(nullptr);

    tst_IWApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_iwapplication.moc"
