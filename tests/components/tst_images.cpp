#include <ComponentTest.h>
#include <IWMovieProviderSource.h>
#include <LogRecorder.h>
#include <SvgImageProvider.h>
#include <WMovie.h>
#include <WQmlEngine.h>

#include <QAccessible>
#include <QBuffer>
#include <QPainter>
#include <QQmlComponent>
#include <QQuickAsyncImageProvider>
#include <QQuickRenderTarget>
#include <QStandardItemModel>

using namespace Qt::StringLiterals;

namespace {

// Two frames, 20 x 20, for ever: a red disc that shrinks.
const QByteArray Gif = QByteArray::fromBase64(
    "R0lGODlhFAAUAPEAAAAAANhISNhISAAAACH/C05FVFNDQVBFMi4wAwEAAAAh+QQJKAAAACwAAAAAFAAUAAACMoSPqcvtb0SYAgI5c6hN"
    "+8lgX8Yl46eIJ2WuXutmcBwk6loedJ3GORJz3FgQ0c+CTBYAACH5BAkoAAAALAAAAAAUABQAAAImhI+py+0PozxB2CCttnB7V3kaxohf"
    "aWpNqjKhSaJmJ0pvPOX6vhcAOw==");

class RecordingSource : public IWMovieProviderSource
{
public:
    using IWMovieProviderSource::IWMovieProviderSource;

    void fetch(const QString &source) override { requests.append(source); }

    QStringList requests;
};

class ImagesApplication : public TestApplication
{
public:
    using TestApplication::TestApplication;

    IWMovieProviderSource *getMovieProviderSource() override { return &movies; }

    RecordingSource movies;
};

// Icons, and what was asked for: "name WIDTHxHEIGHT".
class RecordingProvider : public SvgImageProvider
{
public:
    explicit RecordingProvider(QStringList *requests)
        : m_requests(requests)
    {
    }

    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override
    {
        m_requests->append(u"%1 %2x%3"_s.arg(id.section(u'/', 1), QString::number(requestedSize.width()),
                                             QString::number(requestedSize.height())));
        return SvgImageProvider::requestPixmap(id, size, requestedSize);
    }

private:
    QStringList *m_requests;
};

class Response : public QQuickImageResponse
{
public:
    QQuickTextureFactory *textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }

    void finish(const QImage &image)
    {
        m_image = image;
        // From its own thread, where it is listened to by then.
        QMetaObject::invokeMethod(this, &QQuickImageResponse::finished, Qt::QueuedConnection);
    }

private:
    QImage m_image;
};

// Pictures of one colour, by its name, that are there when the test says so.
class LaterProvider : public QQuickAsyncImageProvider
{
public:
    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &) override
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.append({id, new Response});
        return m_waiting.last().second;
    }

    // Waits for the request.
    bool finish(const QString &color)
    {
        return QTest::qWaitFor([this, &color] {
            const std::lock_guard lock(m_mutex);
            const auto request = std::ranges::find(m_waiting, color, &std::pair<QString, Response *>::first);
            if (request == m_waiting.end())
                return false;
            QImage image(40, 20, QImage::Format_RGB32);
            image.fill(QColor(color));
            request->second->finish(image);
            m_waiting.erase(request);
            return true;
        });
    }

    qsizetype waitingCount()
    {
        const std::lock_guard lock(m_mutex);
        return m_waiting.size();
    }

private:
    std::mutex m_mutex;
    QList<std::pair<QString, Response *>> m_waiting;
};

bool isVisibleSpinner(const QQuickItem *item)
{
    return item->isVisible() && item->inherits("QQuickImage") && item->property("rotateDuration").isValid();
}

int spinnerCount(const QQuickItem *root)
{
    int count = 0;
    for (const QQuickItem *item : root->findChildren<QQuickItem *>())
        count += isVisibleSpinner(item);
    return count;
}

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

void pressAccessibly(QObject *object)
{
    accessible(object)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace

class tst_Images : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void wSvgIconRequests_data();
    void wSvgIconRequests();
    void iconsOfNoSize_data();
    void iconsOfNoSize();
    void wSvgIconFollowsTheDevicePixelRatio();
    void wSvgIconFollowsTheTheme();
    void wSvgImageHasTheSizeOfItsFile();
    void wImageShowsASpinner();
    void wImageSpinnerSize_data();
    void wImageSpinnerSize();

    void wSvgSpinnerRotates_data();
    void wSvgSpinnerRotates();
    void wSvgSpinnerStandsStillInAHiddenWindow();
    void wSvgSpinnerTurnsOnScreen();
    void wSpinnerWithoutSource();
    void wSpinnerPlays_data();
    void wSpinnerPlays();

    void wSvgSequenceAnimatedFrames_data();
    void wSvgSequenceAnimatedFrames();
    void wSvgSequenceAnimatedStops_data();
    void wSvgSequenceAnimatedStops();
    void wSvgSequenceAnimatedStartsAnew();
    void wSvgSequenceAnimatedFrameName_data();
    void wSvgSequenceAnimatedFrameName();

    void wDynamicImageKeepsThePresentPicture();
    void wDynamicAnimatedImageShowsTheMovie();
    void wDynamicAnimatedImageShowsTheFallback();
    void wDynamicAnimatedImageChangesItsSource();
    void wDynamicAnimatedImageWithoutAnimations();

    void wGifLabelSize_data();
    void wGifLabelSize();
    void wGifLabelElides();
    void wGifLabelMirrors();
    void wCoverImageCovers();
    void wCoverImageTakesTheControllersImage();
    void largePicturesFollowTheDevicePixelRatio_data();
    void largePicturesFollowTheDevicePixelRatio();
    void croppedPictureCovers();

    void wCircularProgressBarFraction_data();
    void wCircularProgressBarFraction();
    void wCircularProgressBarPicture();
    void wCircularProgressBarPaintsOnlyChanges();
    void wCircularProgressBarAccessible();

    void wAvatarInitials_data();
    void wAvatarInitials();
    void wAvatarPictureIsRound();
    void wAvatarPictureGoes();
    void wAvatarStateColors();
    void wAvatarTriggers_data();
    void wAvatarTriggers();
    void wAvatarAsks_data();
    void wAvatarAsks();
    void wAvatarContactCard();
    void wAvatarController();
    void wAvatarAccessible_data();
    void wAvatarAccessible();
    void wSelfMessageAvatarIsRound();
    void avatarListStandardModels_data();
    void avatarListStandardModels();
    void avatarListStandardClicks();

    void wEmptyStateWraps();
    void wEmptyStateLeavesOutWhatIsNotThere_data();
    void wEmptyStateLeavesOutWhatIsNotThere();

private:
    void prepare() override;
    void tidy() override;
    QColor colorOf(const char *colorSetName) const;
    QImage grab(const QQuickItem *item) const;
    QColor colorAt(const QQuickItem *item, double x, double y) const;

    static ImagesApplication *host() { return static_cast<ImagesApplication *>(QCoreApplication::instance()); }

    QUrl later(const char *color) const;

    LaterProvider *m_later = nullptr; // owned by the engine
    QString m_laterName;
    int m_laterCount = 0;
    QStringList m_requests;
    QScopedPointer<MemoryResources> m_pictures;
};

