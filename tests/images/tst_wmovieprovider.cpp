#include <IWMovieProviderSource.h>
#include <TestCase.h>
#include <WMovie.h>
#include <WMovieProvider.h>
#include <WMovieProviderSource.h>

#include <QMetaProperty>

using namespace Qt::StringLiterals;

namespace {

class RecordingSource : public IWMovieProviderSource
{
public:
    using IWMovieProviderSource::IWMovieProviderSource;

    void fetch(const QString &source) override { requests.append(source); }

    QStringList requests;
};

// A host whose movie source can be exchanged.
class MovieApplication : public TestApplication
{
public:
    using TestApplication::TestApplication;

    IWMovieProviderSource *getMovieProviderSource() override { return source; }

    IWMovieProviderSource *source = nullptr;
};

MovieApplication *application()
{
    return static_cast<MovieApplication *>(QCoreApplication::instance());
}

void deliverDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class tst_WMovieProvider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void memberProperties();
    void withoutSource();
    void inertSource();
    void sourceGone();
    void fetch();
    void movieFetched_data();
    void movieFetched();
    void replacedMovie();
    void sameMovieTwice();
    void nullMovie();
    void movieDeletedOutside();
    void ownsItsMovie();
    void failed_data();
    void failed();
    void failedWithoutFallback();
    void sharedSource();

protected:
    void prepare() override
    {
        m_source = std::make_unique<RecordingSource>();
        application()->source = m_source.get();
    }
    void tidy() override { application()->source = nullptr; }

private:
    std::unique_ptr<RecordingSource> m_source;
};

void tst_WMovieProvider::metaObject()
{
    const QMetaObject &meta = WMovieProvider::staticMetaObject;
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QVERIFY(property.isWritable());
        properties << QLatin1StringView(property.typeName()) + u' ' + QLatin1StringView(property.name()) + u' '
                + QLatin1StringView(property.notifySignal().name());
    }
    QCOMPARE(properties,
             (QStringList{u"int stackIndex stackIndexChanged"_s, u"QMovie* movie movieChanged"_s,
                          u"QString fallbackSource fallbackSourceChanged"_s}));
    QVERIFY(meta.indexOfMethod("fetch(QString)") >= 0);
    QCOMPARE(meta.method(meta.indexOfSlot("onMovieFetched(WMovie*,QString)")).access(), QMetaMethod::Private);
    QCOMPARE(meta.method(meta.indexOfSlot("onMovieFetchFailed(QString,QString)")).access(), QMetaMethod::Private);
}

void tst_WMovieProvider::defaults()
{
    const WMovieProvider provider;
    QCOMPARE(provider.property("stackIndex").toInt(), 0);
    QCOMPARE(provider.movie(), nullptr);
    QCOMPARE(provider.property("fallbackSource").toString(), QString());
}

