#include "../theme/MetaDescription.h"
#include "Pixels.h"

#include <TestCase.h>
#include <WSvgRenderer.h>

#include <QFile>
#include <QPointer>
#include <QTemporaryDir>

#include <private/qabstractfileengine_p.h>
#include <private/qfsfileengine_p.h>

#include <limits>

using namespace Qt::StringLiterals;
using Pixels::Shape;

namespace {

QByteArray svg(const QByteArray &viewBox, const QByteArray &content)
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox=")" + viewBox
        + R"(">)" + content + "</svg>";
}

/// One top-level element: takes the asked colour.
const QByteArray Square = svg("0 0 24 24", R"(<g><rect x="4" y="4" width="16" height="16"/></g>)");
const QByteArray Circle = svg("0 0 24 24", R"(<g><circle cx="12" cy="12" r="10"/></g>)");
/// Two top-level elements: keeps its own colours.
const QByteArray Flag =
    svg("0 0 20 10", R"(<rect width="10" height="10" fill="#00ff00"/><rect x="10" width="10" height="10"/>)");
const QByteArray Animated = svg("0 0 20 10", R"(<rect width="10" height="10"/><rect x="10" width="10" height="10">
    <animateTransform attributeName="transform" type="translate" from="0" to="5" dur="10s" repeatCount="indefinite"/>
    </rect>)");
const QByteArray AnimatedGroup = svg("0 0 20 10", R"(<g><rect width="20" height="10">
    <animateTransform attributeName="transform" type="translate" from="0" to="5" dur="10s" repeatCount="indefinite"/>
    </rect></g>)");

QMap<QString, QByteArray> iconFiles()
{
    return {{u"/Resources/square.svg"_s, Square},
            {u"/Resources/circle.svg"_s, Circle},
            {u"/Resources/flag.svg"_s, Flag},
            {u"/Resources/animated.svg"_s, Animated},
            {u"/Resources/animated group.svg"_s, AnimatedGroup},
            {u"/Resources/broken.svg"_s, "<svg><g>"},
            {u"/outside.svg"_s, Square}};
}

const QString NoNode = u"SVG node does not exist!"_s;
const QString TooLarge = u"Icon size should be less or equal than the pixmap size"_s;

QString unable(const QString &path)
{
    return u"Unable to load SVG file:  \"%1\""_s.arg(path);
}

/// What the library said; Qt Svg's own remarks on a file are its affair.
QList<LogRecorder::Line> libraryLines(const LogRecorder &log)
{
    QList<LogRecorder::Line> lines;
    for (const LogRecorder::Line &line : log.lines()) {
        for (const auto *start : {"Unable to load SVG file", "Invalid svg file", "SVG node", "Icon size",
                                  "WSvgRenderer", "Unable to create a pixmap"}) {
            if (line.text.startsWith(QLatin1StringView(start)))
                lines << line;
        }
    }
    return lines;
}

QList<LogRecorder::Line> warnings(const QStringList &texts)
{
    QList<LogRecorder::Line> lines;
    for (const QString &text : texts)
        lines << LogRecorder::Line{QtWarningMsg, text};
    return lines;
}

QImage squareImage(const QSize &size, double ratio, const QRectF &target, const QColor &color,
                   const QColor &background = Qt::transparent, double opacity = 1.0)
{
    QImage image = Pixels::blank(size, ratio, background);
    Pixels::paint(image, {0, 0, 24, 24}, target, color, opacity,
                  [](QPainter &painter) { painter.drawRect(QRectF(4, 4, 16, 16)); });
    return image;
}

QImage circleImage(const QSize &size, double ratio, const QRectF &target, const QColor &color)
{
    QImage image = Pixels::blank(size, ratio);
    Pixels::paint(image, {0, 0, 24, 24}, target, color, 1.0,
                  [](QPainter &painter) { painter.drawEllipse(QPointF(12, 12), 10, 10); });
    return image;
}

/// The flag, painted where `target` is, whatever its ratio.
void paintFlag(QImage &image, const QRectF &target)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(target.left(), target.top(), target.width() / 2, target.height()), QColor(0, 255, 0));
    painter.fillRect(QRectF(target.center().x(), target.top(), target.width() / 2, target.height()), Qt::black);
}

/// A file "once:x.svg" that is an SVG the first time it is opened and nothing of the kind afterwards.
class ChangingFile : public QAbstractFileEngineHandler
{
public:
    ChangingFile()
    {
        write(u"good.svg"_s, Flag);
        write(u"bad.svg"_s, "nothing of the kind");
    }

    std::unique_ptr<QAbstractFileEngine> create(const QString &fileName) const override
    {
        if (fileName != "once:x.svg"_L1)
            return nullptr;
        return std::make_unique<QFSFileEngine>(m_folder.filePath(m_opened++ == 0 ? u"good.svg"_s : u"bad.svg"_s));
    }

private:
    void write(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
    }

    QTemporaryDir m_folder;
    mutable int m_opened = 0;
};

} // namespace

class tst_WSvgRenderer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void construction();
    void resourcePath_data();
    void resourcePath();
    void loadIconResource();
    void load_data();
    void load();
    void loadSamePath();
    void loadEmptyPath();
    void loadAnother();
    void failedLoadUnloads();
    void changedBetween();
    void invalidSize();
    void updateIconResource();

    void mode_data();
    void mode();
    void draw();
    void drawUnloaded();
    void drawWithoutPainter();
    void sharedStates();
    void drawScalingHeight_data();
    void drawScalingHeight();
    void animation();

    void renderFilled_data();
    void renderFilled();
    void renderCentred_data();
    void renderCentred();
    void renderRectangle_data();
    void renderRectangle();
    void renderOwnColors_data();
    void renderOwnColors();
    void renderTooLarge();
    void renderUnloaded();
    void renderRefused_data();
    void renderRefused();

    void renderIcon_data();
    void renderIcon();
    void renderIconModes();

    void hostile_data();
    void hostile();
    void hostileAfterGood();
    void truncated();

private:
    std::unique_ptr<MemoryResources> m_resources;

protected:
    void prepare() override { m_resources = std::make_unique<MemoryResources>(iconFiles()); }
    void tidy() override { m_resources.reset(); }
};