void tst_Images::prepare()
{
    ComponentTest::prepare();
    QQmlEngine *engine = application()->getQmlEngine();
    engine->addImageProvider(u"svg"_s, new RecordingProvider(&m_requests));
    m_later = new LaterProvider;
    m_laterName = u"later%1"_s.arg(++m_laterCount); // no picture of an earlier test is in the cache
    engine->addImageProvider(m_laterName, m_later);
    m_requests.clear();
    host()->movies.requests.clear();
    m_pictures.reset(new MemoryResources({{u"/Pictures/disc.gif"_s, Gif}}));
}

void tst_Images::tidy()
{
    ComponentTest::tidy();
    m_pictures.reset();
}

QUrl tst_Images::later(const char *color) const
{
    return QUrl(u"image://%1/%2"_s.arg(m_laterName, QLatin1StringView(color)));
}

QColor tst_Images::colorOf(const char *colorSetName) const
{
    return application()->getColorSet(QString::fromLatin1(colorSetName)).normal;
}

QImage tst_Images::grab(const QQuickItem *item) const
{
    return window()->grabWindow().copy(item->mapRectToScene(item->boundingRect()).toRect());
}

QColor tst_Images::colorAt(const QQuickItem *item, double x, double y) const
{
    return window()->grabWindow().pixelColor(item->mapToScene(QPointF(x, y)).toPoint());
}

void tst_Images::wSvgIconRequests_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QStringList>("requests");
    QTest::newRow("size") << QByteArray("width: 21; height: 21; svgName: 'check'") << QStringList{u"check 21x21"_s};
    QTest::newRow("not square") << QByteArray("width: 22; height: 33; svgName: 'check'")
                                << QStringList{u"check 22x33"_s};
    QTest::newRow("no size") << QByteArray("width: 0; height: 0; svgName: 'check'") << QStringList();
    QTest::newRow("less than a pixel") << QByteArray("width: 0.4; height: 0.4; svgName: 'check'") << QStringList();
    QTest::newRow("no name") << QByteArray("width: 23; height: 23") << QStringList();
    QTest::newRow("no colour set") << QByteArray("width: 25; height: 25; svgName: 'check'; svgColorSetName: ''")
                                   << QStringList();
}

void tst_Images::wSvgIconRequests()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const QStringList, requests);
    QVERIFY(show("Item { WSvgIcon { " + properties + " } }"));
    QCOMPARE(m_requests, requests);
}

void tst_Images::iconsOfNoSize_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::newRow("WSvgIcon") << QByteArray("WSvgIcon { svgName: 'check' }");
    QTest::newRow("WSvgSpinner") << QByteArray("WSvgSpinner {}");
    QTest::newRow("WSvgSequenceAnimated")
        << QByteArray("WSvgSequenceAnimated { imagePrefixName: 'typing-'; frameCount: 4; paused: true }");
}

void tst_Images::iconsOfNoSize()
{
    QFETCH(const QByteArray, qml);
    auto *icon = show(qml);
    QVERIFY(icon);
    QCOMPARE(icon->property("status").toInt(), 1); // ready
    m_requests.clear();
    icon->setSize({0, 0});
    QCOMPARE(icon->property("status").toInt(), 0); // null
    application()->setThemeMode(u"dark"_s);
    icon->setSize({41, 41});
    QCOMPARE(icon->property("status").toInt(), 1);
    QCOMPARE(m_requests.last().section(u' ', 1), u"41x41"_s);
    QVERIFY2(m_requests.filter(u"0"_s).isEmpty(), qPrintable(m_requests.join(u'\n')));
}

void tst_Images::wSvgIconFollowsTheDevicePixelRatio()
{
    // A window with a ratio of its own; it is never shown.
    QImage device(100, 100, QImage::Format_ARGB32_Premultiplied);
    QQuickWindow scene;
    QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&device);
    target.setDevicePixelRatio(1);
    scene.setRenderTarget(target);

    QQmlComponent component(application()->getQmlEngine());
    component.setData("import 'qrc:/Qml'\nWSvgIcon { width: 26; height: 26; svgName: 'check' }", {});
    const std::unique_ptr<QObject> icon(
        component.createWithInitialProperties({{u"parent"_s, QVariant::fromValue(scene.contentItem())}}));
    QVERIFY2(icon, qPrintable(component.errorString()));
    QCOMPARE(m_requests, QStringList{u"check 26x26"_s});

    for (const auto &[ratio, request] : {std::pair(1.5, u"check 39x39"_s), std::pair(2.0, u"check 52x52"_s)}) {
        m_requests.clear();
        target.setDevicePixelRatio(ratio);
        scene.setRenderTarget(target);
        QEvent change(QEvent::DevicePixelRatioChange);
        QCoreApplication::sendEvent(&scene, &change);
        QCOMPARE(m_requests, QStringList{request});
        QCOMPARE(icon->property("implicitWidth").toDouble(), 26.0);
    }
}

void tst_Images::wSvgIconFollowsTheTheme()
{
    auto *icon = show("WSvgIcon { svgName: 'check'; svgColorSetName: 'hyperlink-accent-text' }");
    QVERIFY(icon);
    for (const QString &mode : {u"dark"_s, u"highcontrast"_s, u"default"_s}) {
        application()->setThemeMode(mode);
        QCOMPARE(icon->property("svgColor").value<QColor>(), colorOf("hyperlink-accent-text"));
        QCOMPARE(icon->property("source").toUrl().toString(),
                 u"image://svg/%1/check"_s.arg(colorOf("hyperlink-accent-text").name()));
    }
}

void tst_Images::wSvgImageHasTheSizeOfItsFile()
{
    auto *picture = show("WSvgImage { svgName: 'logo' }");
    QVERIFY(picture);
    QCOMPARE(picture->size(), QSizeF(24, 24));
    picture->setSize({48, 48});
    QCOMPARE(picture->property("sourceSize").toSize(), QSize(48, 48));
    QCOMPARE(colorAt(picture, 24, 3).name(), u"#ffffff"_s); // above the logo, which is drawn in full
    QCOMPARE(colorAt(picture, 24, 6).name(), u"#000000"_s);
}

void tst_Images::wImageShowsASpinner()
{
    auto *image =
        show("WImage { width: 60; height: 60; source: '" + later("red").toEncoded() + "'; hasSpinner: true }");
    QVERIFY(image);
    QCOMPARE(image->property("isSpinnerVisible"), true);
    QCOMPARE(spinnerCount(image), 1);
    QVERIFY(m_later->finish(u"red"_s));
    QTRY_COMPARE(image->property("isSpinnerVisible"), false);
    QTRY_COMPARE(spinnerCount(image), 0);

    image->setProperty("hasSpinner", false);
    image->setProperty("source", later("blue"));
    QCOMPARE(image->property("status").toInt(), 2); // loading
    QCOMPARE(spinnerCount(image), 0);
    image->setProperty("hasSpinner", true);
    QCOMPARE(spinnerCount(image), 1);
}

