#include "Pixels.h"

#include <SvgImageProvider.h>
#include <TestCase.h>
#include <WQmlEngine.h>

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QThread>

#include <atomic>
#include <limits>

using namespace Qt::StringLiterals;
using Pixels::Shape;

namespace {

QByteArray svg(const QByteArray &content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">)" + content + "</svg>";
}

const QByteArray Animated = svg(R"(<rect width="4" height="4"/><rect x="10" y="10" width="4" height="4">
    <animateTransform attributeName="transform" type="translate" from="0" to="5" dur="1s" repeatCount="indefinite"/>
    </rect>)");

QMap<QString, QByteArray> iconFiles()
{
    return {{u"/Resources/square.svg"_s, svg(R"(<g><rect x="4" y="4" width="16" height="16"/></g>)")},
            {u"/Resources/circle.svg"_s, svg(R"(<g><circle cx="12" cy="12" r="10"/></g>)")},
            {u"/Resources/two.svg"_s,
             svg(R"(<rect width="12" height="24" fill="#00ff00"/><rect x="12" width="12" height="24"/>)")},
            {u"/Resources/a icon \u00e4.svg"_s, svg(R"(<g><rect x="4" y="4" width="16" height="16"/></g>)")},
            {u"/Resources/folder/square.svg"_s, svg(R"(<g><rect x="4" y="4" width="16" height="16"/></g>)")},
            {u"/Resources/animated.svg"_s, Animated},
            {u"/Resources/broken.svg"_s, "<svg>"}};
}

QImage picture(const QString &name, const QSize &size, const QColor &color)
{
    QImage image = Pixels::blank(size);
    const Shape square = [](QPainter &painter) { painter.drawRect(QRectF(4, 4, 16, 16)); };
    const Shape circle = [](QPainter &painter) { painter.drawEllipse(QPointF(12, 12), 10, 10); };
    const Shape two = [](QPainter &painter) {
        painter.fillRect(QRectF(0, 0, 12, 24), QColor(0, 255, 0));
        painter.fillRect(QRectF(12, 0, 12, 24), Qt::black);
    };
    Pixels::paint(image, {0, 0, 24, 24}, QRectF(QPointF(), QSizeF(size)), color, 1.0,
                  name == "circle"_L1    ? circle
                      : name == "two"_L1 ? two
                                         : square);
    return image;
}

const QString WrongId = u"Invalid parameter for svg. Expected 'color/svgName'"_s;
const QString NoNode = u"SVG node does not exist!"_s;

QString unable(const QString &name)
{
    return u"Unable to load SVG file:  \":/Resources/%1.svg\""_s.arg(name);
}

/// Without Qt Svg's own remarks on a file.
QStringList libraryTexts(const LogRecorder &log)
{
    QStringList texts;
    for (const LogRecorder::Line &line : log.lines()) {
        for (const auto *start : {"Invalid parameter", "Request for", "Unable to", "SVG node", "Invalid svg file"}) {
            if (line.text.startsWith(QLatin1StringView(start)))
                texts << line.text;
        }
    }
    return texts;
}

} // namespace

class tst_SvgImageProvider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void kind();
    void request_data();
    void request();
    void invalidId_data();
    void invalidId();
    void invalidSize_data();
    void invalidSize();
    void unknownIcon_data();
    void unknownIcon();
    void emptyName();
    void sameIconIsNotReadAgain();
    void otherRequestKinds();
    void twoThreads();
    void animatedFromTwoThreads();
    void destroyedElsewhere();

    void inScene_data();
    void inScene();
    void sceneErrors_data();
    void sceneErrors();

private:
    std::unique_ptr<MemoryResources> m_resources;

protected:
    void prepare() override { m_resources = std::make_unique<MemoryResources>(iconFiles()); }
    void tidy() override { m_resources.reset(); }
};

void tst_SvgImageProvider::kind()
{
    const SvgImageProvider provider;
    QCOMPARE(provider.imageType(), QQmlImageProviderBase::Pixmap);
    QCOMPARE(provider.flags(), QQmlImageProviderBase::Flags());
}

void tst_SvgImageProvider::request_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QSize>("size");
    const QSize size(24, 24);
    const QString square = u"square"_s;
    QTest::newRow("#rrggbb") << u"#ff0000/square"_s << square << QColor(255, 0, 0) << size;
    QTest::newRow("#rgb") << u"#0f0/square"_s << square << QColor(0, 255, 0) << size;
    QTest::newRow("#aarrggbb") << u"#800000ff/square"_s << square << QColor(0, 0, 255, 128) << size;
    QTest::newRow("transparent by alpha") << u"#00ff0000/square"_s << square << QColor(Qt::transparent) << size;
    QTest::newRow("colour name") << u"steelblue/square"_s << square << QColor(0x46, 0x82, 0xb4) << size;
    QTest::newRow("colour name in capitals") << u"RED/square"_s << square << QColor(255, 0, 0) << size;
    QTest::newRow("transparent") << u"transparent/square"_s << square << QColor(Qt::transparent) << size;
    QTest::newRow("unknown colour is black") << u"nope/square"_s << square << QColor(Qt::black) << size;
    QTest::newRow("no colour is black") << u"/square"_s << square << QColor(Qt::black) << size;
    QTest::newRow("a broken colour is black") << u"#12345/square"_s << square << QColor(Qt::black) << size;
    QTest::newRow("a function is no colour") << u"rgb(255,0,0)/square"_s << square << QColor(Qt::black) << size;
    QTest::newRow("another icon") << u"#ff0000/circle"_s << u"circle"_s << QColor(255, 0, 0) << size;
    QTest::newRow("icon with own colours") << u"#ff0000/two"_s << u"two"_s << QColor() << size;
    QTest::newRow("odd icon name") << u"red/a icon \u00e4"_s << square << QColor(255, 0, 0) << size;
    QTest::newRow("16") << u"red/square"_s << square << QColor(255, 0, 0) << QSize(16, 16);
    QTest::newRow("30: 24 at 1.25") << u"red/circle"_s << u"circle"_s << QColor(255, 0, 0) << QSize(30, 30);
    QTest::newRow("wide") << u"red/square"_s << square << QColor(255, 0, 0) << QSize(60, 20);
    QTest::newRow("tall") << u"red/square"_s << square << QColor(255, 0, 0) << QSize(20, 60);
    QTest::newRow("one pixel") << u"red/square"_s << square << QColor(255, 0, 0) << QSize(1, 1);
    QTest::newRow("large") << u"red/square"_s << square << QColor(255, 0, 0) << QSize(1000, 1000);
}