void tst_WSvgRenderer::metaObject()
{
    const QMetaObject &meta = WSvgRenderer::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::properties(meta), QStringList());
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList{u"void repaintNeeded()"_s});
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    QCOMPARE(MetaDescription::invokables(meta), QStringList());
}

void tst_WSvgRenderer::construction()
{
    QObject parent;
    const auto *empty = new WSvgRenderer(&parent);
    QCOMPARE(empty->parent(), &parent);
    QVERIFY(!empty->isLoaded());
    QVERIFY(!empty->isAnimated());
    QCOMPARE(empty->getLoadedPath(), QString());

    const auto *loaded = new WSvgRenderer(u":/Resources/square.svg"_s, &parent);
    QCOMPARE(loaded->parent(), &parent);
    QVERIFY(loaded->isLoaded());
    QCOMPARE(loaded->getLoadedPath(), u":/Resources/square.svg"_s);

    LogRecorder log;
    const WSvgRenderer failed(u":/none.svg"_s, nullptr);
    QVERIFY(!failed.isLoaded());
    QCOMPARE(libraryLines(log), warnings({unable(u":/none.svg"_s)}));
}

void tst_WSvgRenderer::resourcePath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::newRow("name") << u"close"_s << u":/Resources/close.svg"_s;
    QTest::newRow("empty") << QString() << u":/Resources/.svg"_s;
    QTest::newRow("with the extension") << u"a.svg"_s << u":/Resources/a.svg.svg"_s;
    QTest::newRow("folder") << u"a/b"_s << u":/Resources/a/b.svg"_s;
    QTest::newRow("place marker") << u"%1"_s << u":/Resources/%1.svg"_s;
    QTest::newRow("not ASCII") << u"\u00e4 \U0001f600"_s << u":/Resources/\u00e4 \U0001f600.svg"_s;
}

void tst_WSvgRenderer::resourcePath()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QCOMPARE(WSvgRenderer::resourcePath(name), path);
}

void tst_WSvgRenderer::loadIconResource()
{
    QObject parent;
    const WSvgRenderer *renderer = WSvgRenderer::loadIconResource(u"square"_s, &parent);
    QCOMPARE(renderer->parent(), &parent);
    QCOMPARE(renderer->getLoadedPath(), u":/Resources/square.svg"_s);

    renderer = WSvgRenderer::loadIconResource(QString(), &parent);
    QCOMPARE(renderer->parent(), &parent);
    QVERIFY(!renderer->isLoaded());

    LogRecorder log;
    renderer = WSvgRenderer::loadIconResource(u"none"_s, &parent);
    QCOMPARE(renderer->parent(), &parent);
    QVERIFY(!renderer->isLoaded());
    QCOMPARE(libraryLines(log), warnings({unable(u":/Resources/none.svg"_s)}));

    log.clear();
    const QString noParent = u"WSvgRenderer::loadIconResource - the parent object should not be null"_s;
    const std::unique_ptr<WSvgRenderer> orphan(WSvgRenderer::loadIconResource(u"square"_s, nullptr));
    QVERIFY(orphan->isLoaded());
    QCOMPARE(orphan->parent(), nullptr);
    QCOMPARE(log.lines(), warnings({noParent}));
    log.clear();
    const std::unique_ptr<WSvgRenderer> emptyOrphan(WSvgRenderer::loadIconResource(QString(), nullptr));
    QVERIFY(!emptyOrphan->isLoaded());
    QCOMPARE(log.lines(), warnings({noParent}));
}

void tst_WSvgRenderer::load_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("loads");
    QTest::newRow("resource") << u":/Resources/square.svg"_s << true;
    QTest::newRow("resource URL") << u"qrc:/Resources/square.svg"_s << true;
    QTest::newRow("resource URL with empty host") << u"qrc:///Resources/square.svg"_s << true;
    QTest::newRow("several elements by URL") << u"qrc:/Resources/flag.svg"_s << true;
    QTest::newRow("resource URL in capitals") << u"QRC:/Resources/square.svg"_s << false;
    QTest::newRow("resource URL without a slash") << u"qrc:Resources/square.svg"_s << false;
    QTest::newRow("file URL") << u"file:///etc/hostname"_s << false;
    QTest::newRow("missing") << u":/Resources/none.svg"_s << false;
    QTest::newRow("missing, by URL") << u"qrc:/Resources/none.svg"_s << false;
    QTest::newRow("another case") << u":/Resources/Square.svg"_s << false;
    QTest::newRow("folder") << u":/Resources"_s << false;
    QTest::newRow("broken") << u":/Resources/broken.svg"_s << false;
    QTest::newRow("only the scheme") << u"qrc:/"_s << false;
    QTest::newRow("very long") << u":/"_s + QString(100'000, u'x') << false;
    QTest::newRow("back into the resources") << u":/Resources/../Resources/square.svg"_s << true;
}

void tst_WSvgRenderer::load()
{
    QFETCH(QString, path);
    QFETCH(bool, loads);
    WSvgRenderer renderer(nullptr);
    LogRecorder log;
    QCOMPARE(renderer.load(path), loads);
    QCOMPARE(libraryLines(log), loads ? warnings({}) : warnings({unable(path)}));
    QCOMPARE(renderer.isLoaded(), loads);
    QCOMPARE(renderer.getLoadedPath(), loads ? path : QString()); // as the caller gave it
    QCOMPARE(renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red).isNull(), !loads);
}

void tst_WSvgRenderer::loadSamePath()
{
    WSvgRenderer renderer(nullptr);
    QVERIFY(renderer.load(u":/Resources/square.svg"_s));
    m_resources.reset(); // the file is not read again
    QVERIFY(renderer.load(u":/Resources/square.svg"_s));
    QVERIFY(renderer.updateIconResource(u"square"_s));
    COMPARE_IMAGES(renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red).toImage(),
                   squareImage({24, 24}, 1.0, {0, 0, 24, 24}, Qt::red), 2);
    // The same file by another path is another path.
    LogRecorder log;
    QVERIFY(!renderer.load(u"qrc:/Resources/square.svg"_s));
    QCOMPARE(libraryLines(log), warnings({unable(u"qrc:/Resources/square.svg"_s)}));
    QVERIFY(!renderer.isLoaded());
}

