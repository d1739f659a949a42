#include "MetaDescription.h"
#include "Scenario.h"

#include <TestCase.h>
#include <WApplication.h>
#include <WFont.h>
#include <WFontManager.h>
#include <WMovieProviderSource.h>
#include <WQmlEngine.h>
#include <WScaledFonts.h>

#include <QQmlComponent>
#include <QQmlContext>
#include <QTemporaryDir>
#include <QWindow>

#include <private/qmetaobject_p.h>
#include <private/qobject_p.h>

#include <cmath>
#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;
using Scenario::say;

namespace {

/// A host that counts the calls of its second hook.
class Host : public WApplication
{
    Q_OBJECT

public:
    using WApplication::WApplication;

    int hookCalls = 0;

    void prepareHost() override
    {
        ++hookCalls;
        WApplication::prepareHost();
    }
};

Host *host()
{
    return static_cast<Host *>(QCoreApplication::instance());
}

QStringList emitted;

void recordSignal(QObject *sender, int signalIndex, void **)
{
    const QMetaMethod method = QMetaObjectPrivate::signal(sender->metaObject(), signalIndex);
    const QMetaObject *owner = method.enclosingMetaObject();
    if (owner
        && (QByteArrayView(owner->className()).startsWith("W") || QByteArrayView(owner->className()).startsWith("IW")))
        emitted << QString::fromLatin1(method.methodSignature());
}

struct Start
{
    QStringList messages;
    QString theme;
    QString svg;
    QString png;
    float factor = 0;
    QFont font;
    bool hasManager = false;
};
Start atStart;

} // namespace

class tst_WApplication : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void virtualTableOrder();
    void start();
    void nothingEmittedWhileConstructing();

    void themeProperty();
    void logo_data();
    void logo();
    void fontScaleFactor_data();
    void fontScaleFactor();
    void fontScaleFactorProperty();
    void fontScaleFactorKeepsApplicationFont();

    void colorSet();
    void animationsDisabled();
    void fontManager();
    void movieProviderSource();
    void inFocus();
    void fromQml();
    void hookIsNeverCalled();

    void destroyedWithEverything();

protected:
    void tidy() override
    {
        host()->setFontScaleFactor(1.0F);
        host()->setProperty("theme", QString());
        host()->setLogoPngPath({});
        host()->setLogoSvgPath({});
    }
};