void tst_SvgImageProvider::request()
{
    QFETCH(QString, id);
    QFETCH(QString, name);
    QFETCH(QColor, color);
    QFETCH(QSize, size);
    SvgImageProvider provider;
    QSize reported(7, 7);
    const QPixmap pixmap = provider.requestPixmap(id, &reported, size);
    QCOMPARE(reported, size);
    QCOMPARE(pixmap.size(), size);
    QCOMPARE(pixmap.devicePixelRatio(), 1.0);
    COMPARE_IMAGES(pixmap.toImage(), picture(name, size, color), 2);
    COMPARE_IMAGES(provider.requestPixmap(id, nullptr, size).toImage(), pixmap.toImage());
}

void tst_SvgImageProvider::invalidId_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("empty") << QString();
    QTest::newRow("only a name") << u"square"_s;
    QTest::newRow("three parts") << u"red/square/x"_s;
    QTest::newRow("icon in a folder") << u"red/folder/square"_s;
    QTest::newRow("folder above") << u"red/../square"_s;
    QTest::newRow("slash behind") << u"red/square/"_s;
    QTest::newRow("slash before") << u"/red/square"_s;
    QTest::newRow("two slashes") << u"red//square"_s;
    QTest::newRow("only slashes") << u"//"_s;
    QTest::newRow("back slash") << u"red\\square"_s;
    QTest::newRow("a megabyte") << QString(1024 * 1024, u'/');
}

void tst_SvgImageProvider::invalidId()
{
    QFETCH(QString, id);
    SvgImageProvider provider;
    QSize reported(7, 7);
    LogRecorder log;
    QVERIFY(provider.requestPixmap(id, &reported, QSize(24, 24)).isNull());
    QVERIFY(provider.requestPixmap(id, nullptr, QSize()).isNull()); // the id is looked at first
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, WrongId}, {QtWarningMsg, WrongId}}));
    QCOMPARE(reported, QSize(7, 7));
}

