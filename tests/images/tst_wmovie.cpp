#include "../theme/MetaDescription.h"
#include "Gif.h"

#include <TestCase.h>
#include <WMovie.h>
#include <WMovieProviderSource.h>

#include <QBuffer>
#include <QPointer>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

class tst_WMovie : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void empty();
    void fromFile();
    void fromMissingFile();
    void fromMemory_data();
    void fromMemory();
    void copyOutlivesTheData();
    void wrappedDataIsNotFreed();
    void fromGarbage_data();
    void fromGarbage();
    void destroy();
    void destroyWithoutBuffer();
    void destroyedWhileRunning();
    void inertSource();
};

void tst_WMovie::metaObject()
{
    QCOMPARE(WMovie::staticMetaObject.superClass(), &QMovie::staticMetaObject);
    QCOMPARE(MetaDescription::properties(WMovie::staticMetaObject), QStringList());
    QCOMPARE(WMovie::staticMetaObject.methodOffset(), WMovie::staticMetaObject.methodCount());

    const QMetaObject &source = IWMovieProviderSource::staticMetaObject;
    QCOMPARE(source.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::signalsOf(source),
             (QStringList{u"void movieFetched(WMovie*,QString)"_s, u"void movieFetchFailed(QString,QString)"_s}));
    QCOMPARE(source.method(source.indexOfSignal("movieFetchFailed(QString,QString)")).parameterNames(),
             (QByteArrayList{"fallbackSource", "source"}));
    QCOMPARE(WMovieProviderSource::staticMetaObject.superClass(), &source);
}

void tst_WMovie::empty()
{
    QObject parent;
    const auto *movie = new WMovie(&parent);
    QCOMPARE(movie->parent(), &parent);
    QCOMPARE(movie->device(), nullptr);
    QCOMPARE(movie->fileName(), QString());
    QVERIFY(!movie->isValid());
    QCOMPARE(movie->findChildren<QBuffer *>().size(), 0);
}

void tst_WMovie::fromFile()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.gif"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(gif());
    file.close();
    WMovie movie(file.fileName(), "gif", nullptr);
    QCOMPARE(movie.fileName(), file.fileName());
    QCOMPARE(movie.format(), "gif");
    QVERIFY(movie.isValid());
    QVERIFY(movie.jumpToFrame(0));
    QCOMPARE(movie.currentImage().size(), QSize(1, 1));
    QCOMPARE(movie.findChildren<QBuffer *>().size(), 0);
}

void tst_WMovie::fromMissingFile()
{
    WMovie movie(u"/no/such/file.gif"_s, QByteArray(), nullptr);
    QVERIFY(!movie.isValid());
    QSignalSpy error(&movie, &QMovie::error);
    movie.start();
    QCOMPARE(movie.state(), QMovie::NotRunning);
}

void tst_WMovie::fromMemory_data()
{
    QTest::addColumn<bool>("copy");
    QTest::newRow("copied") << true;
    QTest::newRow("wrapped") << false;
}

void tst_WMovie::fromMemory()
{
    QFETCH(bool, copy);
    const QByteArray data = gif();
    QObject parent;
    auto *movie = new WMovie(&parent, data.constData(), int(data.size()), copy);
    QCOMPARE(movie->parent(), &parent);
    auto *buffer = qobject_cast<QBuffer *>(movie->device());
    QVERIFY(buffer);
    QCOMPARE(buffer->parent(), movie);
    QCOMPARE(buffer->data(), data);
    QCOMPARE(buffer->data().constData() == data.constData(), !copy);
    QVERIFY(movie->isValid());
    QSignalSpy frames(movie, &QMovie::frameChanged);
    movie->start();
    QVERIFY(QTest::qWaitFor([&] { return frames.count() >= 4; }));
    QCOMPARE(movie->frameCount(), 2);
}

void tst_WMovie::copyOutlivesTheData()
{
    QByteArray data = gif();
    WMovie movie(nullptr, data.constData(), int(data.size()), true);
    data.fill('x');
    QVERIFY(movie.isValid());
    QVERIFY(movie.jumpToFrame(1));
}

void tst_WMovie::wrappedDataIsNotFreed()
{
    static const QByteArray content = gif();
    static std::array<char, 256> data{};
    std::copy(content.begin(), content.end(), data.begin());
    {
        WMovie movie(nullptr, data.data(), int(content.size()), false);
        QVERIFY(movie.jumpToFrame(0));
    }
    QCOMPARE(QByteArray(data.data(), content.size()), content);
}

void tst_WMovie::fromGarbage_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("nothing") << QByteArray("");
    QTest::newRow("text") << QByteArray("nothing of the kind");
    QTest::newRow("only the signature") << QByteArray("GIF89a");
    QTest::newRow("cut") << gif().first(30);
    QTest::newRow("zero bytes") << QByteArray(1024 * 1024, '\0');
}

void tst_WMovie::fromGarbage()
{
    QFETCH(QByteArray, data);
    for (const bool copy : {true, false}) {
        WMovie movie(nullptr, data.constData(), int(data.size()), copy);
        movie.start();
        QVERIFY(movie.currentImage().isNull());
    }
}

void tst_WMovie::destroy()
{
    QMovie movie;
    auto *bytes = new QByteArray(gif());
    const QPointer<QBuffer> buffer = new QBuffer(bytes, &movie);
    movie.setDevice(buffer);
    movie.start();
    QCOMPARE(movie.state(), QMovie::Running);
    WMovie::destroy(&movie, bytes, buffer);
    QCOMPARE(movie.state(), QMovie::NotRunning);
    QCOMPARE(movie.device(), nullptr);
    QVERIFY(!buffer);
}

void tst_WMovie::destroyWithoutBuffer()
{
    QByteArray data = gif();
    QBuffer device(&data);
    QMovie movie(&device);
    movie.start();
    WMovie::destroy(&movie, nullptr, nullptr);
    QCOMPARE(movie.state(), QMovie::NotRunning);
    QCOMPARE(movie.device(), &device);
    WMovie::destroy(&movie, new QByteArray("x"), nullptr);
    QCOMPARE(movie.device(), &device);
}

void tst_WMovie::destroyedWhileRunning()
{
    const QByteArray data = gif();
    QPointer<QIODevice> device;
    {
        WMovie movie(nullptr, data.constData(), int(data.size()), true);
        device = movie.device();
        movie.start();
        QVERIFY(device);
    }
    QVERIFY(!device);
}

void tst_WMovie::inertSource()
{
    QObject parent;
    auto *source = new WMovieProviderSource(&parent);
    QCOMPARE(source->parent(), &parent);
    QSignalSpy fetched(source, &IWMovieProviderSource::movieFetched);
    QSignalSpy failed(source, &IWMovieProviderSource::movieFetchFailed);
    source->fetch(u"http://example.invalid/a.gif"_s);
    source->fetch(QString());
    QVERIFY(!fetched.wait(100));
    QCOMPARE(fetched.count(), 0);
    QCOMPARE(failed.count(), 0);
}

LUMAKIT_TEST_MAIN(tst_WMovie)
#include "tst_wmovie.moc"