void tst_WMovieProvider::memberProperties()
{
    WMovieProvider provider;
    WMovie movie;
    QSignalSpy index(&provider, &WMovieProvider::stackIndexChanged);
    QSignalSpy changed(&provider, &WMovieProvider::movieChanged);
    QSignalSpy fallback(&provider, &WMovieProvider::fallbackSourceChanged);
    for (int round = 0; round < 2; ++round) { // the second round writes what is there already
        QVERIFY(provider.setProperty("stackIndex", 2));
        QVERIFY(provider.setProperty("movie", QVariant::fromValue<QMovie *>(&movie)));
        QVERIFY(provider.setProperty("fallbackSource", u"a"_s));
        QCOMPARE(index.count(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(fallback.count(), 1);
    }
    QCOMPARE(provider.property("stackIndex").toInt(), 2);
    QCOMPARE(provider.movie(), &movie);
    QCOMPARE(provider.property("fallbackSource").toString(), u"a"_s);
}

void tst_WMovieProvider::withoutSource()
{
    application()->source = nullptr;
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    QCOMPARE(provider.property("stackIndex").toInt(), 0);
}

void tst_WMovieProvider::inertSource()
{
    WMovieProviderSource inert;
    application()->source = &inert;
    WMovieProvider provider;
    QSignalSpy index(&provider, &WMovieProvider::stackIndexChanged);
    provider.fetch(u"a"_s);
    QCoreApplication::processEvents();
    QCOMPARE(index.count(), 0);
    QCOMPARE(provider.property("stackIndex").toInt(), 0);
}

void tst_WMovieProvider::sourceGone()
{
    WMovieProvider provider;
    m_source.reset();
    provider.fetch(u"a"_s);
    QCOMPARE(provider.property("stackIndex").toInt(), 0);
}

void tst_WMovieProvider::fetch()
{
    WMovieProvider provider;
    QSignalSpy index(&provider, &WMovieProvider::stackIndexChanged);
    provider.fetch(u"a"_s);
    provider.fetch(u"b"_s);
    provider.fetch(u"b"_s);
    QCOMPARE(m_source->requests, (QStringList{u"a"_s, u"b"_s, u"b"_s}));
    QCOMPARE(index.count(), 0);
}

void tst_WMovieProvider::movieFetched_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("taken");
    QTest::newRow("the source") << u"a"_s << true;
    QTest::newRow("another source") << u"b"_s << false;
    QTest::newRow("another case") << u"A"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_WMovieProvider::movieFetched()
{
    QFETCH(QString, source);
    QFETCH(bool, taken);
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    QStringList order;
    connect(&provider, &WMovieProvider::movieChanged, this, [&] {
        order << u"movie"_s;
        QCOMPARE(provider.property("stackIndex").toInt(), 0);
    });
    connect(&provider, &WMovieProvider::stackIndexChanged, this, [&] { order << u"index"_s; });

    auto movie = std::make_unique<WMovie>();
    Q_EMIT m_source->movieFetched(movie.get(), source);
    QCOMPARE(order, taken ? (QStringList{u"movie"_s, u"index"_s}) : QStringList());
    QCOMPARE(provider.property("stackIndex").toInt(), taken ? 1 : 0);
    QCOMPARE(provider.movie(), taken ? movie.get() : nullptr);
    QCOMPARE(movie->parent(), taken ? &provider : nullptr);
    if (taken)
        movie.release(); // the provider's now
}

void tst_WMovieProvider::replacedMovie()
{
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    const QPointer<WMovie> first = new WMovie;
    const QPointer<WMovie> second = new WMovie;
    Q_EMIT m_source->movieFetched(first, u"a"_s);
    QSignalSpy index(&provider, &WMovieProvider::stackIndexChanged);
    QSignalSpy changed(&provider, &WMovieProvider::movieChanged);
    Q_EMIT m_source->movieFetched(second, u"a"_s);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(index.count(), 1); // although it was 1 before
    QCOMPARE(provider.movie(), second.data());
    QVERIFY(first); // later, not now
    deliverDeferredDeletes();
    QVERIFY(!first);
    QVERIFY(second);
}

void tst_WMovieProvider::sameMovieTwice()
{
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    const QPointer<WMovie> movie = new WMovie;
    Q_EMIT m_source->movieFetched(movie, u"a"_s);
    Q_EMIT m_source->movieFetched(movie, u"a"_s);
    deliverDeferredDeletes();
    QVERIFY(movie);
    QCOMPARE(provider.movie(), movie.data());
}

void tst_WMovieProvider::nullMovie()
{
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    const QPointer<WMovie> movie = new WMovie;
    Q_EMIT m_source->movieFetched(movie, u"a"_s);
    QSignalSpy changed(&provider, &WMovieProvider::movieChanged);
    Q_EMIT m_source->movieFetched(nullptr, u"a"_s);
    deliverDeferredDeletes();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(provider.movie(), movie.data());
    QVERIFY(movie);
}

void tst_WMovieProvider::movieDeletedOutside()
{
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    auto *movie = new WMovie;
    Q_EMIT m_source->movieFetched(movie, u"a"_s);
    delete movie;
    QCOMPARE(provider.movie(), nullptr);
    auto *next = new WMovie;
    Q_EMIT m_source->movieFetched(next, u"a"_s);
    QCOMPARE(provider.movie(), next);
}

void tst_WMovieProvider::ownsItsMovie()
{
    const QPointer<WMovie> movie = new WMovie;
    {
        WMovieProvider provider;
        provider.fetch(u"a"_s);
        Q_EMIT m_source->movieFetched(movie, u"a"_s);
    }
    QVERIFY(!movie);
}

void tst_WMovieProvider::failed_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("taken");
    QTest::newRow("the source") << u"a"_s << true;
    QTest::newRow("another source") << u"b"_s << false;
}

void tst_WMovieProvider::failed()
{
    QFETCH(QString, source);
    QFETCH(bool, taken);
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    QStringList order;
    connect(&provider, &WMovieProvider::fallbackSourceChanged, this, [&] { order << u"fallback"_s; });
    connect(&provider, &WMovieProvider::stackIndexChanged, this, [&] { order << u"index"_s; });
    for (int round = 0; round < 2; ++round) { // both signals come again for the same result
        order.clear();
        Q_EMIT m_source->movieFetchFailed(u"fallback.png"_s, source);
        QCOMPARE(order, taken ? (QStringList{u"fallback"_s, u"index"_s}) : QStringList());
    }
    QCOMPARE(provider.property("stackIndex").toInt(), taken ? 2 : 0);
    QCOMPARE(provider.property("fallbackSource").toString(), taken ? u"fallback.png"_s : QString());
}

void tst_WMovieProvider::failedWithoutFallback()
{
    WMovieProvider provider;
    provider.fetch(u"a"_s);
    QSignalSpy index(&provider, &WMovieProvider::stackIndexChanged);
    LogRecorder log;
    Q_EMIT m_source->movieFetchFailed(QString(), u"a"_s);
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{{QtWarningMsg, u"image download failed and empty fallbackImage source"_s}}));
    QCOMPARE(index.count(), 0);
    QCOMPARE(provider.property("stackIndex").toInt(), 0);
}

void tst_WMovieProvider::sharedSource()
{
    WMovieProvider one;
    WMovieProvider other;
    one.fetch(u"a"_s);
    other.fetch(u"b"_s);
    auto *movie = new WMovie;
    Q_EMIT m_source->movieFetched(movie, u"b"_s);
    QCOMPARE(one.property("stackIndex").toInt(), 0);
    QCOMPARE(other.movie(), movie);
}

int main(int argc, char **argv)
{
    TestApplication::isolateSettings();
    auto startLog = std::make_unique<LogRecorder>();
    MovieApplication application(argc, argv);
    startLog.reset();
    tst_WMovieProvider test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_wmovieprovider.moc"