void tst_SvgImageProvider::invalidSize_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("message");
    const QString id = u"red/square"_s;
    const auto message = [](const QString &size) {
        return u"Request for SVG red/square with invalid size "_s + size + u'.';
    };
    QTest::newRow("no width") << id << QSize(0, 24) << message(u"0x24"_s);
    QTest::newRow("no height") << id << QSize(24, 0) << message(u"24x0"_s);
    QTest::newRow("nothing") << id << QSize(0, 0) << message(u"0x0"_s);
    QTest::newRow("default size") << id << QSize() << message(u"-1x-1"_s);
    QTest::newRow("negative") << id << QSize(-24, 24) << message(u"-24x24"_s);
    QTest::newRow("smallest") << id << QSize(std::numeric_limits<int>::min(), 1) << message(u"-2147483648x1"_s);
    QTest::newRow("id like a format") << u"%1%2/%3"_s << QSize(0, 24)
                                      << u"Request for SVG %1%2/%3 with invalid size 0x24."_s;
    QTest::newRow("unknown icon") << u"red/none"_s << QSize(0, 24)
                                  << u"Request for SVG red/none with invalid size 0x24."_s;
}

void tst_SvgImageProvider::invalidSize()
{
    QFETCH(QString, id);
    QFETCH(QSize, size);
    QFETCH(QString, message);
    SvgImageProvider provider;
    QSize reported(7, 7);
    LogRecorder log;
    QVERIFY(provider.requestPixmap(id, &reported, size).isNull());
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, message}}));
    QCOMPARE(reported, QSize(7, 7));
}

void tst_SvgImageProvider::unknownIcon_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QStringList>("messages");
    const QSize size(24, 24);
    QTest::newRow("missing") << u"red/none"_s << size << QStringList{unable(u"none"_s), NoNode};
    QTest::newRow("broken") << u"red/broken"_s << size << QStringList{unable(u"broken"_s), NoNode};
    QTest::newRow("dots") << u"red/.."_s << size << QStringList{unable(u".."_s), NoNode};
    QTest::newRow("back slashes") << u"red/..\\..\\square"_s << size
                                  << QStringList{unable(u"..\\\\..\\\\square"_s), NoNode};
    QTest::newRow("with the extension") << u"red/square.svg"_s << size << QStringList{unable(u"square.svg"_s), NoNode};
    QTest::newRow("another case") << u"red/Square"_s << size << QStringList{unable(u"Square"_s), NoNode};
    QTest::newRow("unknown colour too") << u"nope/none"_s << size << QStringList{unable(u"none"_s), NoNode};
    QTest::newRow("no name, nothing drawn before") << u"red/"_s << size << QStringList{NoNode};
    QTest::newRow("only a slash") << u"/"_s << size << QStringList{NoNode};
    QTest::newRow("10 GB") << u"red/square"_s << QSize(50'000, 50'000)
                           << QStringList{u"Unable to create a pixmap of size QSize(50000, 50000)"_s};
    QTest::newRow("10 GB, own colours") << u"red/two"_s << QSize(50'000, 50'000)
                                        << QStringList{u"Unable to create a pixmap of size QSize(50000, 50000)"_s};
}

void tst_SvgImageProvider::unknownIcon()
{
    QFETCH(QString, id);
    QFETCH(QSize, size);
    QFETCH(QStringList, messages);
    SvgImageProvider provider;
    QSize reported;
    {
        LogRecorder log;
        QVERIFY(provider.requestPixmap(id, &reported, size).isNull());
        QCOMPARE(libraryTexts(log), messages);
    }
    QCOMPARE(reported, size);
    COMPARE_IMAGES(provider.requestPixmap(u"red/circle"_s, nullptr, {24, 24}).toImage(),
                   picture(u"circle"_s, {24, 24}, Qt::red), 2);
}

void tst_SvgImageProvider::emptyName()
{
    SvgImageProvider provider;
    provider.requestPixmap(u"red/circle"_s, nullptr, {24, 24});
    COMPARE_IMAGES(provider.requestPixmap(u"blue/"_s, nullptr, {30, 30}).toImage(),
                   picture(u"circle"_s, {30, 30}, Qt::blue), 2);
}

