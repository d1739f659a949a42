#include <FontUtils.h>
#include <MetaDescription.h>
#include <TestCase.h>
#include <ToolTipUtils.h>

#include <QLabel>
#include <QQuickWindow>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

// The desktop's tooltip, if one is up.
QLabel *label()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return qobject_cast<QLabel *>(widget);
    }
    return nullptr;
}

QString html(const QString &text, bool wrap)
{
    return FontUtils::toHtml(text, FontUtils::SegoeUIWithEmoji, wrap);
}

} // namespace

class tst_ToolTipUtils : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_window.reset(); }

    void metaObject();
    void atLocation_data();
    void atLocation();
    void textIsPlain();
    void nothingAtLocation_data();
    void nothingAtLocation();
    void atItem_data();
    void atItem();
    void nothingAtItem_data();
    void nothingAtItem();
    void barelyVisibleItem();
    void hidden();
    void nothingToHide();

protected:
    void prepare() override;
    void tidy() override;

private:
    bool moveCursor(const QPoint &position);
    // Shows a tooltip that a test expects to be hidden or replaced.
    bool showAnother();

    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_item = nullptr;
    // From the position that is asked for to the label's corner: beside the cursor.
    QPoint m_offset;
    ToolTipUtils m_utils;
};

void tst_ToolTipUtils::initTestCase()
{
    m_window = std::make_unique<QQuickWindow>();
    m_window->setFlag(Qt::FramelessWindowHint);
    m_window->setGeometry(200, 150, 600, 500);
    m_window->show();
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    auto *parent = new QQuickItem(m_window->contentItem());
    parent->setPosition({100, 100});
    m_item = new QQuickItem(parent);

    QVERIFY(moveCursor({20, 20}));
    QToolTip::showText({700, 400}, u"reference"_s);
    QVERIFY(label());
    m_offset = label()->pos() - QPoint(700, 400);
    tidy();
}

void tst_ToolTipUtils::prepare()
{
    m_item->setPosition({50, 60});
    m_item->setSize({101, 41});
    m_item->setOpacity(1);
    QVERIFY(moveCursor({20, 20}));
}

void tst_ToolTipUtils::tidy()
{
    if (QLabel *tip = label())
        tip->close(); // at once; hideText() takes its time
}

bool tst_ToolTipUtils::moveCursor(const QPoint &position)
{
    QCursor::setPos(position);
    return QTest::qWaitFor([&] { return QCursor::pos() == position; });
}

bool tst_ToolTipUtils::showAnother()
{
    QToolTip::showText({500, 300}, u"another"_s);
    return label() && QToolTip::isVisible();
}

void tst_ToolTipUtils::metaObject()
{
    const QMetaObject &meta = ToolTipUtils::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::invokables(meta),
             (QStringList{u"void tooltip(bool,QString,QPoint)"_s, u"void tooltip(bool,QString,QQuickItem*,bool)"_s,
                          u"void hideTooltip()"_s}));
    QCOMPARE(MetaDescription::properties(meta), QStringList());
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList());
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
}

void tst_ToolTipUtils::atLocation_data()
{
    QTest::addColumn<QPoint>("location");
    QTest::newRow("over the window") << QPoint(400, 300);
    QTest::newRow("outside") << QPoint(900, 700);
}

void tst_ToolTipUtils::atLocation()
{
    QFETCH(const QPoint, location);
    m_utils.tooltip(true, u"Some text"_s, location);
    QVERIFY(label());
    QCOMPARE(label()->text(), html(u"Some text"_s, true));
    QCOMPARE(label()->pos() - m_offset, location);
}

void tst_ToolTipUtils::textIsPlain()
{
    m_utils.tooltip(true, u"<b>a</b> & b"_s, QPoint(400, 300));
    QCOMPARE(QToolTip::text(), html(u"<b>a</b> & b"_s, true));
    QVERIFY(QToolTip::text().contains("&lt;b&gt;a&lt;/b&gt; &amp; b"_L1));
}

void tst_ToolTipUtils::nothingAtLocation_data()
{
    QTest::addColumn<bool>("show");
    QTest::addColumn<QString>("text");
    QTest::newRow("not to be shown") << false << u"text"_s;
    QTest::newRow("no text") << true << u""_s;
    QTest::newRow("neither") << false << u""_s;
}

