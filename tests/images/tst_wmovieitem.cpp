#include "Gif.h"

#include <TestCase.h>
#include <WMovie.h>
#include <WMovieItem.h>

#include <QQuickView>

using namespace Qt::StringLiterals;

namespace {

class CountingItem : public WMovieItem
{
public:
    using WMovieItem::WMovieItem;

    int paints = 0;

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override
    {
        ++paints;
        return WMovieItem::updatePaintNode(node, data);
    }
};

// A movie that stands on its first frame, red, until it is told to go on.
std::unique_ptr<WMovie> pausedMovie()
{
    static const QByteArray bytes = gif();
    auto movie = std::make_unique<WMovie>(nullptr, bytes.constData(), int(bytes.size()), false);
    movie->setCacheMode(QMovie::CacheAll); // so that frames can be gone back to
    movie->start();
    movie->setPaused(true);
    movie->jumpToFrame(0);
    return movie;
}

} // namespace

class tst_WMovieItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void empty();
    void implicitSize();
    void startsTheMovie();
    void fits_data();
    void fits();
    void repaintsForNewFramesOnly();
    void pausesWhileHidden();
    void hostsPauseStays();
    void setWhileHidden();
    void movieDeleted();
    void replaced();

private:
    // A white window of 80 x 40 with the item in it, rendered.
    struct Scene
    {
        explicit Scene(QMovie *movie)
        {
            window.setColor(Qt::white);
            window.resize(80, 40);
            item = new CountingItem(window.contentItem());
            item->setSize(QSizeF(80, 40));
            item->setMovie(movie);
            window.show();
        }

        bool isExposed()
        {
            return QTest::qWaitForWindowExposed(&window) && QTest::qWaitFor([this] { return item->paints > 0; });
        }
        QColor pixel(int x, int y)
        {
            const QImage image = window.grabWindow();
            const double ratio = image.devicePixelRatio();
            return image.pixelColor(int(x * ratio), int(y * ratio));
        }

        QQuickWindow window;
        CountingItem *item = nullptr;
    };
};

void tst_WMovieItem::metaObject()
{
    const QMetaObject &meta = WMovieItem::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
    QCOMPARE(meta.property(meta.propertyOffset()).name(), "movie");
    QCOMPARE(meta.property(meta.propertyOffset()).typeName(), "QMovie*");
    QCOMPARE(meta.property(meta.propertyOffset()).notifySignal().name(), "movieChanged");
}

void tst_WMovieItem::empty()
{
    Scene scene(nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(&scene.window));
    QCOMPARE(scene.pixel(40, 20), QColor(Qt::white));
    QCOMPARE(scene.item->implicitWidth(), 0.0);
}

void tst_WMovieItem::implicitSize()
{
    WMovieItem item;
    const auto movie = pausedMovie();
    QSignalSpy changed(&item, &WMovieItem::movieChanged);
    item.setMovie(movie.get());
    item.setMovie(movie.get());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(item.implicitWidth(), 1.0);
    QCOMPARE(item.implicitHeight(), 1.0);
    item.setMovie(nullptr);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(item.implicitWidth(), 0.0);
}

void tst_WMovieItem::startsTheMovie()
{
    const QByteArray bytes = gif();
    WMovie movie(nullptr, bytes.constData(), int(bytes.size()), false);
    WMovieItem item;
    item.setMovie(&movie);
    QCOMPARE(movie.state(), QMovie::Running);

    const auto paused = pausedMovie();
    item.setMovie(paused.get());
    QCOMPARE(paused->state(), QMovie::Paused);
}

void tst_WMovieItem::fits_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QPoint>("inside");
    QTest::addColumn<QPoint>("outside");
    QTest::newRow("wide") << QSizeF(80, 40) << QPoint(22, 2) << QPoint(17, 20);
    QTest::newRow("wide, right side") << QSizeF(80, 40) << QPoint(57, 37) << QPoint(62, 20);
    QTest::newRow("high") << QSizeF(20, 40) << QPoint(2, 12) << QPoint(10, 7);
    QTest::newRow("square") << QSizeF(40, 40) << QPoint(1, 38) << QPoint(42, 20);
}