void tst_Images::wImageSpinnerSize_data()
{
    QTest::addColumn<QSizeF>("image");
    QTest::addColumn<QRectF>("spinner");
    QTest::newRow("large") << QSizeF(100, 60) << QRectF(38, 18, 24, 24);
    QTest::newRow("small") << QSizeF(16, 40) << QRectF(0, 12, 16, 16);
    QTest::newRow("none yet") << QSizeF(0, 0) << QRectF(-12, -12, 24, 24);
}

void tst_Images::wImageSpinnerSize()
{
    QFETCH(const QSizeF, image);
    QFETCH(const QRectF, spinner);
    auto *item = show("WImage { source: '" + later("red").toEncoded() + "'; hasSpinner: true }");
    QVERIFY(item);
    item->setSize(image);
    const auto *shown = item->property("spinner").value<QQuickItem *>();
    QVERIFY(shown);
    QCOMPARE(QRectF(shown->position(), shown->size()), spinner);
}

void tst_Images::wSvgSpinnerRotates_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<bool>("animationsDisabled");
    QTest::addColumn<bool>("rotates");
    QTest::newRow("as it is") << QByteArray() << false << true;
    QTest::newRow("invisible") << QByteArray("visible: false") << false << false;
    QTest::newRow("no duration") << QByteArray("rotateDuration: 0") << false << false;
    QTest::newRow("negative duration") << QByteArray("rotateDuration: -1") << false << false;
    QTest::newRow("no animations") << QByteArray() << true << false;
}

void tst_Images::wSvgSpinnerRotates()
{
    QFETCH(const QByteArray, properties);
    QFETCH(const bool, animationsDisabled);
    QFETCH(const bool, rotates);
    application()->setAnimationsDisabled(animationsDisabled);
    QVERIFY(show("Item { WSvgSpinner { objectName: 'spinner'; " + properties + " } }"));
    QTRY_COMPARE(find(u"spinner"_s)->property("isRotating"), rotates);
}

void tst_Images::wSvgSpinnerStandsStillInAHiddenWindow()
{
    auto *spinner = show("WSvgSpinner {}");
    QVERIFY(spinner);
    QCOMPARE(spinner->property("isRotating"), true);
    window()->hide();
    QCOMPARE(spinner->property("isRotating"), false);
    window()->show();
    QCOMPARE(spinner->property("isRotating"), true);
}

void tst_Images::wSvgSpinnerTurnsOnScreen()
{
    QVERIFY(show("Row { WSvgSpinner { objectName: 'turning'; rotateDuration: 400 }"
                 "      WSvgSpinner { objectName: 'still'; rotateDuration: 0 } }"));
    const QImage turning = grab(find(u"turning"_s));
    const QImage still = grab(find(u"still"_s));
    QTRY_VERIFY(grab(find(u"turning"_s)) != turning);
    QCOMPARE(grab(find(u"still"_s)), still);
    QVERIFY(still != QImage(still.size(), still.format()));
}

void tst_Images::wSpinnerWithoutSource()
{
    auto *spinner = show("WSpinner {}");
    QVERIFY(spinner);
    QCOMPARE(spinnerCount(spinner), 1);
    spinner->setProperty("source", u"qrc:/Pictures/disc.gif"_s);
    QTRY_COMPARE(spinnerCount(spinner), 0);
    QCOMPARE(spinner->property("frameCount"), 2);
    QCOMPARE(spinner->size(), QSizeF(24, 24));
    spinner->setProperty("source", QString());
    QTRY_COMPARE(spinnerCount(spinner), 1);
}

void tst_Images::wSpinnerPlays_data()
{
    QTest::addColumn<bool>("animationsDisabled");
    QTest::newRow("as it is") << false;
    QTest::newRow("no animations") << true;
}

void tst_Images::wSpinnerPlays()
{
    QFETCH(const bool, animationsDisabled);
    application()->setAnimationsDisabled(animationsDisabled);
    auto *spinner = show("WSpinner { source: 'qrc:/Pictures/disc.gif' }");
    QVERIFY(spinner);
    QTRY_COMPARE(spinner->property("playing"), !animationsDisabled);
    QCOMPARE(spinner->property("paused"), false);
    spinner->setVisible(false);
    QCOMPARE(spinner->property("paused"), !animationsDisabled); // what does not play cannot pause
}

void tst_Images::wSvgSequenceAnimatedFrames_data()
{
    QTest::addColumn<int>("loops");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("once") << 1 << QStringList{u"typing-1"_s, u"typing-2"_s, u"typing-3"_s};
    QTest::newRow("twice") << 2 << QStringList{u"typing-1"_s, u"typing-2"_s, u"typing-3"_s,
                                               u"typing-1"_s, u"typing-2"_s, u"typing-3"_s};
}

void tst_Images::wSvgSequenceAnimatedFrames()
{
    QFETCH(const int, loops);
    QFETCH(const QStringList, names);
    auto *sequence = show("WSvgSequenceAnimated { imagePrefixName: 'typing-'; frameCount: 3; frameDuration: 5;"
                          "                       property var names: []; loops: 0;"
                          "                       onCurrentFrameNameChanged: names.push(currentFrameName) }");
    QVERIFY(sequence);
    QCOMPARE(sequence->property("isPlaying"), false); // no loops
    QSignalSpy finished(sequence, SIGNAL(finished()));
    sequence->setProperty("loops", loops);
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(sequence->property("names").toStringList(), names);
    QCOMPARE(sequence->property("isPlaying"), false);
    QCOMPARE(sequence->property("running"), true);
}

void tst_Images::wSvgSequenceAnimatedStops_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("stops");
    QTest::newRow("not running") << QByteArray("running") << QVariant(false);
    QTest::newRow("paused") << QByteArray("paused") << QVariant(true);
    QTest::newRow("invisible") << QByteArray("visible") << QVariant(false);
    QTest::newRow("one frame") << QByteArray("frameCount") << QVariant(1);
    QTest::newRow("no duration") << QByteArray("frameDuration") << QVariant(0);
    QTest::newRow("loops over") << QByteArray("loops") << QVariant(0);
}

void tst_Images::wSvgSequenceAnimatedStops()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, stops);
    QVERIFY(show("Row { WSvgSequenceAnimated { objectName: 'stopped'; imagePrefixName: 'typing-'; frameCount: 4;"
                 "                             frameDuration: 5 }"
                 "      WSvgSequenceAnimated { objectName: 'other'; imagePrefixName: 'typing-'; frameCount: 4;"
                 "                             frameDuration: 5; loops: 3; running: false } }"));
    auto *stopped = find(u"stopped"_s);
    QCOMPARE(stopped->property("isPlaying"), true);
    const QVariant plays = stopped->property(property);
    stopped->setProperty(property, stops);
    QCOMPARE(stopped->property("isPlaying"), false);
    const QVariant frame = stopped->property("currentFrame");
    QSignalSpy finished(find(u"other"_s), SIGNAL(finished()));
    find(u"other"_s)->setProperty("running", true);
    QTRY_COMPARE(finished.count(), 1); // meanwhile it would have gone on
    QCOMPARE(stopped->property("currentFrame"), frame);
    stopped->setProperty(property, plays);
    QCOMPARE(stopped->property("isPlaying"), true);
}