void tst_WSvgRenderer::loadEmptyPath()
{
    WSvgRenderer renderer(nullptr);
    QVERIFY(renderer.load(QString()));
    QVERIFY(renderer.load(u""_s));
    QVERIFY(!renderer.isLoaded());

    QVERIFY(renderer.load(u":/Resources/square.svg"_s));
    LogRecorder log;
    QVERIFY(!renderer.load(QString()));
    QCOMPARE(libraryLines(log), warnings({unable(QString())}));
    QVERIFY(!renderer.isLoaded());
    log.clear();
    QVERIFY(renderer.load(QString()));
    QCOMPARE(log.lines(), warnings({}));
}

void tst_WSvgRenderer::loadAnother()
{
    WSvgRenderer renderer(nullptr);
    const auto picture = [&renderer] { return renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red).toImage(); };
    QImage flag = Pixels::blank({24, 24});
    paintFlag(flag, {0, 6, 24, 12});
    for (int round = 0; round < 2; ++round) {
        QVERIFY(renderer.updateIconResource(u"square"_s));
        COMPARE_IMAGES(picture(), squareImage({24, 24}, 1.0, {0, 0, 24, 24}, Qt::red), 2);
        QVERIFY(renderer.updateIconResource(u"flag"_s));
        COMPARE_IMAGES(picture(), flag, 2);
        QVERIFY(renderer.updateIconResource(u"circle"_s));
        COMPARE_IMAGES(picture(), circleImage({24, 24}, 1.0, {0, 0, 24, 24}, Qt::red), 2);
        QVERIFY(renderer.updateIconResource(u"animated"_s));
        QVERIFY(renderer.isAnimated());
    }
}

void tst_WSvgRenderer::failedLoadUnloads()
{
    for (const QString &name : {u"square"_s, u"flag"_s, u"animated"_s}) {
        WSvgRenderer renderer(nullptr);
        QVERIFY(renderer.updateIconResource(name));
        LogRecorder log;
        QVERIFY(!renderer.updateIconResource(u"none"_s));
        QVERIFY(!renderer.isLoaded());
        QVERIFY(!renderer.isAnimated());
        QCOMPARE(renderer.getLoadedPath(), QString());
        QVERIFY(renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red).isNull());
        QCOMPARE(libraryLines(log), warnings({unable(u":/Resources/none.svg"_s), NoNode}));
        QVERIFY(renderer.updateIconResource(name)); // and recovers
        QVERIFY(!renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red).isNull());
    }
}

void tst_WSvgRenderer::changedBetween()
{
    const ChangingFile file;
    WSvgRenderer renderer(nullptr);
    LogRecorder log;
    QVERIFY(!renderer.load(u"once:x.svg"_s));
    QCOMPARE(libraryLines(log), warnings({u"Invalid svg file:  \"once:x.svg\""_s}));
    QVERIFY(!renderer.isLoaded());
    QCOMPARE(renderer.getLoadedPath(), QString());
    QVERIFY(!renderer.isAnimated());
}

void tst_WSvgRenderer::invalidSize()
{
    const MemoryResources resources({{u"/Resources/negative.svg"_s, svg("0 0 -24 24", "<rect/><rect/>")}});
    WSvgRenderer renderer(u":/Resources/flag.svg"_s, nullptr);
    LogRecorder log;
    QVERIFY(!renderer.load(u"qrc:/Resources/negative.svg"_s));
    QCOMPARE(libraryLines(log), warnings({u"Invalid svg file:  \"qrc:/Resources/negative.svg\""_s}));
    QVERIFY(!renderer.isLoaded());
    QCOMPARE(renderer.getLoadedPath(), QString());
    log.clear();
    QVERIFY(renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red).isNull());
    QCOMPARE(libraryLines(log), warnings({NoNode}));
}

void tst_WSvgRenderer::updateIconResource()
{
    WSvgRenderer renderer(nullptr);
    QVERIFY(!renderer.updateIconResource(QString()));
    QVERIFY(!renderer.isLoaded());
    QVERIFY(renderer.updateIconResource(u"square"_s));
    QCOMPARE(renderer.getLoadedPath(), u":/Resources/square.svg"_s);
    QVERIFY(!renderer.updateIconResource(QString())); // keeps the file
    QVERIFY(!renderer.updateIconResource(u""_s));
    QCOMPARE(renderer.getLoadedPath(), u":/Resources/square.svg"_s);
    QVERIFY(renderer.updateIconResource(u"animated group"_s));
    QVERIFY(renderer.updateIconResource(u"../outside"_s)); // a path in the resources like any other

    LogRecorder log;
    QVERIFY(!renderer.updateIconResource(u".."_s));
    QVERIFY(!renderer.updateIconResource(u"square\n"_s));
    QVERIFY(!renderer.updateIconResource(u"../../etc/passwd"_s));
    QCOMPARE(libraryLines(log),
             warnings({unable(u":/Resources/...svg"_s), unable(u":/Resources/square\\n.svg"_s),
                       unable(u":/Resources/../../etc/passwd.svg"_s)}));
}

void tst_WSvgRenderer::mode_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("takesColor");
    QTest::newRow("one group") << QByteArray("<g><rect width='10' height='10'/></g>") << true;
    QTest::newRow("one shape") << QByteArray("<rect width='10' height='10'/>") << true;
    QTest::newRow("one path") << QByteArray("<path d='M0 0H10V10H0Z'/>") << true;
    QTest::newRow("one group with texts about it")
        << QByteArray("<title>t</title><desc>d</desc><metadata/><!-- c --><g><rect width='10' height='10'/></g>")
        << true;
    QTest::newRow("style and group") << QByteArray("<style>.a{}</style><g><rect width='10' height='10'/></g>") << true;
    QTest::newRow("two groups") << QByteArray("<g/><g><rect width='10' height='10'/></g>") << false;
    QTest::newRow("two shapes") << QByteArray("<rect width='5' height='10'/><rect x='5' width='5' height='10'/>")
                                << false;
    QTest::newRow("definitions and group")
        << QByteArray("<defs><g id='a'/></defs><g><rect width='10' height='10'/></g>") << false;
}

