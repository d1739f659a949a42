#include <AppUtils.h>
#include <TestCase.h>

#include <QImage>

/// Without an application object of the library.
class tst_AppUtilsPlain : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void paths();
    void dialogIcon();
    void layoutDirection();
};

void tst_AppUtilsPlain::paths()
{
    QCOMPARE(AppUtils::getAppPngIconPath(), QString());
    QCOMPARE(AppUtils::getAppSvgIconPath(), QString());
}

void tst_AppUtilsPlain::dialogIcon()
{
    QVERIFY(AppUtils::getDialogIcon(false).isNull());
    const QIcon hidden = AppUtils::getDialogIcon(true);
    QCOMPARE(hidden.availableSizes(), QList<QSize>{QSize(32, 32)});
    QCOMPARE(hidden.pixmap(QSize(32, 32), 1.0).toImage().pixel(16, 16), 0U);
}

void tst_AppUtilsPlain::layoutDirection()
{
    QVERIFY(!AppUtils::isRTLLayoutDirection());
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QVERIFY(!AppUtils::isRTLLayoutDirection());
}

LUMAKIT_PLAIN_TEST_MAIN(tst_AppUtilsPlain)
#include "tst_apputils_plain.moc"