void tst_Images::wSvgSequenceAnimatedStartsAnew()
{
    auto *sequence =
        show("WSvgSequenceAnimated { imagePrefixName: 'typing-'; frameCount: 2; frameDuration: 5; loops: 1 }");
    QVERIFY(sequence);
    QSignalSpy finished(sequence, SIGNAL(finished()));
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(sequence->property("currentFrame"), 2);
    sequence->setProperty("running", false);
    sequence->setProperty("running", true);
    QCOMPARE(sequence->property("currentFrame"), 1);
    QTRY_COMPARE(finished.count(), 2);

    application()->setAnimationsDisabled(true);
    sequence->setProperty("running", false);
    sequence->setProperty("running", true);
    QCOMPARE(sequence->property("isPlaying"), false);
}

void tst_Images::wSvgSequenceAnimatedFrameName_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("frame");
    QTest::addColumn<QString>("name");
    QTest::newRow("first") << 4 << 1 << u"typing-1"_s;
    QTest::newRow("last") << 4 << 4 << u"typing-4"_s;
    QTest::newRow("before the first") << 4 << 0 << u"typing-1"_s;
    QTest::newRow("after the last") << 4 << 9 << u"typing-4"_s;
    QTest::newRow("no frames") << 0 << 1 << QString();
    QTest::newRow("negative count") << -1 << 1 << QString();
}

void tst_Images::wSvgSequenceAnimatedFrameName()
{
    QFETCH(const int, count);
    QFETCH(const int, frame);
    QFETCH(const QString, name);
    auto *sequence = show("WSvgSequenceAnimated { imagePrefixName: 'typing-'; running: false; width: 27; height: 27 }");
    QVERIFY(sequence);
    sequence->setProperty("frameCount", count);
    sequence->setProperty("currentFrame", frame);
    QCOMPARE(sequence->property("currentFrameName").toString(), name);
    QCOMPARE(sequence->property("source").toString().section(u'/', -1), name);
}

void tst_Images::wDynamicImageKeepsThePresentPicture()
{
    auto *image = show("WDynamicImage { width: 80; height: 40; image: '" + later("red").toEncoded() + "' }");
    QVERIFY(image);
    QCOMPARE(spinnerCount(image), 1);
    QVERIFY(m_later->finish(u"red"_s));
    QTRY_COMPARE(image->property("status").toInt(), 1); // ready
    QCOMPARE(m_later->waitingCount(), 0); // it is asked for once
    QCOMPARE(image->implicitWidth(), 40.0);
    QCOMPARE(colorAt(image, 40, 20), QColor(Qt::red));
    QCOMPARE(spinnerCount(image), 0);

    image->setProperty("image", later("blue"));
    QTRY_COMPARE(image->property("status").toInt(), 2); // loading
    QCOMPARE(colorAt(image, 40, 20), QColor(Qt::red));
    QCOMPARE(spinnerCount(image), 0);
    QVERIFY(m_later->finish(u"blue"_s));
    QTRY_COMPARE(colorAt(image, 40, 20), QColor(Qt::blue));
}

void tst_Images::wDynamicAnimatedImageShowsTheMovie()
{
    auto *image = show("WDynamicAnimatedImage { source: 'welcome' }");
    QVERIFY(image);
    QCOMPARE(host()->movies.requests, QStringList{u"welcome"_s});
    QCOMPARE(image->property("stackIndex"), 0);
    QCOMPARE(spinnerCount(image), 1);

    QPointer<WMovie> other = new WMovie(nullptr, Gif.constData(), int(Gif.size()), false);
    Q_EMIT host()->movies.movieFetched(other, u"another"_s);
    QCOMPARE(image->property("stackIndex"), 0);
    delete other;

    QPointer<WMovie> movie = new WMovie(nullptr, Gif.constData(), int(Gif.size()), false);
    Q_EMIT host()->movies.movieFetched(movie, u"welcome"_s);
    QCOMPARE(image->property("stackIndex"), 1);
    QTRY_COMPARE(spinnerCount(image), 0);
    QCOMPARE(image->size(), QSizeF(20, 20));
    QCOMPARE(movie->state(), QMovie::Running);
    QCOMPARE(colorAt(image, 10, 10).name(), u"#d84848"_s);
    image->setVisible(false);
    QCOMPARE(movie->state(), QMovie::Paused);
    image->setVisible(true);
    QCOMPARE(movie->state(), QMovie::Running);
    QCOMPARE(host()->movies.requests.size(), 1);
}

void tst_Images::wDynamicAnimatedImageShowsTheFallback()
{
    auto *image = show("WDynamicAnimatedImage { width: 30; height: 30; source: 'welcome' }");
    QVERIFY(image);
    Q_EMIT host()->movies.movieFetchFailed(u"image://svg/%1/stop-filled"_s, u"welcome"_s);
    QCOMPARE(image->property("stackIndex"), 2);
    QTRY_COMPARE(colorAt(image, 15, 15), colorOf("label-secondary-text"));
    QVERIFY(m_requests.contains(u"stop-filled 30x30"_s));
    application()->setThemeMode(u"dark"_s);
    QTRY_COMPARE(colorAt(image, 15, 15), colorOf("label-secondary-text"));
}

void tst_Images::wDynamicAnimatedImageChangesItsSource()
{
    auto *image = show("WDynamicAnimatedImage {}");
    QVERIFY(image);
    QCOMPARE(image->property("stackIndex"), -1);
    QCOMPARE(host()->movies.requests, QStringList());
    QCOMPARE(spinnerCount(image), 0);

    image->setProperty("source", u"one"_s);
    QPointer<WMovie> movie = new WMovie(nullptr, Gif.constData(), int(Gif.size()), false);
    Q_EMIT host()->movies.movieFetched(movie, u"one"_s);
    QCOMPARE(image->property("stackIndex"), 1);
    image->setProperty("source", u"two"_s);
    QCOMPARE(host()->movies.requests, QStringList({u"one"_s, u"two"_s}));
    QCOMPARE(image->property("stackIndex"), 0);
    QCOMPARE(movie->state(), QMovie::Paused); // what is not seen does not play

    image->setProperty("source", QString());
    Q_EMIT host()->movies.movieFetchFailed(u"image://svg/%1/image"_s, u"two"_s); // too late
    QCOMPARE(image->property("stackIndex"), -1);
    QCOMPARE(host()->movies.requests.size(), 2);
}

void tst_Images::wDynamicAnimatedImageWithoutAnimations()
{
    application()->setAnimationsDisabled(true);
    auto *image = show("WDynamicAnimatedImage { source: 'welcome' }");
    QVERIFY(image);
    QPointer<WMovie> movie = new WMovie(nullptr, Gif.constData(), int(Gif.size()), false);
    Q_EMIT host()->movies.movieFetched(movie, u"welcome"_s);
    QCOMPARE(movie->state(), QMovie::Paused);
    QCOMPARE(colorAt(image, 10, 10).name(), u"#d84848"_s); // the first frame
}