void tst_WSvgRenderer::mode()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, takesColor);
    const MemoryResources resources({{u"/Resources/mode.svg"_s, svg("0 0 10 10", content)}});
    WSvgRenderer renderer(nullptr);
    QVERIFY(renderer.updateIconResource(u"mode"_s));
    QVERIFY(!renderer.isAnimated());
    COMPARE_IMAGES(renderer.renderPixmap(QSize(10, 10), 1.0, Qt::red).toImage(),
                   Pixels::blank({10, 10}, 1.0, takesColor ? Qt::red : Qt::black));
}

void tst_WSvgRenderer::draw()
{
    WSvgRenderer renderer(nullptr);
    renderer.updateIconResource(u"square"_s);
    QImage actual = Pixels::blank({48, 48});
    {
        QPainter painter(&actual);
        renderer.draw(&painter, {8, 4, 40, 20}, QColor(0, 0, 255, 200), 0.5);
    }
    COMPARE_IMAGES(actual, squareImage({48, 48}, 1.0, {8, 4, 40, 20}, QColor(0, 0, 255, 200), Qt::transparent, 0.5), 2);

    // A file of several elements: own colours, no opacity.
    renderer.updateIconResource(u"flag"_s);
    actual.fill(Qt::transparent);
    {
        QPainter painter(&actual);
        painter.setPen(Qt::red);
        painter.setBrush(Qt::red);
        renderer.draw(&painter, {8, 4, 40, 40}, Qt::red, 0.5);
        QCOMPARE(painter.brush(), QBrush(Qt::red));
        QCOMPARE(painter.transform(), QTransform());
    }
    QImage expected = Pixels::blank({48, 48});
    paintFlag(expected, {8, 14, 40, 20});
    COMPARE_IMAGES(actual, expected, 2);
}

void tst_WSvgRenderer::drawUnloaded()
{
    const WSvgRenderer renderer(nullptr);
    QImage image = Pixels::blank({24, 24});
    LogRecorder log;
    {
        QPainter painter(&image);
        renderer.draw(&painter, {0, 0, 24, 24}, Qt::red, 1.0);
    }
    QCOMPARE(log.lines(), warnings({NoNode}));
    QVERIFY(Pixels::isBlank(image));
}

void tst_WSvgRenderer::drawWithoutPainter()
{
    WSvgRenderer renderer(nullptr);
    for (const QString &name : {u"square"_s, u"flag"_s}) {
        QVERIFY(renderer.updateIconResource(name));
        renderer.draw(nullptr, {0, 0, 24, 24}, Qt::red, 1.0);
        renderer.drawScalingHeight(nullptr, {0, 0, 24, 24});
    }
}

