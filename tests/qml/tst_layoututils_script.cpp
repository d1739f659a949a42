#include "Script.h"

#include <TestCase.h>

#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

class tst_LayoutUtils_Script : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isLibrary() { QVERIFY(m_script.isLibrary(u"bottomY"_s)); }

    void bottomY_data()
    {
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("implicitHeight");
        QTest::addColumn<double>("topMargin");
        QTest::addColumn<double>("bottomMargin");
        QTest::addColumn<double>("bottom");
        QTest::newRow("nothing") << 0.0 << 0.0 << 0.0 << 0.0 << 0.0;
        QTest::newRow("no margins") << 10.0 << 200.0 << 0.0 << 0.0 << 210.0;
        QTest::newRow("margins") << 10.0 << 200.0 << 3000.0 << 40000.0 << 43210.0;
        QTest::newRow("negative") << -10.5 << 200.0 << -3.0 << -4.0 << 182.5;
    }

    // The height that counts is the implicit one, and margins count even where nothing is anchored.
    void bottomY()
    {
        QFETCH(const double, y);
        QFETCH(const double, implicitHeight);
        QFETCH(const double, topMargin);
        QFETCH(const double, bottomMargin);
        QFETCH(const double, bottom);
        QQuickItem item;
        item.setImplicitHeight(implicitHeight);
        item.setHeight(7);
        item.setY(y);
        auto *anchors = item.property("anchors").value<QObject *>();
        QVERIFY(anchors);
        QVERIFY(anchors->setProperty("margins", 500000));
        QVERIFY(anchors->setProperty("topMargin", topMargin));
        QVERIFY(anchors->setProperty("bottomMargin", bottomMargin));
        QCOMPARE(call("bottomY", item).toDouble(), bottom);
    }

    void globalRect_data()
    {
        QTest::addColumn<QPointF>("position");
        QTest::addColumn<double>("rotation");
        QTest::addColumn<double>("scale");
        QTest::addColumn<QRectF>("rect");
        QTest::newRow("in the corner") << QPointF() << 0.0 << 1.0 << QRectF(110, 220, 30, 40);
        QTest::newRow("inside") << QPointF(5, 6) << 0.0 << 1.0 << QRectF(115, 226, 30, 40);
        QTest::newRow("outside") << QPointF(-200, -300) << 0.0 << 1.0 << QRectF(-90, -80, 30, 40);
        QTest::newRow("fractions") << QPointF(5.25, 6.5) << 0.0 << 1.0 << QRectF(115.25, 226.5, 30, 40);
        // About the centre; the size is the item's own.
        QTest::newRow("upside down") << QPointF(5, 6) << 180.0 << 1.0 << QRectF(145, 266, 30, 40);
        QTest::newRow("doubled") << QPointF(5, 6) << 0.0 << 2.0 << QRectF(100, 206, 30, 40);
    }

    void globalRect()
    {
        QFETCH(const QPointF, position);
        QFETCH(const double, rotation);
        QFETCH(const double, scale);
        QFETCH(const QRectF, rect);
        QQuickWindow window;
        window.setGeometry(100, 200, 300, 300);
        QQuickItem parent(window.contentItem());
        parent.setPosition({10, 20});
        QQuickItem item(&parent);
        item.setPosition(position);
        item.setSize({30, 40});
        item.setRotation(rotation);
        item.setScale(scale);
        const QVariant result = call("globalRect", item);
        QCOMPARE(result.metaType(), QMetaType::fromType<QRectF>());
        QCOMPARE(result.toRectF(), rect);
    }

    void globalRectFollowsTheWindow()
    {
        QQuickWindow window;
        window.setGeometry(100, 200, 300, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QQuickItem item(window.contentItem());
        item.setSize({30, 40});
        QCOMPARE(call("globalRect", item).toRectF(), QRectF(window.mapToGlobal(QPoint()), QSizeF(30, 40)));
        window.setPosition(250, 350);
        QTRY_COMPARE(window.mapToGlobal(QPoint()), QPoint(250, 350));
        QCOMPARE(call("globalRect", item).toRectF(), QRectF(250, 350, 30, 40));
    }

private:
    QVariant call(const char *function, QQuickItem &item)
    {
        return m_script.evaluate(u"LayoutUtils.%1(item)"_s.arg(QLatin1StringView(function)),
                                 {{u"item"_s, QVariant::fromValue(&item)}});
    }

    Script m_script{u"LayoutUtils"_s};
};

LUMAKIT_TEST_MAIN(tst_LayoutUtils_Script)
#include "tst_layoututils_script.moc"