void tst_Images::wGifLabelSize_data()
{
    QTest::addColumn<QString>("gif");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("extraWidth"); // beside the text
    QTest::newRow("both") << u"qrc:/Pictures/disc.gif"_s << u"Recording"_s << 10.0 + 30 + 10 + 10;
    QTest::newRow("picture") << u"qrc:/Pictures/disc.gif"_s << QString() << 10.0 + 30 + 10;
    QTest::newRow("text") << QString() << u"Recording"_s << 10.0 + 10;
    QTest::newRow("nothing") << QString() << QString() << 10.0 + 10;
}

void tst_Images::wGifLabelSize()
{
    QFETCH(const QString, gif);
    QFETCH(const QString, text);
    QFETCH(const double, extraWidth);
    QVERIFY(show("Column { WGifLabel { objectName: 'label'; padding: 10; gifWidth: 30; gifHeight: 60 }"
                 "         WText { objectName: 'text' } }"));
    auto *label = find(u"label"_s);
    auto *reference = find(u"text"_s);
    label->setProperty("gifSource", gif);
    label->setProperty("text", text);
    reference->setProperty("text", text);
    QCOMPARE(label->implicitWidth(), extraWidth + std::ceil(reference->implicitWidth()));
    QCOMPARE(label->implicitHeight(), 20 + (gif.isEmpty() ? std::ceil(reference->implicitHeight()) : 60.0));
    if (!text.isEmpty()) {
        const double before = label->implicitWidth();
        application()->setFontScaleFactor(1.5);
        QVERIFY(label->implicitWidth() > before);
        QCOMPARE(label->implicitWidth(), extraWidth + std::ceil(reference->implicitWidth()));
    }
}

void tst_Images::wGifLabelElides()
{
    auto *label = show("WGifLabel { text: 'A text that is longer than its width'; width: 100 }");
    QVERIFY(label);
    const auto texts = label->findChildren<QQuickItem *>();
    const auto text = std::ranges::find_if(texts, [](auto *item) { return item->property("truncated").toBool(); });
    QVERIFY(text != texts.end());
    QCOMPARE((*text)->x() + (*text)->width(), 92.0);
    QCOMPARE((*text)->property("textFormat").toInt(), int(Qt::PlainText));
    QCOMPARE(accessible(*text)->text(QAccessible::Name), u"A text that is longer than its width"_s);
}

void tst_Images::wGifLabelMirrors()
{
    auto *label = show("WGifLabel { text: 'Recording'; gifSource: 'qrc:/Pictures/disc.gif'; width: 200;"
                       "            LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true }");
    QVERIFY(label);
    QTRY_COMPARE(colorAt(label, 200 - 8 - 10, label->height() / 2).name(), u"#d84848"_s);
}

void tst_Images::wCoverImageCovers()
{
    auto *cover = show("WCoverImage { width: 60; height: 60; image: '" + later("red").toEncoded() + "' }");
    QVERIFY(cover);
    QCOMPARE(colorAt(cover, 2, 2), colorOf("card-inactive-background"));
    QCOMPARE(spinnerCount(cover), 1);
    QVERIFY(m_later->finish(u"red"_s));
    QTRY_COMPARE(cover->property("status").toInt(), 1); // ready
    QCOMPARE(m_later->waitingCount(), 0); // it is asked for once
    for (const QPointF corner : {QPointF(1, 1), QPointF(58, 1), QPointF(1, 58), QPointF(58, 58)})
        QCOMPARE(colorAt(cover, corner.x(), corner.y()), QColor(Qt::red));
    QCOMPARE(colorAt(cover, 62, 30), QColor(Qt::white)); // nothing stands out
    QCOMPARE(spinnerCount(cover), 0);
}

void tst_Images::wCoverImageTakesTheControllersImage()
{
    auto *cover = show("WCoverImage { id: cover; width: 60; height: 60; controller: QtObject {"
                       "    objectName: 'controller'; property string image: 'qrc:/Resources/logo.svg' } }");
    QVERIFY(cover);
    QCOMPARE(cover->property("image").toUrl(), QUrl(u"qrc:/Resources/logo.svg"_s));
    QTRY_COMPARE(cover->property("status").toInt(), 1);
    cover->setProperty("controller", QVariant::fromValue<QObject *>(nullptr));
    QCOMPARE(cover->property("image").toUrl(), QUrl());
    QTRY_COMPARE(colorAt(cover, 30, 30), colorOf("card-inactive-background"));
}

void tst_Images::largePicturesFollowTheDevicePixelRatio_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QSize>("sourceSize");
    const QByteArray fitted = "WDynamicImage { width: 120; height: 80 }";
    const QByteArray cropped = "WCoverImage { width: 240; height: 80 }";
    QTest::newRow("fitted, 1") << fitted << 1.0 << QSize(128, 85);
    QTest::newRow("fitted, 1.25") << fitted << 1.25 << QSize(256, 171);
    QTest::newRow("fitted, 1.5") << fitted << 1.5 << QSize(256, 171);
    QTest::newRow("fitted, upright") << QByteArray("WDynamicImage { width: 80; height: 120 }") << 1.0 << QSize(85, 128);
    QTest::newRow("cropped, 1") << cropped << 1.0 << QSize(256, 256);
    QTest::newRow("cropped, 1.25") << cropped << 1.25 << QSize(384, 384);
    QTest::newRow("fitted, cropped") << QByteArray(
        "WDynamicImage { width: 120; height: 80; fillMode: Image.PreserveAspectCrop }")
                                     << 1.0 << QSize(128, 128);
    QTest::newRow("without a size") << QByteArray("WDynamicImage { width: 0; height: 0 }") << 1.0 << QSize(0, 0);
}

void tst_Images::largePicturesFollowTheDevicePixelRatio()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const double, ratio);
    QFETCH(const QSize, sourceSize);
    QImage device(100, 100, QImage::Format_ARGB32_Premultiplied);
    QQuickWindow scene; // with a ratio of its own; it is never shown
    QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&device);
    target.setDevicePixelRatio(ratio);
    scene.setRenderTarget(target);
    QQmlComponent component(application()->getQmlEngine());
    component.setData("import QtQuick\nimport 'qrc:/Qml'\n" + qml, {});
    const std::unique_ptr<QObject> item(
        component.createWithInitialProperties({{u"parent"_s, QVariant::fromValue(scene.contentItem())}}));
    QVERIFY2(item, qPrintable(component.errorString()));
    for (const QQuickItem *child : static_cast<QQuickItem *>(item.get())->childItems()) {
        if (child->property("sourceSizeStep").isValid())
            QCOMPARE(child->property("sourceSize").toSize(), sourceSize);
    }
}

