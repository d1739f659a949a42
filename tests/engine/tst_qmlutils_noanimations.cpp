#include <QmlUtils.h>
#include <TestCase.h>

#include <QClipboard>

using namespace Qt::StringLiterals;

// A host without animations, which is asked once a process, on a platform that draws in software and knows no
// selection.
class tst_QmlUtils_NoAnimations : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickWindow::setSceneGraphBackend(u"software"_s);
        qobject_cast<TestApplication *>(QCoreApplication::instance())->setAnimationsDisabled(true);
    }

    void hide_data()
    {
        QTest::addColumn<bool>("delay");
        QTest::addColumn<bool>("force");
        QTest::addColumn<bool>("underCursor");
        QTest::addColumn<bool>("closed");
        QTest::newRow("later") << true << false << false << true;
        QTest::newRow("later, under the cursor") << true << false << true << false;
        QTest::newRow("later, forced") << true << true << false << true;
        QTest::newRow("later, forced, under the cursor") << true << true << true << true;
        QTest::newRow("at once") << false << false << false << true;
        QTest::newRow("at once, under the cursor") << false << false << true << false;
    }

    // Without a delay.
    void hide()
    {
        QFETCH(const bool, delay);
        QFETCH(const bool, force);
        QFETCH(const bool, underCursor);
        QFETCH(const bool, closed);
        QCursor::setPos(underCursor ? QPoint(350, 250) : QPoint(20, 20));
        QWindow popup;
        popup.setFlag(Qt::FramelessWindowHint);
        popup.setGeometry(300, 200, 200, 100);
        popup.show();
        QVERIFY(QTest::qWaitForWindowExposed(&popup));
        QCOMPARE(popup.frameGeometry().contains(QCursor::pos()), underCursor);
        QmlUtils utils;
        utils.setPopupView(&popup);
        utils.hidePopupView(delay, force);
        QCOMPARE(popup.isVisible(), !closed);
    }

    void answerIsKept_data() { hide_data(); }

    void answerIsKept()
    {
        qobject_cast<TestApplication *>(QCoreApplication::instance())->setAnimationsDisabled(false);
        hide();
    }

    void drawsNoLayers() { QCOMPARE(QmlUtils().supportsLayers(), false); }

    void noSelection()
    {
        QClipboard *clipboard = QGuiApplication::clipboard();
        QCOMPARE(clipboard->supportsSelection(), false);
        clipboard->setText(u"text"_s);
        for (const auto option : {QmlUtils::PlainText, QmlUtils::PlainTextNoLineBreaks, QmlUtils::RichText}) {
            QCOMPARE(QmlUtils().pasteFromClipboard(option, QmlUtils::Selection), QString());
            QCOMPARE(QmlUtils().pasteFromClipboard(option, QmlUtils::Clipboard), u"text"_s);
        }
    }
};

LUMAKIT_TEST_MAIN(tst_QmlUtils_NoAnimations)
#include "tst_qmlutils_noanimations.moc"