void tst_ToolTipUtils::nothingAtLocation()
{
    QFETCH(const bool, show);
    QFETCH(const QString, text);
    QVERIFY(showAnother());
    m_utils.tooltip(show, text, QPoint(400, 300));
    QTRY_VERIFY(!label());
}

void tst_ToolTipUtils::atItem_data()
{
    QTest::addColumn<QRectF>("geometry"); // of the item, whose parent is at (300, 250) on the screen
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<QPoint>("location");
    const QRectF geometry(50, 60, 101, 41); // from (350, 310) to (450, 350), both of them inside
    const QPoint center(400, 330);
    QTest::newRow("cursor elsewhere") << geometry << QPoint(20, 20) << center;
    QTest::newRow("cursor inside") << geometry << QPoint(370, 345) << QPoint(370, 345);
    QTest::newRow("cursor on the first pixel") << geometry << QPoint(350, 310) << QPoint(350, 310);
    QTest::newRow("cursor on the last pixel") << geometry << QPoint(450, 350) << QPoint(450, 350);
    QTest::newRow("cursor to the left") << geometry << QPoint(349, 330) << center;
    QTest::newRow("cursor above") << geometry << QPoint(400, 309) << center;
    QTest::newRow("cursor to the right") << geometry << QPoint(451, 330) << center;
    QTest::newRow("cursor below") << geometry << QPoint(400, 351) << center;
    // The size is rounded, not cut off.
    QTest::newRow("fractions") << QRectF(50, 60, 100.6, 40.5) << QPoint(20, 20) << center;
    QTest::newRow("fractions, cursor on the last pixel")
        << QRectF(50, 60, 100.6, 40.5) << QPoint(450, 350) << QPoint(450, 350);
    QTest::newRow("even size") << QRectF(50, 60, 100, 40) << QPoint(20, 20) << QPoint(399, 329);
}

void tst_ToolTipUtils::atItem()
{
    QFETCH(const QRectF, geometry);
    QFETCH(const QPoint, cursor);
    QFETCH(const QPoint, location);
    m_item->setPosition(geometry.topLeft());
    m_item->setSize(geometry.size());
    QVERIFY(moveCursor(cursor));
    for (const bool wrap : {true, false}) {
        m_utils.tooltip(true, u"Some text"_s, m_item, wrap);
        QVERIFY(label());
        QCOMPARE(label()->text(), html(u"Some text"_s, wrap));
        QCOMPARE(label()->pos() - m_offset, location);
    }
}

void tst_ToolTipUtils::nothingAtItem_data()
{
    QTest::addColumn<bool>("show");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasItem");
    QTest::addColumn<double>("opacity");
    QTest::newRow("not to be shown") << false << u"text"_s << true << 1.0;
    QTest::newRow("no text") << true << u""_s << true << 1.0;
    QTest::newRow("no item") << true << u"text"_s << false << 1.0;
    QTest::newRow("opacity 0") << true << u"text"_s << true << 0.0;
}

void tst_ToolTipUtils::nothingAtItem()
{
    QFETCH(const bool, show);
    QFETCH(const QString, text);
    QFETCH(const bool, hasItem);
    QFETCH(const double, opacity);
    m_item->setOpacity(opacity);
    QVERIFY(showAnother());
    m_utils.tooltip(show, text, hasItem ? m_item : nullptr, true);
    QTRY_VERIFY(!label());
}

void tst_ToolTipUtils::barelyVisibleItem()
{
    m_item->setOpacity(0.01);
    m_utils.tooltip(true, u"Some text"_s, m_item, true);
    QVERIFY(label());
}

void tst_ToolTipUtils::hidden()
{
    m_utils.tooltip(true, u"Some text"_s, QPoint(400, 300));
    QVERIFY(label());
    m_utils.hideTooltip();
    QTRY_VERIFY(!label());
}

void tst_ToolTipUtils::nothingToHide()
{
    m_utils.hideTooltip();
    m_utils.tooltip(false, u""_s, nullptr, false);
    m_utils.tooltip(false, u""_s, QPoint());
    QVERIFY(!label());
}

LUMAKIT_TEST_MAIN(tst_ToolTipUtils)
#include "tst_tooltiputils.moc"