// Of a square file, in an item of any proportions.
void tst_Images::croppedPictureCovers()
{
    auto *cover = show("WCoverImage { width: 240; height: 80; asynchronous: false;"
                       "              image: 'image://svg/#ff0000/stop-filled' }");
    QVERIFY(cover);
    for (const QPointF place : {QPointF(60, 10), QPointF(180, 10), QPointF(60, 70), QPointF(180, 70)})
        QCOMPARE(colorAt(cover, place.x(), place.y()), QColor(Qt::red));
    cover->setSize({80, 240});
    for (const QPointF place : {QPointF(10, 60), QPointF(10, 180), QPointF(70, 60), QPointF(70, 180)})
        QTRY_COMPARE(colorAt(cover, place.x(), place.y()), QColor(Qt::red));
}

void tst_Images::wCircularProgressBarFraction_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("fraction");
    QTest::newRow("quarter") << 0.0 << 100.0 << 25.0 << 0.25;
    QTest::newRow("from the minimum") << 50.0 << 100.0 << 75.0 << 0.5;
    QTest::newRow("negative range") << -1.0 << 1.0 << 0.5 << 0.75;
    QTest::newRow("below") << 0.0 << 100.0 << -5.0 << 0.0;
    QTest::newRow("above") << 0.0 << 100.0 << 500.0 << 1.0;
    QTest::newRow("no range") << 10.0 << 10.0 << 10.0 << 0.0;
    QTest::newRow("reversed range") << 100.0 << 0.0 << 50.0 << 0.0;
}

void tst_Images::wCircularProgressBarFraction()
{
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const double, value);
    QFETCH(const double, fraction);
    auto *bar = show("WCircularProgressBar {}");
    QVERIFY(bar);
    bar->setProperty("minimumValue", minimum);
    bar->setProperty("maximumValue", maximum);
    bar->setProperty("currentValue", value);
    QCOMPARE(bar->property("fraction").toDouble(), fraction);
    QCOMPARE(bar->property("angle").toDouble(), fraction * 2 * M_PI);
}

void tst_Images::wCircularProgressBarPicture()
{
    auto *bar = show("WCircularProgressBar { width: 64; height: 64; lineWidth: 8; currentValue: 50 }");
    QVERIFY(bar);
    QTRY_COMPARE(colorAt(bar, 59, 32), colorOf("spinner-progress-cursor")); // the right half
    QCOMPARE(colorAt(bar, 4, 32), colorOf("spinner-progress-track"));
    QCOMPARE(colorAt(bar, 32, 32), QColor(Qt::white));
    bar->setProperty("currentValue", 100);
    QTRY_COMPARE(colorAt(bar, 4, 32), colorOf("spinner-progress-cursor"));
    bar->setProperty("currentValue", 0);
    QTRY_COMPARE(colorAt(bar, 59, 32), colorOf("spinner-progress-track"));
    bar->setProperty("currentValue", 50);
    bar->setProperty("angleOffset", M_PI / 2);
    QTRY_COMPARE(colorAt(bar, 4, 32), colorOf("spinner-progress-cursor"));
    QCOMPARE(colorAt(bar, 59, 32), colorOf("spinner-progress-track"));
    application()->setThemeMode(u"dark"_s);
    QTRY_COMPARE(colorAt(bar, 4, 32), colorOf("spinner-progress-cursor"));
}

void tst_Images::wCircularProgressBarPaintsOnlyChanges()
{
    auto *bar = show("WCircularProgressBar { currentValue: 50 }");
    QVERIFY(bar);
    window()->grabWindow();
    QSignalSpy painted(bar, SIGNAL(painted()));
    for (int frame = 0; frame < 5; ++frame)
        window()->grabWindow();
    bar->setProperty("currentValue", 50);
    window()->grabWindow();
    QCOMPARE(painted.count(), 0);
    bar->setProperty("currentValue", 60);
    bar->setProperty("lineWidth", 6);
    QTRY_COMPARE(painted.count(), 1);
}

void tst_Images::wCircularProgressBarAccessible()
{
    auto *bar = show("WCircularProgressBar { currentValue: 50; Accessible.name: 'Upload' }");
    QVERIFY(bar);
    QCOMPARE(accessible(bar)->role(), QAccessible::ProgressBar);
    QCOMPARE(accessible(bar)->text(QAccessible::Name), u"Upload"_s);
    QCOMPARE(accessible(bar)->text(QAccessible::Description), u"50"_s + QLocale().percent());
}

void tst_Images::wAvatarInitials_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("initials");
    QTest::newRow("two words") << u"Ada Lovelace"_s << u"AL"_s;
    QTest::newRow("one word") << u"Ada"_s << u"A"_s;
    QTest::newRow("more words") << u"Maria von Trapp"_s << u"MT"_s;
    QTest::newRow("lower case") << u"ada lovelace"_s << u"AL"_s;
    QTest::newRow("accent") << u"émile zola"_s << u"ÉZ"_s;
    QTest::newRow("spaces") << u"  Ada \t Lovelace  "_s << u"AL"_s;
    QTest::newRow("brackets") << u"Ada Lovelace (guest)"_s << u"AL"_s;
    QTest::newRow("other scripts") << u"李 雷"_s << u"李雷"_s;
    QTest::newRow("beyond the basic plane") << u"𠮷田 太郎"_s << u"𠮷太"_s;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("only signs") << u"(-)"_s << QString();
}

void tst_Images::wAvatarInitials()
{
    QFETCH(const QString, name);
    QFETCH(const QString, initials);
    auto *avatar = show("WAvatar {}");
    QVERIFY(avatar);
    avatar->setProperty("displayName", name);
    QCOMPARE(avatar->property("initials").toString(), initials);
}

void tst_Images::wAvatarPictureIsRound()
{
    QVERIFY(show("Item { WAvatar { objectName: 'avatar'; x: 10; y: 10; width: 60; height: 60 } }"));
    auto *avatar = find(u"avatar"_s);
    QCOMPARE(colorAt(avatar, 5, 30), colorOf("avatar-color-avatar-background-default"));
    avatar->setProperty("source", later("red"));
    QVERIFY(m_later->finish(u"red"_s));
    QTRY_COMPARE(colorAt(avatar, 30, 30), QColor(Qt::red));
    for (const QPointF edge : {QPointF(2, 30), QPointF(57, 30), QPointF(30, 2), QPointF(30, 57)})
        QCOMPARE(colorAt(avatar, edge.x(), edge.y()), QColor(Qt::red)); // cropped, not fitted
    for (const QPointF corner : {QPointF(2, 2), QPointF(57, 2), QPointF(2, 57), QPointF(57, 57)})
        QCOMPARE(colorAt(avatar, corner.x(), corner.y()), QColor(Qt::white));
    avatar->setSize({40, 40});
    QTRY_COMPARE(colorAt(avatar, 2, 2), QColor(Qt::white));
    QCOMPARE(colorAt(avatar, 20, 2), QColor(Qt::red));
    QCOMPARE(colorAt(avatar, 50, 20), QColor(Qt::white));
}