void tst_WSvgRenderer::sharedStates()
{
    const MemoryResources resources(
        {{u"/Resources/faint.svg"_s, svg("0 0 24 24", R"(<g fill-opacity="0.2" font-weight="900" text-anchor="end"
            fill-rule="evenodd"><rect width="24" height="24"/></g>)")}});
    WSvgRenderer faint(u":/Resources/faint.svg"_s, nullptr);
    WSvgRenderer square(u":/Resources/square.svg"_s, nullptr);
    for (int round = 0; round < 3; ++round) {
        QImage image = Pixels::blank({24, 24});
        {
            QPainter painter(&image);
            faint.draw(&painter, {0, 0, 24, 24}, Qt::red, 1.0);
        }
        COMPARE_IMAGES(image, Pixels::blank({24, 24}, 1.0, QColor(255, 0, 0, 51)), 1);
        image.fill(Qt::transparent);
        {
            QPainter painter(&image);
            square.draw(&painter, {0, 0, 24, 24}, Qt::red, 1.0);
        }
        COMPARE_IMAGES(image, squareImage({24, 24}, 1.0, {0, 0, 24, 24}, Qt::red), 2);
    }
}

void tst_WSvgRenderer::drawScalingHeight_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QRectF>("expected"); // where the file ends up; null where nothing is drawn
    QTest::newRow("own height") << u"flag"_s << QRectF(0, 0, 20, 10) << QRectF(0, 0, 20, 10);
    QTest::newRow("twice as high: twice as wide only") << u"flag"_s << QRectF(0, 0, 5, 20) << QRectF(0, 0, 40, 10);
    QTest::newRow("half as high: half as wide only") << u"flag"_s << QRectF(0, 0, 100, 5) << QRectF(0, 0, 10, 10);
    QTest::newRow("the position is ignored") << u"flag"_s << QRectF(30, 30, 20, 20) << QRectF(0, 0, 40, 10);
    QTest::newRow("file that takes a colour") << u"square"_s << QRectF(0, 0, 24, 24) << QRectF();
}

void tst_WSvgRenderer::drawScalingHeight()
{
    QFETCH(QString, name);
    QFETCH(QRectF, rect);
    QFETCH(QRectF, expected);
    WSvgRenderer renderer(nullptr);
    QImage image = Pixels::blank({48, 48});
    {
        QPainter painter(&image);
        renderer.drawScalingHeight(&painter, rect); // nothing is loaded: nothing happens, and nothing is said
        QVERIFY(renderer.updateIconResource(name));
        renderer.drawScalingHeight(&painter, rect);
    }
    QImage picture = Pixels::blank({48, 48});
    if (!expected.isNull())
        paintFlag(picture, expected);
    COMPARE_IMAGES(image, picture, 2);
}

void tst_WSvgRenderer::animation()
{
    WSvgRenderer renderer(nullptr);
    QSignalSpy spy(&renderer, &WSvgRenderer::repaintNeeded);
    QVERIFY(renderer.updateIconResource(u"animated"_s));
    QVERIFY(renderer.isAnimated());
    QVERIFY(spy.wait());
    QVERIFY(spy.wait()); // and goes on

    // The first of the two shapes stands still, the other moves.
    const QImage first = renderer.renderPixmap(QSize(20, 10), 1.0, Qt::red).toImage();
    QCOMPARE(first.pixelColor(1, 5), QColor(Qt::black));
    QVERIFY(QTest::qWaitFor([&] { return renderer.renderPixmap(QSize(20, 10), 1.0, Qt::red).toImage() != first; }));

    // Whoever comes later is told as well.
    WSvgRenderer loadedBefore(u":/Resources/animated.svg"_s, nullptr);
    QSignalSpy lateSpy(&loadedBefore, &WSvgRenderer::repaintNeeded);
    QVERIFY(lateSpy.wait());

    // One element that is animated takes the colour and stands still.
    QVERIFY(renderer.updateIconResource(u"animated group"_s));
    QVERIFY(!renderer.isAnimated());
    spy.clear();
    QVERIFY(!spy.wait(200));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(renderer.renderPixmap(QSize(20, 10), 1.0, Qt::red).toImage().pixelColor(19, 5), QColor(Qt::red));

    QVERIFY(renderer.updateIconResource(u"flag"_s));
    QVERIFY(!renderer.isAnimated());
    QVERIFY(!spy.wait(200));
}

void tst_WSvgRenderer::renderFilled_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QColor>("color");
    QTest::newRow("24") << QSize(24, 24) << 1.0 << QColor(Qt::red);
    QTest::newRow("16") << QSize(16, 16) << 1.0 << QColor(Qt::red);
    QTest::newRow("wide") << QSize(60, 20) << 1.0 << QColor(Qt::red);
    QTest::newRow("tall") << QSize(20, 60) << 1.0 << QColor(Qt::red);
    QTest::newRow("half-transparent") << QSize(24, 24) << 1.0 << QColor(1, 2, 255, 77);
    QTest::newRow("no colour is black") << QSize(24, 24) << 1.0 << QColor();
    QTest::newRow("ratio 2") << QSize(24, 24) << 2.0 << QColor(Qt::red);
    QTest::newRow("ratio 1.5") << QSize(36, 36) << 1.5 << QColor(Qt::red);
    QTest::newRow("one pixel") << QSize(1, 1) << 1.0 << QColor(Qt::red);
}

// The icon rectangle is of the pixmap's size in logical pixels: at a higher ratio only its top left is to be seen.
void tst_WSvgRenderer::renderFilled()
{
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(QColor, color);
    const WSvgRenderer renderer(u":/Resources/square.svg"_s, nullptr);
    const QPixmap pixmap = renderer.renderPixmap(size, ratio, color);
    QCOMPARE(pixmap.size(), size);
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
    COMPARE_IMAGES(pixmap.toImage(), squareImage(size, ratio, QRectF(QPointF(), QSizeF(size)), color), 2);
}

void tst_WSvgRenderer::renderCentred_data()
{
    QTest::addColumn<QSize>("iconSize");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("smaller") << QSize(16, 16) << QSize(24, 24) << 1.0 << QColor(Qt::yellow) << QRectF(4, 4, 16, 16);
    QTest::newRow("the same") << QSize(24, 24) << QSize(24, 24) << 1.0 << QColor(Qt::yellow) << QRectF(0, 0, 24, 24);
    QTest::newRow("odd") << QSize(15, 15) << QSize(24, 24) << 1.0 << QColor(Qt::transparent)
                         << QRectF(4.5, 4.5, 15, 15);
    QTest::newRow("not square") << QSize(30, 20) << QSize(40, 60) << 1.0 << QColor(Qt::white) << QRectF(5, 20, 30, 20);
    QTest::newRow("ratio 2") << QSize(16, 16) << QSize(24, 24) << 2.0 << QColor(Qt::yellow) << QRectF(4, 4, 16, 16);
}

void tst_WSvgRenderer::renderCentred()
{
    QFETCH(QSize, iconSize);
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(QColor, background);
    QFETCH(QRectF, rect);
    const WSvgRenderer renderer(u":/Resources/square.svg"_s, nullptr);
    const QPixmap pixmap = renderer.renderPixmap(iconSize, size, ratio, Qt::blue, background);
    COMPARE_IMAGES(pixmap.toImage(), squareImage(size, ratio, rect, Qt::blue, background), 2);
}

void tst_WSvgRenderer::renderRectangle_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QColor>("background");
    QTest::newRow("corner") << QRectF(0, 0, 12, 12) << QSize(24, 24) << 1.0 << QColor(Qt::transparent);
    QTest::newRow("offset") << QRectF(10, 3, 12, 12) << QSize(24, 24) << 1.0 << QColor(Qt::yellow);
    QTest::newRow("fractions") << QRectF(0.5, 1.25, 20.5, 20.5) << QSize(24, 24) << 1.0 << QColor(Qt::white);
    QTest::newRow("partly outside") << QRectF(-6, 12, 24, 24) << QSize(24, 24) << 1.0 << QColor(Qt::white);
    QTest::newRow("ratio 2") << QRectF(0, 0, 24, 24) << QSize(48, 48) << 2.0 << QColor(Qt::white);
    QTest::newRow("ratio 1.25") << QRectF(0, 0, 24, 24) << QSize(30, 30) << 1.25 << QColor(Qt::transparent);
}

void tst_WSvgRenderer::renderRectangle()
{
    QFETCH(QRectF, rect);
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(QColor, background);
    const WSvgRenderer renderer(u":/Resources/square.svg"_s, nullptr);
    const QPixmap pixmap = renderer.renderPixmap(rect, size, ratio, Qt::red, background);
    COMPARE_IMAGES(pixmap.toImage(), squareImage(size, ratio, rect, Qt::red, background), 2);
}

void tst_WSvgRenderer::renderOwnColors_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRectF>("target");
    QTest::newRow("its own ratio") << QRectF(0, 0, 20, 10) << QSize(20, 10) << 1.0 << QRectF(0, 0, 20, 10);
    QTest::newRow("square") << QRectF(0, 0, 24, 24) << QSize(24, 24) << 1.0 << QRectF(0, 6, 24, 12);
    QTest::newRow("wide") << QRectF(0, 0, 60, 10) << QSize(60, 10) << 1.0 << QRectF(20, 0, 20, 10);
    QTest::newRow("offset") << QRectF(4, 5, 10, 10) << QSize(24, 24) << 1.0 << QRectF(4, 7.5, 10, 5);
    QTest::newRow("ratio 2") << QRectF(0, 0, 20, 20) << QSize(40, 40) << 2.0 << QRectF(0, 5, 20, 10);
}