void tst_WApplication::metaObject()
{
    const QMetaObject &meta = WApplication::staticMetaObject;
    QCOMPARE(meta.superClass(), &IWApplication::staticMetaObject);
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"QString theme, themeChanged"_s, u"QString logoSvgPath, logoSvgPathChanged"_s,
                          u"QString logoPngPath, logoPngPathChanged"_s,
                          u"float fontScaleFactor, fontScaleFactorChanged"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta),
             (QStringList{u"void themeChanged(QString)"_s, u"void isDarkThemeChanged(bool)"_s,
                          u"void isHighContrastThemeChanged(bool)"_s, u"void fontScaleFactorChanged(float)"_s,
                          u"void logoSvgPathChanged(QString)"_s, u"void logoPngPathChanged(QString)"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    QCOMPARE(MetaDescription::invokables(meta),
             (QStringList{u"WColorSet getColorSet(QString)"_s, u"bool animationsDisabled()"_s}));
    QVERIFY(meta.method(meta.indexOfMethod("animationsDisabled()")).isConst());
    QVERIFY(meta.method(meta.indexOfMethod("getColorSet(QString)")).isConst());
}

void tst_WApplication::virtualTableOrder()
{
#ifdef __GXX_ABI_VERSION
    const auto place = [](auto member) {
        std::ptrdiff_t parts[2] = {};
        static_assert(sizeof member == sizeof parts);
        std::memcpy(parts, &member, sizeof parts);
        return parts[0];
    };
    // A member pointer to a virtual function holds its offset in the table, plus one. The engine hook lies between.
    const auto movieSource = place(&IWApplication::getMovieProviderSource);
    const auto animations = place(&WApplication::animationsDisabled);
    const auto hook = place(&Host::prepareHost);
    QCOMPARE(animations % 2, 1);
    QCOMPARE(animations - movieSource, std::ptrdiff_t(2 * sizeof(void *)));
    QCOMPARE(hook - animations, std::ptrdiff_t(sizeof(void *)));
#else
    QSKIP("another ABI");
#endif
}

void tst_WApplication::start()
{
    QCOMPARE(atStart.messages, QStringList()); // no more than what loading the theme files says, and they are fine
    QCOMPARE(atStart.theme, QString());
    QCOMPARE(atStart.svg, QString());
    QCOMPARE(atStart.png, QString());
    QCOMPARE(atStart.factor, 1.0F);
    QVERIFY(atStart.hasManager);
    QCOMPARE(atStart.font.family(), u"Segoe UI"_s);
    QCOMPARE(atStart.font.pixelSize(), 16);
    QCOMPARE(atStart.font.weight(), 400);
    QVERIFY(!atStart.font.underline());
    QVERIFY(!atStart.font.italic());
}

void tst_WApplication::nothingEmittedWhileConstructing()
{
    QCOMPARE(emitted, QStringList{u"fontScaleFactorChanged(float)"_s}); // what main() emits afterwards
}

void tst_WApplication::themeProperty()
{
    QSignalSpy spy(host(), &WApplication::themeChanged);
    QVERIFY(host()->setProperty("theme", u"Dusk"_s));
    QCOMPARE(spy, (QList<QVariantList>{{u"Dusk"_s}}));
    QCOMPARE(host()->getThemeName(), u"Dusk"_s);
    QCOMPARE(host()->property("theme").toString(), u"Dusk"_s);

    QVERIFY(host()->setProperty("theme", u"Dusk"_s));
    QCOMPARE(spy.count(), 1);
    QVERIFY(host()->setProperty("theme", u"dusk"_s));
    QVERIFY(host()->setProperty("theme", QString()));
    QCOMPARE(spy.mid(1), (QList<QVariantList>{{u"dusk"_s}, {QString()}}));
    QVERIFY(host()->setProperty("theme", u""_s));
    QCOMPARE(spy.count(), 3);
}

void tst_WApplication::logo_data()
{
    QTest::addColumn<bool>("isSvg");
    QTest::newRow("SVG") << true;
    QTest::newRow("PNG") << false;
}

void tst_WApplication::logo()
{
    QFETCH(bool, isSvg);
    QSignalSpy svgSpy(host(), &WApplication::logoSvgPathChanged);
    QSignalSpy pngSpy(host(), &WApplication::logoPngPathChanged);
    QSignalSpy &spy = isSvg ? svgSpy : pngSpy;
    const char *name = isSvg ? "logoSvgPath" : "logoPngPath";
    const auto set = [&](const QString &path) { isSvg ? host()->setLogoSvgPath(path) : host()->setLogoPngPath(path); };
    const auto get = [&] { return isSvg ? host()->getLogoSvgPath() : host()->getLogoPngPath(); };

    set(u":/logo"_s);
    QCOMPARE(get(), u":/logo"_s);
    set(u":/logo"_s); // emits again
    set(QString());
    QCOMPARE(get(), QString());
    QVERIFY(host()->setProperty(name, u"/no/such/file"_s));
    QVERIFY(host()->setProperty(name, u"/no/such/file"_s));
    QCOMPARE(host()->property(name).toString(), u"/no/such/file"_s);
    QCOMPARE(
        spy,
        (QList<QVariantList>{{u":/logo"_s}, {u":/logo"_s}, {QString()}, {u"/no/such/file"_s}, {u"/no/such/file"_s}}));
    QCOMPARE((isSvg ? pngSpy : svgSpy).count(), 0);
    QCOMPARE(isSvg ? host()->getLogoPngPath() : host()->getLogoSvgPath(), QString());
}

void tst_WApplication::fontScaleFactor_data()
{
    QTest::addColumn<float>("factor");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("0.5") << 0.5F << true;
    QTest::newRow("just below 0.5") << std::nextafter(0.5F, 0.0F) << false;
    QTest::newRow("just above 0.5") << std::nextafter(0.5F, 1.0F) << true;
    QTest::newRow("0.49") << 0.49F << false;
    QTest::newRow("1") << 1.0F << true;
    QTest::newRow("1.25") << 1.25F << true;
    QTest::newRow("1.5") << 1.5F << true;
    QTest::newRow("just above 1.5") << std::nextafter(1.5F, 2.0F) << false;
    QTest::newRow("1.51") << 1.51F << false;
    QTest::newRow("0") << 0.0F << false;
    QTest::newRow("-1") << -1.0F << false;
    QTest::newRow("largest") << std::numeric_limits<float>::max() << false;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << false;
    QTest::newRow("negatively infinite") << -std::numeric_limits<float>::infinity() << false;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << false;
}

void tst_WApplication::fontScaleFactor()
{
    QFETCH(float, factor);
    QFETCH(bool, accepted);
    host()->setFontScaleFactor(0.75F);
    QSignalSpy spy(host(), &WApplication::fontScaleFactorChanged);
    QString number;
    QDebug(&number).nospace() << factor;
    LogRecorder log;
    host()->setFontScaleFactor(factor);
    host()->setFontScaleFactor(factor);
    if (accepted) {
        QCOMPARE(log.lines(), QList<LogRecorder::Line>());
        QCOMPARE(spy, (QList<QVariantList>{{factor}, {factor}})); // the second time too
        QCOMPARE(host()->getFontScaleFactor(), factor);
    } else {
        const LogRecorder::Line line{QtWarningMsg,
                                     u"WApplication::setFontScaleFactor - Invalid fontScaleFactor "_s + number};
        QCOMPARE(log.lines(), (QList<LogRecorder::Line>{line, line}));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(host()->getFontScaleFactor(), 0.75F);
    }
}

void tst_WApplication::fontScaleFactorProperty()
{
    QSignalSpy spy(host(), &WApplication::fontScaleFactorChanged);
    QCOMPARE(host()->property("fontScaleFactor").toFloat(), 1.0F);
    QVERIFY(host()->setProperty("fontScaleFactor", 1.25));
    QVERIFY(host()->setProperty("fontScaleFactor", 1.25));
    QCOMPARE(host()->property("fontScaleFactor").toFloat(), 1.25F);
    QCOMPARE(spy, (QList<QVariantList>{{1.25F}, {1.25F}}));
    LogRecorder log;
    QVERIFY(host()->setProperty("fontScaleFactor", 2.0));
    QCOMPARE(log.texts(), QStringList{u"WApplication::setFontScaleFactor - Invalid fontScaleFactor 2"_s});
    QCOMPARE(host()->property("fontScaleFactor").toFloat(), 1.25F);
}

void tst_WApplication::fontScaleFactorKeepsApplicationFont()
{
    const QFont before = QGuiApplication::font();
    host()->setFontScaleFactor(1.5F);
    QCOMPARE(QGuiApplication::font(), before);
    QCOMPARE(WFont(WFont::Default, false).pixelSize(), 24);
}

void tst_WApplication::colorSet()
{
    const WColorSet red(u"red-token"_s, QColor(255, 0, 0));
    QCOMPARE(host()->getColorSet(u"red-token"_s), red);
    QCOMPARE(static_cast<IWApplication *>(host())->getColorSet(u"red-token"_s, u"x"_s), red);
    LogRecorder log;
    QCOMPARE(host()->getColorSet(QString()), WColorSet());
    QCOMPARE(host()->getColorSet(u"nope"_s), WColorSet());
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, u"ColorSet name does not exist!  \"nope\""_s}}));
}