void tst_WMovieItem::fits()
{
    QFETCH(QSizeF, size);
    QFETCH(QPoint, inside);
    QFETCH(QPoint, outside);
    const auto movie = pausedMovie();
    Scene scene(movie.get());
    scene.item->setSize(size);
    QVERIFY(scene.isExposed());
    QCOMPARE(scene.pixel(inside.x(), inside.y()), QColor(Qt::red));
    QCOMPARE(scene.pixel(outside.x(), outside.y()), QColor(Qt::white));
}

void tst_WMovieItem::repaintsForNewFramesOnly()
{
    const auto movie = pausedMovie();
    Scene scene(movie.get());
    QVERIFY(scene.isExposed());
    QCOMPARE(scene.pixel(40, 20), QColor(Qt::red));
    const int before = scene.item->paints;

    QSignalSpy frames(&scene.window, &QQuickWindow::frameSwapped);
    scene.window.update();
    QVERIFY(frames.wait());
    QCOMPARE(scene.item->paints, before); // a frame of the scene, none of the movie

    QVERIFY(movie->jumpToFrame(1));
    QTRY_COMPARE(scene.item->paints, before + 1);
    QCOMPARE(scene.pixel(40, 20), QColor(Qt::blue));
    QVERIFY(movie->jumpToFrame(0));
    QTRY_COMPARE(scene.item->paints, before + 2);
    QCOMPARE(scene.pixel(40, 20), QColor(Qt::red));
}

void tst_WMovieItem::pausesWhileHidden()
{
    const auto movie = pausedMovie();
    movie->setPaused(false);
    Scene scene(movie.get());
    QVERIFY(scene.isExposed());
    QCOMPARE(movie->state(), QMovie::Running);
    scene.item->setVisible(false);
    QCOMPARE(movie->state(), QMovie::Paused);
    scene.item->setVisible(true);
    QCOMPARE(movie->state(), QMovie::Running);
}

void tst_WMovieItem::hostsPauseStays()
{
    const auto movie = pausedMovie();
    Scene scene(movie.get());
    scene.item->setVisible(false);
    scene.item->setVisible(true);
    QCOMPARE(movie->state(), QMovie::Paused);
}

void tst_WMovieItem::setWhileHidden()
{
    const auto movie = pausedMovie();
    movie->setPaused(false);
    Scene scene(nullptr);
    scene.item->setVisible(false);
    scene.item->setMovie(movie.get());
    QCOMPARE(movie->state(), QMovie::Paused);
    scene.item->setVisible(true);
    QCOMPARE(movie->state(), QMovie::Running);
}

void tst_WMovieItem::movieDeleted()
{
    auto movie = pausedMovie();
    Scene scene(movie.get());
    QVERIFY(scene.isExposed());
    QCOMPARE(scene.pixel(40, 20), QColor(Qt::red));
    QSignalSpy changed(scene.item, &WMovieItem::movieChanged);
    movie.reset();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(scene.item->movie(), nullptr);
    QTRY_COMPARE(scene.pixel(40, 20), QColor(Qt::white));
}

void tst_WMovieItem::replaced()
{
    const auto first = pausedMovie();
    const auto second = pausedMovie();
    QVERIFY(second->jumpToFrame(1));
    Scene scene(first.get());
    QVERIFY(scene.isExposed());
    scene.item->setMovie(second.get());
    QTRY_COMPARE(scene.pixel(40, 20), QColor(Qt::blue));
    const int before = scene.item->paints;
    QVERIFY(first->jumpToFrame(1)); // nobody looks any more
    QSignalSpy frames(&scene.window, &QQuickWindow::frameSwapped);
    scene.window.update();
    QVERIFY(frames.wait());
    QCOMPARE(scene.item->paints, before);
}

LUMAKIT_TEST_MAIN(tst_WMovieItem)
#include "tst_wmovieitem.moc"