void tst_WSvgRenderer::renderOwnColors()
{
    QFETCH(QRectF, rect);
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(QRectF, target);
    const WSvgRenderer renderer(u":/Resources/flag.svg"_s, nullptr);
    const QPixmap pixmap = renderer.renderPixmap(rect, size, ratio, Qt::red, Qt::yellow);
    QImage expected = Pixels::blank(size, ratio); // neither the colour nor the background count
    paintFlag(expected, target);
    COMPARE_IMAGES(pixmap.toImage(), expected, 2);
}

void tst_WSvgRenderer::renderTooLarge()
{
    for (const QString &name : {u"square"_s, u"flag"_s}) {
        const WSvgRenderer renderer(WSvgRenderer::resourcePath(name), nullptr);
        const auto expected = [&name](const QRectF &rect) {
            if (name == "square"_L1)
                return squareImage({24, 24}, 1.0, rect, Qt::red);
            QImage image = Pixels::blank({24, 24});
            const QRectF target = Pixels::fit({0, 0, 20, 10}, rect).mapRect(QRectF(0, 0, 20, 10));
            paintFlag(image, target);
            return image;
        };
        const auto render = [&renderer](const QRectF &rect) {
            return renderer.renderPixmap(rect, QSize(24, 24), 1.0, Qt::red, Qt::transparent).toImage();
        };
        LogRecorder log;
        COMPARE_IMAGES(render({0, 0, 24, 24}), expected({0, 0, 24, 24}), 2);
        COMPARE_IMAGES(render({20, 20, 24, 24}), expected({20, 20, 24, 24}), 2); // outside, but not larger
        QCOMPARE(log.lines(), warnings({}));
        COMPARE_IMAGES(render({0, 0, 48, 48}), expected({0, 0, 48, 48}), 2);
        COMPARE_IMAGES(render({0, 0, 24.5, 24}), expected({0, 0, 24.5, 24}), 2);
        COMPARE_IMAGES(render({0, 0, 24, 25}), expected({0, 0, 24, 25}), 2);
        QCOMPARE(log.lines(), warnings({TooLarge, TooLarge, TooLarge}));
        log.clear();
        COMPARE_IMAGES(renderer.renderPixmap(QSize(30, 30), QSize(24, 24), 1.0, Qt::red, Qt::transparent).toImage(),
                       expected({-3, -3, 30, 30}), 2);
        QCOMPARE(log.lines(), warnings({TooLarge}));
    }
}

void tst_WSvgRenderer::renderUnloaded()
{
    const WSvgRenderer renderer(nullptr);
    LogRecorder log;
    QVERIFY(renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red).isNull());
    QVERIFY(renderer.renderPixmap(QSize(16, 16), QSize(24, 24), 1.0, Qt::red, Qt::white).isNull());
    QVERIFY(renderer.renderPixmap(QRectF(0, 0, 48, 48), QSize(24, 24), 1.0, Qt::red, Qt::white).isNull());
    QCOMPARE(log.lines(), warnings({NoNode, NoNode, TooLarge, NoNode}));
}

void tst_WSvgRenderer::renderRefused_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("no width") << QSize(0, 24);
    QTest::newRow("no height") << QSize(24, 0);
    QTest::newRow("default size") << QSize();
    QTest::newRow("negative") << QSize(-24, -24);
    QTest::newRow("10 GB") << QSize(50'000, 50'000);
    QTest::newRow("largest") << QSize(std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
}

void tst_WSvgRenderer::renderRefused()
{
    QFETCH(QSize, size);
    for (const QString &name : {u"square"_s, u"flag"_s}) {
        const WSvgRenderer renderer(WSvgRenderer::resourcePath(name), nullptr);
        LogRecorder log;
        QVERIFY(renderer.renderPixmap(size, 1.0, Qt::red).isNull());
        QCOMPARE(log.lines(),
                 warnings({u"Unable to create a pixmap of size QSize(%1, %2)"_s.arg(size.width()).arg(size.height())}));
        QVERIFY(renderer.isLoaded());
    }
}

void tst_WSvgRenderer::renderIcon_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("off");
    QTest::addColumn<QString>("on");
    QTest::addColumn<QString>("offShows"); // empty: nothing
    QTest::addColumn<QString>("onShows");
    QTest::addColumn<QString>("loaded");
    QTest::addColumn<QStringList>("messages");
    const QString none;
    const QString square = u"square"_s;
    const QString circle = u"circle"_s;
    const QString missing = u"none"_s;
    const QString unableMissing = unable(u":/Resources/none.svg"_s);
    QTest::newRow("two icons") << none << square << circle << square << circle << circle << QStringList();
    QTest::newRow("one icon twice") << none << square << square << square << square << square << QStringList();
    QTest::newRow("no icon for on: the one for off")
        << none << square << none << square << square << square << QStringList();
    QTest::newRow("no icon for off: the one before")
        << circle << none << square << circle << square << square << QStringList();
    QTest::newRow("no icon at all: the one before")
        << circle << none << none << circle << circle << circle << QStringList();
    QTest::newRow("no icon at all, none before")
        << none << none << none << none << none << none << QStringList{NoNode, NoNode};
    QTest::newRow("no icon for off, none before")
        << none << none << square << none << square << square << QStringList{NoNode};
    QTest::newRow("broken for on") << none << square << missing << square << none << none
                                   << QStringList{unableMissing, NoNode};
    QTest::newRow("broken for off") << circle << missing << square << none << square << square
                                    << QStringList{unableMissing, NoNode};
    QTest::newRow("broken for off, no icon for on")
        << circle << missing << none << none << none << none << QStringList{unableMissing, NoNode, NoNode};
    QTest::newRow("both broken") << circle << missing << missing << none << none << none
                                 << QStringList{unableMissing, NoNode, unableMissing, NoNode};
}