void tst_WApplication::animationsDisabled()
{
    QVERIFY(!host()->animationsDisabled());
    bool disabled = true;
    QVERIFY(QMetaObject::invokeMethod(host(), "animationsDisabled", qReturnArg(disabled)));
    QVERIFY(!disabled);
}

void tst_WApplication::fontManager()
{
    QVERIFY(host()->getWFontManager());
    QCOMPARE(host()->getWFontManager()->parent(), host());
    QCOMPARE(host()->getWFontManager(), WFontManager::get());
    QCOMPARE(host()->findChildren<WFontManager *>().size(), 1);
}

void tst_WApplication::movieProviderSource()
{
    QCOMPARE(host()->findChildren<IWMovieProviderSource *>().size(), 0); // none before somebody asks
    IWMovieProviderSource *source = host()->getMovieProviderSource();
    QVERIFY(qobject_cast<WMovieProviderSource *>(source));
    QCOMPARE(source->parent(), host());
    QCOMPARE(host()->getMovieProviderSource(), source);
    QCOMPARE(static_cast<IWApplication *>(host())->getMovieProviderSource(), source);
    QCOMPARE(host()->findChildren<IWMovieProviderSource *>().size(), 1);
}

void tst_WApplication::inFocus()
{
    QCOMPARE(WApplication::isInFocus(), QGuiApplication::applicationState() == Qt::ApplicationActive);
    QWindow window;
    window.resize(50, 50);
    window.show();
    window.requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(QGuiApplication::applicationState(), Qt::ApplicationActive);
    QVERIFY(WApplication::isInFocus());

    window.hide();
    QVERIFY(QTest::qWaitFor([] { return QGuiApplication::applicationState() == Qt::ApplicationInactive; }));
    QVERIFY(!WApplication::isInFocus());
}