void tst_Images::wAvatarPictureGoes()
{
    auto *avatar = show("WAvatar { width: 40; height: 40; previewSrc: '" + later("red").toEncoded()
                        + "';"
                          "          controller: ({ source: '"
                        + later("blue").toEncoded() + "' }) }");
    QVERIFY(avatar);
    QVERIFY(m_later->finish(u"red"_s));
    QTRY_COMPARE(colorAt(avatar, 20, 5), QColor(Qt::red));
    avatar->setProperty("previewSrc", QString());
    QTRY_COMPARE(colorAt(avatar, 20, 5), colorOf("avatar-color-avatar-background-default"));
    QVERIFY(m_later->finish(u"blue"_s));
    QTRY_COMPARE(colorAt(avatar, 20, 5), QColor(Qt::blue));
    avatar->setProperty("controller", QVariant());
    QTRY_COMPARE(colorAt(avatar, 20, 5), colorOf("avatar-color-avatar-background-default"));
}

void tst_Images::wAvatarStateColors()
{
    QVERIFY(show("Item { WAvatar { objectName: 'avatar'; width: 40; height: 40; allowInteractions: true } }"));
    auto *avatar = find(u"avatar"_s);
    const WColorSet colors = application()->getColorSet(u"avatar-color-avatar-background-default"_s);
    const QPoint centre(20, 20);
    moveMouseAway();
    QTRY_COMPARE(colorAt(avatar, 20, 5), colors.normal);
    moveMouseTo(avatar);
    QTRY_COMPARE(colorAt(avatar, 20, 5), colors.hovered);
    QTest::mousePress(window(), Qt::LeftButton, {}, centre);
    QTRY_COMPARE(colorAt(avatar, 20, 5), colors.pressed);
    QTest::mouseRelease(window(), Qt::LeftButton, {}, centre);
    moveMouseAway();
    avatar->setEnabled(false);
    QTRY_COMPARE(colorAt(avatar, 20, 5), colors.disabled);
}

void tst_Images::wAvatarTriggers_data()
{
    QTest::addColumn<bool>("allowInteractions");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("count");
    QTest::newRow("allowed") << true << true << 1;
    QTest::newRow("not allowed") << false << true << 0;
    QTest::newRow("disabled") << true << false << 0;
}

void tst_Images::wAvatarTriggers()
{
    QFETCH(const bool, allowInteractions);
    QFETCH(const bool, enabled);
    QFETCH(const int, count);
    QVERIFY(show("FocusScope { focus: true; WAvatar { objectName: 'avatar'; focus: true } }"));
    auto *avatar = find(u"avatar"_s);
    avatar->setProperty("allowInteractions", allowInteractions);
    avatar->setEnabled(enabled);
    QSignalSpy clicked(avatar, SIGNAL(clicked()));
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        press(key);
        QCOMPARE(clicked.count(), count);
        clicked.clear();
    }
    press(Qt::Key_A);
    QCOMPARE(clicked.count(), 0);
    click(avatar, Qt::RightButton);
    QCOMPARE(clicked.count(), 0);
    click(avatar);
    QCOMPARE(clicked.count(), count);
    clicked.clear();
    pressAccessibly(avatar);
    QCOMPARE(clicked.count(), count);
}

void tst_Images::wAvatarAsks_data()
{
    QTest::addColumn<bool>("conversation");
    QTest::addColumn<bool>("contactCard");
    QTest::addColumn<int>("conversations");
    QTest::addColumn<int>("contactCards");
    QTest::newRow("nothing") << false << false << 0 << 0;
    QTest::newRow("the conversation") << true << false << 1 << 0;
    QTest::newRow("the contact card") << false << true << 0 << 1;
    QTest::newRow("the conversation first") << true << true << 1 << 0;
}

void tst_Images::wAvatarAsks()
{
    QFETCH(const bool, conversation);
    QFETCH(const bool, contactCard);
    QFETCH(const int, conversations);
    QFETCH(const int, contactCards);
    QVERIFY(show("Item { WAvatar { objectName: 'avatar'; allowInteractions: true } }"));
    auto *avatar = find(u"avatar"_s);
    avatar->setProperty("allowClickToConversation", conversation);
    avatar->setProperty("showContactCard", contactCard);
    QSignalSpy clicked(avatar, SIGNAL(clicked()));
    QSignalSpy conversationRequested(avatar, SIGNAL(conversationRequested()));
    QSignalSpy contactCardRequested(avatar, SIGNAL(contactCardRequested(QRectF, int)));
    pressAccessibly(avatar);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(conversationRequested.count(), conversations);
    QCOMPARE(contactCardRequested.count(), contactCards);
}

void tst_Images::wAvatarContactCard()
{
    QVERIFY(show("Item { WAvatar { objectName: 'avatar'; x: 20; y: 30; allowInteractions: true; showContactCard: true;"
                 "                 allowClickToConversation: true; arrowPos: WBalloon.Bottom } }"));
    auto *avatar = find(u"avatar"_s);
    QSignalSpy requested(avatar, SIGNAL(contactCardRequested(QRectF, int)));
    QSignalSpy dismissed(avatar, SIGNAL(contactCardDismissed()));
    moveMouseAway();
    moveMouseTo(avatar);
    QTRY_COMPARE(requested.count(), 1);
    QCOMPARE(requested[0][0].toRectF(), QRectF(avatar->mapToGlobal(QPointF()), avatar->size()));
    QCOMPARE(requested[0][1].toInt(), 2); // bottom
    QCOMPARE(dismissed.count(), 0);
    moveMouseAway();
    QTRY_COMPARE(dismissed.count(), 1);

    avatar->forceActiveFocus(Qt::TabFocusReason);
    QTRY_COMPARE(requested.count(), 2);
    avatar->setFocus(false);
    QTRY_COMPARE(dismissed.count(), 2);
}

void tst_Images::wAvatarController()
{
    auto *avatar = show("WAvatar { controller: QtObject {"
                        "    property string displayName: 'Ada Lovelace'; property string initials: 'A!';"
                        "    property string presence: 'dnd'; property string presenceText: 'Do not disturb' } }");
    QVERIFY(avatar);
    QCOMPARE(avatar->property("displayName"), u"Ada Lovelace"_s);
    QCOMPARE(avatar->property("initials"), u"A!"_s);
    QCOMPARE(avatar->property("presence"), u"dnd"_s);
    QVERIFY(m_requests.contains(u"dnd-filled 8x8"_s));
    auto *controller = avatar->property("controller").value<QObject *>();
    controller->setProperty("displayName", u"Grace Hopper"_s);
    QCOMPARE(avatar->property("displayName"), u"Grace Hopper"_s);
    controller->setProperty("presence", u"active"_s);
    // A dot in the middle of the badge of 10 pixels.
    QTRY_COMPARE(colorAt(avatar, 27, 27), colorOf("avatar-presence-icon-active"));
    controller->setProperty("presence", QString());
    QTRY_VERIFY(colorAt(avatar, 27, 27) != colorOf("avatar-presence-icon-active"));
}

void tst_Images::wAvatarAccessible_data()
{
    QTest::addColumn<bool>("allowInteractions");
    QTest::addColumn<int>("role");
    QTest::newRow("picture") << false << int(QAccessible::Graphic);
    QTest::newRow("button") << true << int(QAccessible::Button);
}