void tst_WSvgRenderer::renderIcon()
{
    QFETCH(QString, before);
    QFETCH(QString, off);
    QFETCH(QString, on);
    QFETCH(QString, offShows);
    QFETCH(QString, onShows);
    QFETCH(QString, loaded);
    QFETCH(QStringList, messages);
    WSvgRenderer renderer(nullptr);
    if (!before.isEmpty())
        QVERIFY(renderer.updateIconResource(before));
    LogRecorder log;
    const QIcon icon = renderer.renderIcon(off, on, QSize(24, 24), 1.0, Qt::red, QIcon::Normal);
    QCOMPARE(libraryLines(log), warnings(messages));
    QCOMPARE(renderer.getLoadedPath(), loaded.isEmpty() ? QString() : WSvgRenderer::resourcePath(loaded));
    const auto check = [&icon](const QString &shows, QIcon::State state) {
        QCOMPARE(icon.availableSizes(QIcon::Normal, state),
                 shows.isEmpty() ? QList<QSize>() : QList<QSize>{QSize(24, 24)});
        if (shows.isEmpty())
            return;
        const QImage image = icon.pixmap(QSize(24, 24), 1.0, QIcon::Normal, state).toImage();
        COMPARE_IMAGES(image,
                       (shows == "square"_L1
                            ? squareImage
                            : [](const QSize &size, double ratio, const QRectF &target, const QColor &color,
                                 const QColor &, double) { return circleImage(size, ratio, target, color); })(
                           {24, 24}, 1.0, {0, 0, 24, 24}, Qt::red, Qt::transparent, 1.0),
                       2);
    };
    check(offShows, QIcon::Off);
    check(onShows, QIcon::On);
}

void tst_WSvgRenderer::renderIconModes()
{
    WSvgRenderer renderer(nullptr);
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
        const QIcon icon = renderer.renderIcon(u"square"_s, u"circle"_s, QSize(32, 16), 2.0, Qt::red, mode);
        for (const QIcon::Mode other : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
            for (const QIcon::State state : {QIcon::Off, QIcon::On})
                QCOMPARE(icon.availableSizes(other, state),
                         mode == other ? QList<QSize>{QSize(32, 16)} : QList<QSize>());
        }
    }
}

