#include <AppUtils.h>
#include <TestCase.h>

#include <QBuffer>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

QByteArray png(const QColor &color, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

WApplication *application()
{
    return qobject_cast<WApplication *>(QCoreApplication::instance());
}

} // namespace

class tst_AppUtils : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paths();
    void dialogIcon_data();
    void dialogIcon();
    void hiddenDialogIcon();
    void layoutDirection();

protected:
    void tidy() override
    {
        application()->setLogoPngPath({});
        application()->setLogoSvgPath({});
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
};

void tst_AppUtils::paths()
{
    QCOMPARE(AppUtils::getAppPngIconPath(), QString());
    QCOMPARE(AppUtils::getAppSvgIconPath(), QString());
    application()->setLogoPngPath(u":/logo.png"_s);
    application()->setLogoSvgPath(u":/logo.svg"_s);
    QCOMPARE(AppUtils::getAppPngIconPath(), u":/logo.png"_s);
    QCOMPARE(AppUtils::getAppSvgIconPath(), u":/logo.svg"_s);
}

void tst_AppUtils::dialogIcon_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QColor>("color");
    QTest::newRow("a picture") << u":/logo.png"_s << QColor(Qt::green);
    QTest::newRow("no path") << QString() << QColor();
    QTest::newRow("no such file") << u":/none.png"_s << QColor();
    QTest::newRow("not a picture") << u":/broken.png"_s << QColor();
}

void tst_AppUtils::dialogIcon()
{
    QFETCH(QString, path);
    QFETCH(QColor, color);
    const MemoryResources resources({{u"/logo.png"_s, png(Qt::green, {64, 64})}, {u"/broken.png"_s, "no picture"}});
    application()->setLogoPngPath(path);
    application()->setLogoSvgPath(u":/other.svg"_s); // is not what dialogs show
    const QIcon icon = AppUtils::getDialogIcon(false);
    QCOMPARE(icon.isNull(), !color.isValid());
    const QPixmap pixmap = icon.pixmap(QSize(16, 16), 1.0);
    QCOMPARE(pixmap.isNull(), !color.isValid());
    if (color.isValid())
        QCOMPARE(pixmap.toImage().pixelColor(8, 8), color);
}

void tst_AppUtils::hiddenDialogIcon()
{
    application()->setLogoPngPath(u":/logo.png"_s);
    const QIcon icon = AppUtils::getDialogIcon(true);
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(32, 32)});
    const QImage image = icon.pixmap(QSize(32, 32), 1.0).toImage();
    QCOMPARE(image.size(), QSize(32, 32));
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x)
            QCOMPARE(image.pixel(x, y), 0U);
    }
}

void tst_AppUtils::layoutDirection()
{
    QVERIFY(!AppUtils::isRTLLayoutDirection());
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(AppUtils::isRTLLayoutDirection());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(!AppUtils::isRTLLayoutDirection());
}

LUMAKIT_TEST_MAIN(tst_AppUtils)
#include "tst_apputils.moc"