void tst_WApplication::fromQml()
{
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(u"App"_s, host());
    QQmlComponent component(&engine);
    component.setData("import QtQuick\n"
                      "QtObject {\n"
                      "  property color one: App.getColorSet('red-token').normal\n"
                      "  property bool known: App.getColorSet('red-token').isValid\n"
                      "  property bool animations: !App.animationsDisabled()\n"
                      "  property string logo: App.logoSvgPath + App.logoPngPath\n"
                      "  property real factor: App.fontScaleFactor\n"
                      "  property string theme: App.theme\n"
                      "  property string mode: App.themeMode\n"
                      "}\n",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QCOMPARE(component.errors(), QList<QQmlError>());
    QCOMPARE(object->property("one").value<QColor>(), QColor(255, 0, 0));
    QVERIFY(object->property("known").toBool());
    QVERIFY(object->property("animations").toBool());
    QCOMPARE(object->property("mode").toString(), u"default"_s);

    host()->setLogoSvgPath(u"s"_s);
    host()->setLogoPngPath(u"p"_s);
    host()->setFontScaleFactor(0.5F);
    host()->setProperty("theme", u"t"_s);
    QCOMPARE(object->property("logo").toString(), u"sp"_s);
    QCOMPARE(object->property("factor").toDouble(), 0.5);
    QCOMPARE(object->property("theme").toString(), u"t"_s);
}

void tst_WApplication::hookIsNeverCalled()
{
    {
        const LogRecorder log;
        host()->getQmlEngine();
        host()->setThemeMode(u"dark"_s);
        host()->setThemeMode(u"default"_s);
    }
    QCOMPARE(host()->hookCalls, 0);
    host()->prepareHost();
    QCOMPARE(host()->hookCalls, 1);
}

// In a process of its own.
static void destroyWithEverything(int &argc, char **argv)
{
    const LogRecorder log;
    {
        TestApplication application(argc, argv);
        application.getMovieProviderSource();
        WFontManager *manager = application.getWFontManager();
        manager->getFont(FontManagerEnum::MeetingView);
        QQmlEngine *engine = application.getQmlEngine();
        QQmlComponent component(engine);
        component.setData("import QtQuick\nimport Corvane\n"
                          "Item {\n"
                          "  property color text: { App.themeMode; return App.getColorSet('transparent').normal }\n"
                          "  Image { asynchronous: true; sourceSize: Qt.size(8, 8); source: 'image://svg/red/none' }\n"
                          "}\n",
                          QUrl());
        QObject *object = component.create();
        for (const QQmlError &error : component.errors())
            say(error.toString());
        object->setParent(engine);
        QObject::connect(engine, &QObject::destroyed, [] { say(u"engine"_s); });
        QObject::connect(manager, &QObject::destroyed, [] { say(u"font manager"_s); });
        QObject::connect(application.getMovieProviderSource(), &QObject::destroyed, [] { say(u"movie source"_s); });
    }
    say(u"left"_s);
}

void tst_WApplication::destroyedWithEverything()
{
    const QTemporaryDir folder;
    const QStringList lines{u"engine"_s, u"font manager"_s, u"movie source"_s, u"left"_s};
    COMPARE_SCENARIO(u"destroyWithEverything"_s, folder.path(), lines);
}

int main(int argc, char **argv)
{
    if (Scenario::runFromCommandLine(argc, argv, {{"destroyWithEverything", destroyWithEverything}}))
        return 0;

    TestApplication::isolateSettings();
    const QByteArray tokens = R"({"tokens":{"red-token":{"normal":{"r":255,"g":0,"b":0,"a":1}}}})";
    const MemoryResources resources(
        {{u"/Themes/meridian_default.json"_s, tokens}, {u"/Themes/default.json"_s, tokens}});
    QSignalSpyCallbackSet callbacks{recordSignal, nullptr, nullptr, nullptr};
    qt_register_signal_spy_callbacks(&callbacks);
    auto startLog = std::make_unique<LogRecorder>();
    Host application(argc, argv);
    atStart = {startLog->texts(),
               application.getThemeName(),
               application.getLogoSvgPath(),
               application.getLogoPngPath(),
               application.getFontScaleFactor(),
               QApplication::font(),
               application.getWFontManager() != nullptr};
    startLog.reset();
    Q_EMIT application.fontScaleFactorChanged(1.0F);
    qt_register_signal_spy_callbacks(nullptr);

    tst_WApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_wapplication.moc"