void tst_WSvgRenderer::hostile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<bool>("paints"); // anything at all, where it loads
    const auto row = [](const char *name, const QByteArray &content, bool loads, bool paints = false) {
        QTest::newRow(name) << content << loads << paints;
    };
    const QByteArray start = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">)";
    const QByteArray square = R"(<rect x="4" y="4" width="16" height="16"/>)";
    row("empty file", "", false);
    row("spaces", "   \n", false);
    row("text", "nothing of the kind", false);
    row("zero bytes", QByteArray(4096, '\0'), false);
    row("a picture of another kind", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1", 24), false);
    row("HTML", "<html><body><p>x</p></body></html>", false);
    row("other XML", "<a><b/></a>", false);
    row("not closed", start + "<g>" + square, false);
    row("cut in an attribute", start + R"(<g><rect x="4)", false);
    row("two roots: the first", start + square + "</svg>" + start + "</svg>", true, true);
    row("broken UTF-8", start + "<g id=\"\xff\xfe\">" + square + "</g></svg>", false);
    row("no elements", start + "</svg>", true);
    row("an empty group", start + "<g/></svg>", true);
    row("a group that is not displayed", start + R"(<g display="none">)" + square + "</g></svg>", true);

    QByteArray laughs = R"(<?xml version="1.0"?><!DOCTYPE svg [<!ENTITY a0 "ha">)";
    for (int i = 1; i < 30; ++i) {
        const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
        laughs += "<!ENTITY a" + QByteArray::number(i) + " \"" + before.repeated(10) + "\">";
    }
    row("a billion laughs", laughs + "]>" + start + "<text>&a29;</text></svg>", false);
    row("an entity of itself", R"(<!DOCTYPE svg [<!ENTITY a "&a;">]>)" + start + "<text>&a;</text></svg>", false);
    row("a file as an entity",
        R"(<!DOCTYPE svg [<!ENTITY a SYSTEM "file:///etc/passwd">]>)" + start + "<g><text>&a;</text></g></svg>", true);
    row("a view box of no size",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 0 0"><g>)" + square + "</g></svg>", true, true);
    row("a view box of no height",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 0"><g>)" + square + "</g></svg>", true, true);
    row("a negative view box",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 -24 -24"><g>)" + square + "</g></svg>", true, true);
    row("a view box of words",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="a b c d"><g>)" + square + "</g></svg>", true, true);
    row("a view box that is not a number",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="nan nan nan nan"><g>)" + square + "</g></svg>", true, true);
    row("an infinite view box",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 1e999 1e999"><g>)" + square + "</g></svg>", true, true);
    row("an enormous view box",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 1e30 1e30"><g>)" + square + "</g></svg>", true);
    row("a tiny view box",
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="4 4 1e-30 1e-30"><g>)" + square + "</g></svg>", true);
    const QByteArray open = R"(<svg xmlns="http://www.w3.org/2000/svg" )";
    for (const char *box : {"0 0 0 0", "0 0 24 0", "0 0 0 24", "nan nan nan nan"}) {
        const QByteArray name = QByteArray("two elements, view box ") + box;
        row(name.constData(), open + "viewBox=\"" + box + "\">" + square + square + "</svg>", true, true);
    }
    row("no view box", R"(<svg xmlns="http://www.w3.org/2000/svg"><g>)" + square + "</g></svg>", true, true);
    row("no view box, two elements", R"(<svg xmlns="http://www.w3.org/2000/svg">)" + square + square + "</svg>", true,
        true);
    row("an enormous document",
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="1e9" height="1e9"><g>)" + square + "</g></svg>", true);
    row("a path that is not a number", start + R"(<g><path d="Mnan nanLnan 7Z"/></g></svg>)", true);
    row("a path of infinite numbers", start + R"(<g><path d="M1e999 -1e999L1e999 5 7 1e999Z"/></g></svg>)", true, true);
    row("a path of enormous numbers", start + R"(<g><path d="M-1e30 -1e30H1e30V1e30H-1e30Z"/></g></svg>)", true);
    row("a path that breaks off", start + R"(<g><path d="M4 4H20V"/></g></svg>)", true);
    row("a path of garbage", start + R"(<g><path d="?!%"/></g></svg>)", true);
    row("an arc of no radius", start + R"(<g><path d="M4 4A0 0 0 0 1 20 20V4Z"/></g></svg>)", true);
    row("a negative rectangle", start + R"(<g><rect width="-5" height="-5"/></g></svg>)", true);
    row("a circle that is not a number", start + R"(<g><circle cx="nan" cy="12" r="inf"/></g></svg>)", true);
    row("a use of itself", start + R"(<g id="a"><use href="#a"/></g></svg>)", false);
    row("two uses of each other",
        start + R"(<g><g id="a"><use href="#b"/></g><g id="b"><use href="#a"/></g></g></svg>)", false);
    row("a use of nothing", start + R"(<g><use href="#nope"/></g></svg>)", true);
    QByteArray uses = start + R"(<g><rect id="u0" width="24" height="24"/>)";
    for (int i = 1; i <= 8; ++i) {
        const QByteArray use = R"(<use href="#u)" + QByteArray::number(i - 1) + R"("/>)";
        uses += R"(<g id="u)" + QByteArray::number(i) + "\">" + use + use + "</g>";
    }
    row("2^8 uses", uses + "</g></svg>", true, true);
    row("a gradient of itself",
        start + R"(<g><linearGradient id="a" href="#a"/><rect width="24" height="24" fill='url(#a)'/></g></svg>)",
        true);
    row("a gradient without stops",
        start + R"(<g><radialGradient id="a"/><rect width="24" height="24" fill='url(#a)'/></g></svg>)", true);
    row("a fill that does not exist", start + R"(<g><rect width="24" height="24" fill='url(#nope)'/></g></svg>)", true);
    row("a colour that is none", start + R"(<g><rect width="24" height="24" fill="nope"/></g></svg>)", true, true);
    row("a transformation to nothing", start + R"(<g transform='scale(0)'>)" + square + "</g></svg>", true);
    row("a transformation of garbage", start + R"(<g transform='scale(x) matrix(1,2)'>)" + square + "</g></svg>", true,
        true);
    row("a picture in it", start + R"(<g><image width="24" height="24" href="data:image/png;base64,AAAA"/></g></svg>)",
        true);
    row("a file in it", start + R"(<g><image width="24" height="24" href="file:///etc/passwd"/></g></svg>)", true);
    row("a script", start + "<script>x</script><g>" + square + "</g></svg>", true, true);
    row("a style of garbage", start + "<style>}}}{{{ a:b;c</style><g>" + square + "</g></svg>", true, true);
    row("nested a thousand times",
        start + QByteArray("<g>").repeated(1000) + square + QByteArray("</g>").repeated(1000) + "</svg>", true, true);
    row("a megabyte of shapes", start + "<g>" + square.repeated(20'000) + "</g></svg>", true, true);
    row("a path of a megabyte",
        start + "<g><path d=\"M4 4" + QByteArray("H20V20H4V4").repeated(100'000) + "Z\"/></g></svg>", true, true);
}

void tst_WSvgRenderer::hostile()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, loads);
    QFETCH(bool, paints);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"hostile.svg"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    WSvgRenderer renderer(nullptr);
    LogRecorder log;
    QCOMPARE(renderer.load(path), loads);
    QCOMPARE(renderer.isLoaded(), loads);
    QCOMPARE(renderer.getLoadedPath(), loads ? path : QString());
    const QPixmap pixmap = renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red);
    QCOMPARE(libraryLines(log), loads ? warnings({}) : warnings({unable(path), NoNode}));
    if (loads) {
        QImage image = Pixels::blank({24, 24});
        QPainter painter(&image);
        for (const QRectF &rect :
             {QRectF(), QRectF(0, 0, 24, 0), QRectF(20, 20, -10, -10), QRectF(-1e300, 0, 1e300, 1e300)}) {
            renderer.draw(&painter, rect, Qt::red, 1.0);
            renderer.drawScalingHeight(&painter, rect);
        }
        QCOMPARE(libraryLines(log), warnings({}));
    }
    if (loads) {
        QCOMPARE(pixmap.size(), QSize(24, 24));
        QCOMPARE(!Pixels::isBlank(pixmap.toImage()), paints);
    } else {
        QVERIFY(pixmap.isNull());
    }
}

// A good file afterwards is as good as ever.
void tst_WSvgRenderer::hostileAfterGood()
{
    const MemoryResources resources(
        {{u"/Resources/nan.svg"_s,
          svg("nan 0 0 -1", R"(<g fill-opacity="nan" opacity="inf"><path d="Mnan 0Z"/></g>)")}});
    WSvgRenderer renderer(nullptr);
    {
        const LogRecorder log;
        renderer.updateIconResource(u"broken"_s);
        renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red);
        renderer.updateIconResource(u"nan"_s);
        renderer.renderPixmap(QSize(24, 24), 1.0, Qt::red);
        QImage image = Pixels::blank({24, 24});
        QPainter painter(&image);
        renderer.draw(&painter, {0, 0, 24, 24}, Qt::red, 1.0);
    }
    QVERIFY(renderer.updateIconResource(u"square"_s));
    QImage image = Pixels::blank({24, 24});
    {
        QPainter painter(&image);
        renderer.draw(&painter, {0, 0, 24, 24}, Qt::red, 1.0);
    }
    COMPARE_IMAGES(image, squareImage({24, 24}, 1.0, {0, 0, 24, 24}, Qt::red), 2);
}

void tst_WSvgRenderer::truncated()
{
    WSvgRenderer renderer(nullptr);
    for (qsizetype length = 0; length < Square.size(); ++length) {
        const MemoryResources resources({{u"/Resources/cut.svg"_s, Square.first(length)}});
        LogRecorder log;
        QVERIFY(!renderer.updateIconResource(u"cut"_s));
        QVERIFY(!renderer.isLoaded());
        QCOMPARE(libraryLines(log), warnings({unable(u":/Resources/cut.svg"_s)}));
    }
}

LUMAKIT_TEST_MAIN(tst_WSvgRenderer)
#include "tst_wsvgrenderer.moc"