void tst_Images::wAvatarAccessible()
{
    QFETCH(const bool, allowInteractions);
    QFETCH(const int, role);
    auto *avatar = show("WAvatar { displayName: 'Ada Lovelace'; presenceText: 'Away' }");
    QVERIFY(avatar);
    avatar->setProperty("allowInteractions", allowInteractions);
    QAccessibleInterface *interface = accessible(avatar);
    QCOMPARE(int(interface->role()), role);
    QCOMPARE(interface->text(QAccessible::Name), u"Ada Lovelace"_s);
    QCOMPARE(interface->text(QAccessible::Description), u"Away"_s);
    QCOMPARE(bool(interface->state().focusable), allowInteractions);
    QCOMPARE(interface->childCount(), 0); // the initials are not read
}

void tst_Images::wSelfMessageAvatarIsRound()
{
    auto *avatar = show("WSelfMessageAvatar { width: 40; height: 40 }");
    QVERIFY(avatar);
    QCOMPARE(colorAt(avatar, 20, 3), colorOf("avatar-color-avatar-background-default"));
    QCOMPARE(colorAt(avatar, 2, 2), QColor(Qt::white));
    QVERIFY(m_requests.contains(u"pen-bold 20x20"_s));
    QCOMPARE(accessible(avatar)->role(), QAccessible::Graphic);
}

void tst_Images::avatarListStandardModels_data()
{
    QTest::addColumn<bool>("withRoles");
    QTest::newRow("list") << false;
    QTest::newRow("model with roles") << true;
}

void tst_Images::avatarListStandardModels()
{
    QFETCH(const bool, withRoles);
    QStandardItemModel model;
    model.setItemRoleNames({{Qt::UserRole, "displayName"}, {Qt::UserRole + 1, "presence"}});
    QVariantList list;
    for (const QString &name : {u"Ada Lovelace"_s, u"Grace Hopper"_s, u"Wu"_s}) {
        auto *row = new QStandardItem;
        row->setData(name, Qt::UserRole);
        row->setData(QString(), Qt::UserRole + 1);
        model.appendRow(row);
        list.append(QVariantMap{{u"displayName"_s, name}});
    }
    auto *avatars = show("AvatarListStandard { columns: 2; avatarSize: 40 }");
    QVERIFY(avatars);
    avatars->setProperty("model", withRoles ? QVariant::fromValue(&model) : QVariant(list));
    QCOMPARE(avatars->property("count"), 3);
    QStringList initials;
    QList<QQuickItem *> shown;
    for (QQuickItem *child : avatars->childItems()) {
        if (!child->property("initials").isValid())
            continue;
        initials.append(child->property("initials").toString());
        shown.append(child);
    }
    QCOMPARE(initials, QStringList({u"AL"_s, u"GH"_s, u"W"_s}));
    QTRY_COMPARE(shown[2]->position(), QPointF(0, 48));
    QCOMPARE(shown[1]->position(), QPointF(48, 0));
    QCOMPARE(avatars->implicitWidth(), 88.0);
    if (withRoles) {
        model.item(1)->setData(u"Ada Byron"_s, Qt::UserRole);
        QCOMPARE(shown[1]->property("initials"), u"AB"_s);
    }
    avatars->setProperty("model", QVariant()); // before the model goes
}

void tst_Images::avatarListStandardClicks()
{
    auto *avatars = show("AvatarListStandard { allowInteractions: true;"
                         "                     model: [{ displayName: 'Ada' }, { displayName: 'Wu' }] }");
    QVERIFY(avatars);
    QSignalSpy clicked(avatars, SIGNAL(avatarClicked(int)));
    click(avatars, QPointF(32 + 8 + 16, 16));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked[0][0], 1);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(clicked[1][0], 0);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    QCOMPARE(clicked.count(), 3);
    QCOMPARE(clicked[2][0], 1);
    QCOMPARE(accessible(avatars)->role(), QAccessible::List);
}

void tst_Images::wEmptyStateWraps()
{
    auto *state =
        show("WEmptyState { title: 'Nothing here'; svgImageName: 'logo'; svgImageSize: 40;"
             "              subtitle: 'A hint that is so long that it needs more than one line in any case' }");
    QVERIFY(state);
    const QSizeF natural(state->implicitWidth(), state->implicitHeight());
    state->setProperty("subTitleExtraWidth", 500);
    QVERIFY(state->implicitWidth() > natural.width());
    QTRY_VERIFY(state->implicitHeight() < natural.height());
    state->setProperty("subTitleExtraWidth", 120);
    QTRY_COMPARE(QSizeF(state->implicitWidth(), state->implicitHeight()), natural);
    state->setWidth(natural.width() - 80); // less room: more lines
    QTRY_VERIFY(state->implicitHeight() > natural.height());
    const double wrapped = state->implicitHeight();
    state->setProperty("imageTitleSpacing", 16 + 10);
    QTRY_COMPARE(state->implicitHeight(), wrapped + 10);
}

void tst_Images::wEmptyStateLeavesOutWhatIsNotThere_data()
{
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("subtitle");
    QTest::addColumn<double>("spacing");
    QTest::newRow("all") << u"logo"_s << u"Title"_s << u"Hint"_s << 16.0 + 4;
    QTest::newRow("no picture") << QString() << u"Title"_s << u"Hint"_s << 4.0;
    QTest::newRow("no hint") << u"logo"_s << u"Title"_s << QString() << 16.0;
    QTest::newRow("no title") << u"logo"_s << QString() << u"Hint"_s << 16.0;
    QTest::newRow("only the picture") << u"logo"_s << QString() << QString() << 0.0;
    QTest::newRow("nothing") << QString() << QString() << QString() << 0.0;
}

void tst_Images::wEmptyStateLeavesOutWhatIsNotThere()
{
    QFETCH(const QString, image);
    QFETCH(const QString, title);
    QFETCH(const QString, subtitle);
    QFETCH(const double, spacing);
    QVERIFY(show(
        "Item { WEmptyState { objectName: 'state'; svgImageSize: 40 }"
        "       WText { objectName: 'title'; font: FontConstants.subheaderPrimary } WText { objectName: 'hint' } }"));
    auto *state = find(u"state"_s);
    state->setProperty("svgImageName", image);
    state->setProperty("title", title);
    state->setProperty("subtitle", subtitle);
    find(u"title"_s)->setProperty("text", title);
    find(u"hint"_s)->setProperty("text", subtitle);
    const double texts = (title.isEmpty() ? 0 : find(u"title"_s)->implicitHeight())
        + (subtitle.isEmpty() ? 0 : find(u"hint"_s)->implicitHeight());
    QTRY_COMPARE(state->implicitHeight(), 2 * 24 + std::ceil((image.isEmpty() ? 0 : 40) + spacing + texts));
}

int main(int argc, char **argv)
{
    TestApplication::isolateSettings();
    auto startLog = std::make_unique<LogRecorder>();
    ImagesApplication application(argc, argv);
    startLog.reset();
    tst_Images test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_images.moc"