void tst_SvgImageProvider::sameIconIsNotReadAgain()
{
    SvgImageProvider provider;
    provider.requestPixmap(u"red/circle"_s, nullptr, {24, 24});
    m_resources.reset();
    COMPARE_IMAGES(provider.requestPixmap(u"blue/circle"_s, nullptr, {16, 16}).toImage(),
                   picture(u"circle"_s, {16, 16}, Qt::blue), 2);
}

void tst_SvgImageProvider::otherRequestKinds()
{
    SvgImageProvider provider;
    QSize reported(7, 7);
    QVERIFY(provider.requestImage(u"red/circle"_s, &reported, {24, 24}).isNull());
    QCOMPARE(provider.requestTexture(u"red/circle"_s, &reported, {24, 24}), nullptr);
}

// Two threads ask for different icons; a mixture of both would be one picture in the other's colour.
void tst_SvgImageProvider::twoThreads()
{
    SvgImageProvider provider;
    struct Request
    {
        QString name;
        QColor color;
        QSize size;
    };
    const QList<Request> requests{{u"circle"_s, Qt::red, {24, 24}}, {u"square"_s, Qt::blue, {30, 20}}};
    std::atomic_int wrong = 0;
    std::atomic_int started = 0;
    std::vector<std::unique_ptr<QThread>> threads;
    for (const Request &request : requests) {
        threads.emplace_back(QThread::create([&provider, &wrong, &started, request] {
            ++started;
            while (started < 2)
                QThread::yieldCurrentThread();
            const QImage expected = picture(request.name, request.size, request.color);
            const QString id = request.color.name() + u'/' + request.name;
            for (int i = 0; i < 300; ++i) {
                const QImage image = provider.requestPixmap(id, nullptr, request.size).toImage();
                if (!Pixels::difference(image, expected, 2).isEmpty())
                    ++wrong;
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        QVERIFY(thread->wait(60'000));
    QCOMPARE(wrong.load(), 0);
}

// An animated file that one thread has loaded is dropped by the next request of another.
void tst_SvgImageProvider::animatedFromTwoThreads()
{
    SvgImageProvider provider;
    const auto inThread = [&provider](const QString &id) {
        QPixmap pixmap;
        const std::unique_ptr<QThread> thread(
            QThread::create([&] { pixmap = provider.requestPixmap(id, nullptr, {24, 24}); }));
        thread->start();
        thread->wait();
        return pixmap;
    };
    QCOMPARE(inThread(u"red/animated"_s).size(), QSize(24, 24));
    COMPARE_IMAGES(provider.requestPixmap(u"red/circle"_s, nullptr, {24, 24}).toImage(),
                   picture(u"circle"_s, {24, 24}, Qt::red), 2);
    QCOMPARE(provider.requestPixmap(u"red/animated"_s, nullptr, {24, 24}).size(), QSize(24, 24));
    COMPARE_IMAGES(inThread(u"red/circle"_s).toImage(), picture(u"circle"_s, {24, 24}, Qt::red), 2);
    QCOMPARE(inThread(u"red/animated"_s).size(), QSize(24, 24));
}

void tst_SvgImageProvider::destroyedElsewhere()
{
    auto provider = std::make_unique<SvgImageProvider>();
    provider->requestPixmap(u"red/circle"_s, nullptr, {24, 24});
    const std::unique_ptr<QThread> thread(QThread::create([&provider] { provider.reset(); }));
    thread->start();
    QVERIFY(thread->wait());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the renderer is of this thread
}

void tst_SvgImageProvider::inScene_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<bool>("asynchronous");
    for (const bool asynchronous : {false, true}) {
        const char *how = asynchronous ? "asynchronous" : "at once";
        QTest::addRow("#rrggbb, %s", how) << u"#ff0000"_s << u"circle"_s << QColor(255, 0, 0) << asynchronous;
        QTest::addRow("#aarrggbb, %s", how) << u"#800000ff"_s << u"square"_s << QColor(0, 0, 255, 128) << asynchronous;
        QTest::addRow("colour name, %s", how) << u"green"_s << u"circle"_s << QColor(0, 128, 0) << asynchronous;
        QTest::addRow("own colours, %s", how) << u"red"_s << u"two"_s << QColor() << asynchronous;
        QTest::addRow("odd name, %s", how) << u"red"_s << u"a icon \u00e4"_s << QColor(255, 0, 0) << asynchronous;
    }
}

// An Image multiplies its source size by the device pixel ratio: the icon stands on device pixels as it was painted.
void tst_SvgImageProvider::inScene()
{
    QFETCH(QString, color);
    QFETCH(QString, name);
    QFETCH(QColor, expected);
    QFETCH(bool, asynchronous);
    QQmlEngine *engine = nullptr;
    {
        const LogRecorder log;
        engine = qobject_cast<IWApplication *>(QCoreApplication::instance())->getQmlEngine();
    }
    QQmlComponent component(engine);
    component.setData("import QtQuick\n"
                      "Window {\n"
                      "  id: window\n"
                      "  property string svgColor\n"
                      "  property string svgName\n"
                      "  property bool late\n"
                      "  property alias status: image.status\n"
                      "  width: 120; height: 80; color: 'white'; visible: true\n"
                      "  Image {\n"
                      "    id: image\n"
                      "    x: 4; y: 8; width: 24; height: 24; cache: false; asynchronous: window.late\n"
                      "    source: 'image://svg/%1/%2'.arg(window.svgColor).arg(window.svgName)\n"
                      "    sourceSize: Qt.size(width, height)\n"
                      "  }\n"
                      "}\n",
                      QUrl());
    const std::unique_ptr<QObject> object(component.createWithInitialProperties(
        {{u"svgColor"_s, color}, {u"svgName"_s, name}, {u"late"_s, asynchronous}}));
    QCOMPARE(component.errors(), QList<QQmlError>());
    auto *window = qobject_cast<QQuickWindow *>(object.get());
    QVERIFY(window);
    QVERIFY(QTest::qWaitForWindowExposed(window));
    constexpr int Ready = 1;
    QVERIFY(QTest::qWaitFor([&] { return object->property("status").toInt() == Ready; }));

    const double ratio = window->effectiveDevicePixelRatio();
    QCOMPARE(ratio, qEnvironmentVariable("QT_SCALE_FACTOR", u"1"_s).toDouble());
    const QSize size = (QSizeF(24, 24) * ratio).toSize();
    const QImage scene = window->grabWindow();
    QImage actual = scene.copy(QRect((QPointF(4, 8) * ratio).toPoint(), size));
    actual.setDevicePixelRatio(1.0);
    QImage picked = Pixels::blank(size, 1.0, Qt::white);
    {
        QPainter painter(&picked);
        painter.drawImage(0, 0, picture(name, size, expected));
    }
    COMPARE_IMAGES(actual, picked, 3);
}

void tst_SvgImageProvider::sceneErrors_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("no source size") << u"image://svg/red/circle"_s << u"undefined"_s
                                    << QStringList{u"Request for SVG red/circle with invalid size -1x-1."_s};
    QTest::newRow("no slash") << u"image://svg/red"_s << u"Qt.size(24, 24)"_s << QStringList{WrongId};
    QTest::newRow("folder") << u"image://svg/red/folder/circle"_s << u"Qt.size(24, 24)"_s << QStringList{WrongId};
    QTest::newRow("unknown icon") << u"image://svg/red/none"_s << u"Qt.size(24, 24)"_s
                                  << QStringList{unable(u"none"_s), NoNode};
}

void tst_SvgImageProvider::sceneErrors()
{
    QFETCH(QString, source);
    QFETCH(QString, size);
    QFETCH(QStringList, messages);
    LogRecorder log;
    QQmlEngine *engine = qobject_cast<IWApplication *>(QCoreApplication::instance())->getQmlEngine();
    QQmlComponent component(engine);
    component.setData(
        u"import QtQuick\nImage { source: '%1'; sourceSize: %2; cache: false }"_s.arg(source, size).toUtf8(), QUrl());
    log.clear();
    const std::unique_ptr<QObject> object(component.create());
    QCOMPARE(component.errors(), QList<QQmlError>());
    constexpr int Error = 3;
    QCOMPARE(object->property("status").toInt(), Error);
    QCOMPARE(libraryTexts(log), messages);
}

LUMAKIT_TEST_MAIN(tst_SvgImageProvider)
#include "tst_svgimageprovider.moc"
