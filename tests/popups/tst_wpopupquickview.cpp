#include <TestCase.h>
#include <WPopupQuickView.h>
#include <WQmlEngine.h>
#include <WQmlPopupController.h>

#include <QMetaEnum>
#include <QMetaMethod>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Arrows{Qt::UpArrow, Qt::DownArrow, Qt::LeftArrow, Qt::RightArrow};

QByteArray arrowName(Qt::ArrowType arrow)
{
    constexpr std::array names{"none", "up", "down", "left", "right"};
    return names.at(size_t(arrow));
}

QStringList &journal()
{
    static QStringList instance;
    return instance;
}

// What opens popups: it writes down when it is marked.
class OpenerItem : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(bool open READ isOpen WRITE setOpen)
    Q_PROPERTY(bool readOnly READ isOpen CONSTANT)

public:
    using QQuickItem::QQuickItem;

    bool isOpen() const { return m_open; }
    void setOpen(bool open)
    {
        m_open = open;
        journal() << objectName() + (open ? " marked"_L1 : " unmarked"_L1);
    }

private:
    bool m_open = false;
};

// An active window with an item that opens popups.
class Opener
{
public:
    explicit Opener(const QPoint &position = {300, 200})
        : item(window.contentItem())
    {
        item.setObjectName(u"item"_s);
        window.setGeometry(QRect(position, QSize(200, 100)));
        window.show();
        window.requestActivate();
        m_active = QTest::qWaitForWindowActive(&window);
    }
    bool isActive() const { return m_active && WApplication::isInFocus(); }

    QQuickWindow window;
    OpenerItem item;

private:
    bool m_active = false;
};

class PopupController : public WQmlPopupController
{
    Q_OBJECT

public:
    using WQmlPopupController::WQmlPopupController;
    void init(const QMap<QString, QVariant> &properties) override
    {
        journal() << "init "_L1 + properties.keys().join(u',');
    }
};

// Records the signals of a popup in their order.
void watch(WPopupQuickView *view)
{
    QObject::connect(view, &WPopupQuickView::arrowFlipped, view,
                     [](Qt::ArrowType arrow) { journal() << "flipped "_L1 + QLatin1StringView(arrowName(arrow)); });
    QObject::connect(view, &WPopupQuickView::arrowOrthogonalChanged, view, [] { journal() << u"orthogonal"_s; });
}

struct Opened : QObject
{
    using QObject::receivers;
};

QList<int> geometryReceivers(const QObject &view)
{
    QList<int> counts;
    for (const char *signal :
         {SIGNAL(widthChanged(int)), SIGNAL(heightChanged(int)), SIGNAL(xChanged(int)), SIGNAL(yChanged(int))})
        counts << (view.*&Opened::receivers)(signal);
    return counts;
}

const QMap<QString, QByteArray> Files{
    {u"/Qml/Popup.qml"_s,
     "import QtQuick\nimport LumakitTests 1.0\nItem { width: 240; height: 120; PopupController { } }\n"},
    {u"/Qml/OddSize.qml"_s,
     "import QtQuick\nimport LumakitTests 1.0\nItem { width: 240.6; height: 119.4; PopupController { } }\n"},
    {u"/Qml/NoController.qml"_s, "import QtQuick\nItem { width: 50; height: 40 }\n"},
    {u"/Qml/OtherController.qml"_s,
     "import QtQuick\nimport LumakitTests 1.0\nItem { width: 50; height: 40; PlainController { } }\n"},
    {u"/Qml/TwoControllers.qml"_s,
     "import QtQuick\nimport LumakitTests 1.0\nItem { PopupController { } PopupController { } }\n"},
    {u"/Qml/Broken.qml"_s, "import QtQuick\nItem { width: }\n"},
};

} // namespace

class tst_WPopupQuickView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { m_window.reset(); }

    void metaObject();
    void plainView();
    void engineView();

    void points_data();
    void points();
    void pointsOfWidgets();

    void edges_data();
    void edges();
    void flipsAndSlides_data();
    void flipsAndSlides();
    void noArrow();
    void showAtWidget();
    void showAtNoWidget();

    void growsAcross_data();
    void growsAcross();
    void growsAlong_data();
    void growsAlong();
    void closedByTheFlip();
    void flipsBack_data();
    void flipsBack();
    void moves_data();
    void moves();
    void secondCallReplacesTheFirst();
    void notInFocus_data();
    void notInFocus();

    void marksItsItem();
    void marksNothing_data();
    void marksNothing();
    void marksTheNextItem();
    void givesTheFocusBack_data();
    void givesTheFocusBack();
    void openerDies();
    void itemWithoutWindow();
    void unknownProperty_data();
    void unknownProperty();

    void setPositionFromWidget_data();
    void setPositionFromWidget();

    void popupStatuses_data();
    void popupStatuses();
    void popupFlags_data();
    void popupFlags();
    void popupOptions();
    void popupEmptySource();
    void popupSize_data();
    void popupSize();
    void popupKnowsItsController_data();
    void popupKnowsItsController();
    void popupWithAnotherController();
    void popupLoop();
    void popupHidesWithActivation();
    void popupHidesWhenParentMoves_data();
    void popupHidesWhenParentMoves();

protected:
    void prepare() override { journal().clear(); }
    void tidy() override;

private:
    // Makes a window of this application the active one; makes none of them active.
    bool focus();
    bool loseFocus();

    std::unique_ptr<MemoryResources> m_resources;
    std::unique_ptr<Opener> m_window;
    WQmlEngine *m_engine = nullptr;
    QRect m_screen;
};

void tst_WPopupQuickView::initTestCase()
{
    qmlRegisterType<PopupController>("LumakitTests", 1, 0, "PopupController");
    qmlRegisterType<WQmlController>("LumakitTests", 1, 0, "PlainController");
    m_resources = std::make_unique<MemoryResources>(Files);
    m_engine = qobject_cast<IWApplication *>(qApp)->getQmlEngine();
    m_screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(m_screen.contains(QRect(0, 0, 799, 499)));
}

void tst_WPopupQuickView::tidy()
{
    disconnect(m_engine, nullptr, this, nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_COMPARE(QGuiApplication::topLevelWindows().size(), m_window ? 1 : 0);
}

bool tst_WPopupQuickView::focus()
{
    if (!m_window)
        m_window = std::make_unique<Opener>();
    m_window->window.show();
    m_window->window.requestActivate();
    return QTest::qWaitForWindowActive(&m_window->window) && WApplication::isInFocus();
}

bool tst_WPopupQuickView::loseFocus()
{
    if (!focus())
        return false;
    m_window->window.hide();
    return QTest::qWaitFor([] { return !WApplication::isInFocus(); });
}

void tst_WPopupQuickView::metaObject()
{
    const QMetaObject &meta = WPopupQuickView::staticMetaObject;
    QCOMPARE(meta.superClass(), &WQuickView::staticMetaObject);
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods << QByteArray(method.access() == QMetaMethod::Private ? "private " : "")
                + (method.methodType() == QMetaMethod::Signal ? "signal " : "slot ") + method.methodSignature() + " "
                + method.parameterNames().join(',');
    }
    QCOMPARE(methods,
             (QByteArrayList{"signal arrowFlipped(Qt::ArrowType) arrow", "signal arrowOrthogonalChanged() ",
                             "private slot showFrom(Qt::ArrowType) arrow"}));
    QCOMPARE(meta.enumeratorCount() - meta.enumeratorOffset(), 1);
    const QMetaEnum alignment = QMetaEnum::fromType<WPopupQuickView::Alignment>();
    QCOMPARE(alignment.name(), "Alignment");
    QCOMPARE(alignment.keyCount(), 1);
    QCOMPARE(alignment.key(0), "BottomAlignment");
    QCOMPARE(alignment.value(0), 0);
}

void tst_WPopupQuickView::plainView()
{
    QWindow parent;
    const WPopupQuickView view;
    const WQuickView other;
    QCOMPARE(view.flags(), other.flags());
    QCOMPARE(view.color(), other.color());
    QCOMPARE(view.activationRect(), QRectF());
    QVERIFY(view.activationRect().isNull());
    QVERIFY(view.hasActivationItem(nullptr));
    auto *child = new WPopupQuickView(&parent);
    QCOMPARE(child->QObject::parent(), &parent);
    QCOMPARE(geometryReceivers(view), QList<int>(4, 0));
}

void tst_WPopupQuickView::engineView()
{
    QWindow parent;
    ViewOptions options;
    options.focusOnActivate = true;
    options.parentWindow = &parent;
    auto *view = new WPopupQuickView(m_engine, &parent, options);
    QCOMPARE(view->QObject::parent(), &parent);
    QCOMPARE(view->engine(), m_engine);
    QCOMPARE(view->type(), Qt::Popup);
    QCOMPARE(view->flags(), WQuickView().flags() | Qt::Popup);
    QCOMPARE(view->color(), QColor(Qt::transparent));
    QCOMPARE(view->getViewOptions().focusOnActivate, true);
    QCOMPARE(view->getViewOptions().parentWindow, &parent);
}

void tst_WPopupQuickView::points_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QPointF>("expected"); // of a popup of 301 x 200 beside (100, 100) 50 x 20
    QTest::newRow("none") << Qt::NoArrow << QPointF(125, 110);
    QTest::newRow("up") << Qt::UpArrow << QPointF(-25, 120);
    QTest::newRow("down") << Qt::DownArrow << QPointF(-25, -100);
    QTest::newRow("left") << Qt::LeftArrow << QPointF(150, 10);
    QTest::newRow("right") << Qt::RightArrow << QPointF(-201, 10);
    QTest::newRow("unknown") << Qt::ArrowType(7) << QPointF(125, 110);
}

void tst_WPopupQuickView::points()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QPointF, expected);
    WPopupQuickView view;
    view.resize(301, 200);
    QCOMPARE(view.getPointFromRect(QRectF(100, 100, 50, 20), arrow), expected);
    QWidget widget;
    widget.setGeometry(100, 100, 50, 20);
    QCOMPARE(view.getPointFromWidget(&widget, arrow), expected);
    QCOMPARE(view.activationRect(), QRectF()); // asking changes nothing
}

void tst_WPopupQuickView::pointsOfWidgets()
{
    WPopupQuickView view;
    view.resize(300, 200);
    QCOMPARE(view.getPointFromWidget(nullptr, Qt::UpArrow), QPointF(-150, 0));
    QCOMPARE(view.getPointFromWidget(nullptr, Qt::RightArrow), QPointF(-300, -100));
    QWidget parent;
    parent.setGeometry(200, 200, 300, 200);
    auto *child = new QWidget(&parent);
    child->setGeometry(10, 20, 30, 40); // as it is, in its parent
    QCOMPARE(view.getPointFromWidget(child, Qt::UpArrow), QPointF(25 - 150, 60));
}

void tst_WPopupQuickView::edges_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QPoint>("place"); // -1 the left or the top edge, 1 the right or the bottom
    constexpr std::array names{"top left", "top",         "top right", "left",        "centre",
                               "right",    "bottom left", "bottom",    "bottom right"};
    for (const Qt::ArrowType arrow : Arrows) {
        for (int i = 0; i < 9; ++i)
            QTest::addRow("%s at the %s", arrowName(arrow).constData(), names.at(size_t(i)))
                << arrow << QPoint(i % 3 - 1, i / 3 - 1);
    }
}

// Wherever it stands, the popup is wholly on the screen, touches what opened it, and its arrow points at the middle.
void tst_WPopupQuickView::edges()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QPoint, place);
    QVERIFY(focus());
    const QSize size(20, 20);
    const QPoint topLeft(place.x() < 0       ? m_screen.left()
                             : place.x() > 0 ? m_screen.right() + 1 - size.width()
                                             : m_screen.left() + 390,
                         place.y() < 0       ? m_screen.top()
                             : place.y() > 0 ? m_screen.bottom() + 1 - size.height()
                                             : m_screen.top() + 240);
    const QRect rect(topLeft, size);
    const bool flips = (arrow == Qt::UpArrow && place.y() > 0) || (arrow == Qt::DownArrow && place.y() < 0)
        || (arrow == Qt::LeftArrow && place.x() > 0) || (arrow == Qt::RightArrow && place.x() < 0);
    const std::array flipped{Qt::NoArrow, Qt::DownArrow, Qt::UpArrow, Qt::RightArrow, Qt::LeftArrow};
    const Qt::ArrowType direction = flips ? flipped.at(size_t(arrow)) : arrow;

    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    QSignalSpy arrowFlipped(&view, &WPopupQuickView::arrowFlipped);
    QSignalSpy orthogonal(&view, &WPopupQuickView::arrowOrthogonalChanged);
    view.showAtRect(rect, arrow);
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    QCOMPARE(view.activationRect(), QRectF(rect));
    QCOMPARE(arrowFlipped.count(), flips ? 1 : 0);
    if (flips)
        QCOMPARE(arrowFlipped.first().first().value<Qt::ArrowType>(), direction);
    QVERIFY(orthogonal.count() >= 1);
    const QRect shown = view.geometry();
    QCOMPARE(shown.size(), QSize(200, 100));
    QCOMPARE(shown.united(m_screen), m_screen);
    const int slide = view.adjustArrowOffset(direction);
    switch (direction) {
    case Qt::UpArrow:
        QCOMPARE(shown.top(), rect.bottom() + 1);
        QCOMPARE(shown.left() + 100 + slide, rect.left() + 10);
        break;
    case Qt::DownArrow:
        QCOMPARE(shown.bottom() + 1, rect.top());
        QCOMPARE(shown.left() + 100 + slide, rect.left() + 10);
        break;
    case Qt::LeftArrow:
        QCOMPARE(shown.left(), rect.right() + 1);
        QCOMPARE(shown.top() + 50 + slide, rect.top() + 10);
        break;
    default:
        QCOMPARE(shown.right() + 1, rect.left());
        QCOMPARE(shown.top() + 50 + slide, rect.top() + 10);
        break;
    }
}

void tst_WPopupQuickView::flipsAndSlides_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QPoint>("corner"); // 1 is the far one
    QTest::addColumn<Qt::ArrowType>("flipped");
    QTest::addColumn<int>("slide"); // of a popup of 200 x 100 beside a pixel in the corner
    QTest::newRow("up, bottom left") << Qt::UpArrow << QPoint(0, 1) << Qt::DownArrow << -99;
    QTest::newRow("up, bottom right") << Qt::UpArrow << QPoint(1, 1) << Qt::DownArrow << 99;
    QTest::newRow("down, top left") << Qt::DownArrow << QPoint(0, 0) << Qt::UpArrow << -99;
    QTest::newRow("down, top right") << Qt::DownArrow << QPoint(1, 0) << Qt::UpArrow << 99;
    QTest::newRow("left, top right") << Qt::LeftArrow << QPoint(1, 0) << Qt::RightArrow << -49;
    QTest::newRow("left, bottom right") << Qt::LeftArrow << QPoint(1, 1) << Qt::RightArrow << 49;
    QTest::newRow("right, top left") << Qt::RightArrow << QPoint(0, 0) << Qt::LeftArrow << -49;
    QTest::newRow("right, bottom left") << Qt::RightArrow << QPoint(0, 1) << Qt::LeftArrow << 49;
}

void tst_WPopupQuickView::flipsAndSlides()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QPoint, corner);
    QFETCH(const Qt::ArrowType, flipped);
    QFETCH(const int, slide);
    QVERIFY(focus());
    const QRectF rect(corner.x() ? m_screen.right() - 1 : m_screen.left(),
                      corner.y() ? m_screen.bottom() - 1 : m_screen.top(), 2, 2);
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    watch(&view);
    view.showAtRect(rect, arrow);
    QVERIFY(view.isVisible());
    QVERIFY(journal().size() >= 2);
    QCOMPARE(journal().first(), "flipped "_L1 + QLatin1StringView(arrowName(flipped)));
    QCOMPARE(journal().count("flipped "_L1 + QLatin1StringView(arrowName(flipped))), 1);
    QCOMPARE(journal().last(), u"orthogonal"_s);
    QCOMPARE(view.adjustArrowOffset(flipped), slide);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.geometry().united(m_screen), m_screen);
}

void tst_WPopupQuickView::noArrow()
{
    QVERIFY(focus());
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    watch(&view);
    view.showAtRect(QRectF(m_screen.left() + 100, m_screen.top() + 80, 40, 20), Qt::NoArrow);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.position(), m_screen.topLeft() + QPoint(120, 90));
    QCOMPARE(geometryReceivers(view), QList<int>(4, 0));
    QCOMPARE(view.adjustArrowOffset(Qt::NoArrow), 0);
    QCOMPARE(journal(), QStringList{u"orthogonal"_s});
}

void tst_WPopupQuickView::showAtWidget()
{
    QVERIFY(focus());
    QWidget widget;
    widget.setGeometry(300, 150, 80, 24);
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    view.showAtWidget(&widget, Qt::UpArrow);
    QCOMPARE(view.activationRect(), QRectF(300, 150, 80, 24));
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.position(), QPoint(240, 174));
    view.setActivationRectAndShow(&widget, Qt::LeftArrow);
    QTRY_COMPARE(view.position(), QPoint(380, 112));
}

void tst_WPopupQuickView::showAtNoWidget()
{
    QVERIFY(focus());
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    view.showAtRect(QRectF(5, 6, 7, 8), Qt::UpArrow);
    view.showAtWidget(nullptr, Qt::UpArrow);
    QVERIFY(view.activationRect().isNull());
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QTRY_COMPARE(view.position(), QPoint(0, 0));
    QCOMPARE(view.adjustArrowOffset(Qt::UpArrow), -100);
}

void tst_WPopupQuickView::growsAcross_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QSize>("grown"); // from 200 x 100, beside (390, 240) 20 x 20
    QTest::addColumn<QPoint>("before");
    QTest::addColumn<QPoint>("after");
    QTest::newRow("up") << Qt::UpArrow << QSize(300, 100) << QPoint(300, 260) << QPoint(250, 260);
    QTest::newRow("down") << Qt::DownArrow << QSize(300, 100) << QPoint(300, 140) << QPoint(250, 140);
    QTest::newRow("left") << Qt::LeftArrow << QSize(200, 160) << QPoint(410, 200) << QPoint(410, 170);
    QTest::newRow("right") << Qt::RightArrow << QSize(200, 160) << QPoint(190, 200) << QPoint(190, 170);
    QTest::newRow("up, along as well") << Qt::UpArrow << QSize(300, 160) << QPoint(300, 260) << QPoint(250, 260);
    QTest::newRow("down, along as well") << Qt::DownArrow << QSize(300, 160) << QPoint(300, 140) << QPoint(250, 80);
    QTest::newRow("right, along as well") << Qt::RightArrow << QSize(220, 160) << QPoint(190, 200) << QPoint(170, 170);
    QTest::newRow("up, shrinks") << Qt::UpArrow << QSize(100, 100) << QPoint(300, 260) << QPoint(350, 260);
}

void tst_WPopupQuickView::growsAcross()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QSize, grown);
    QFETCH(const QPoint, before);
    QFETCH(const QPoint, after);
    QVERIFY(focus());
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    view.showAtRect(QRectF(390, 240, 20, 20), arrow);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.position(), before);
    QSignalSpy flipped(&view, &WPopupQuickView::arrowFlipped);
    QSignalSpy orthogonal(&view, &WPopupQuickView::arrowOrthogonalChanged);
    view.resize(grown);
    QTRY_COMPARE(view.geometry(), QRect(after, grown));
    QVERIFY(orthogonal.count() >= 1);
    QCOMPARE(flipped.count(), 0);
}

void tst_WPopupQuickView::growsAlong_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QSize>("grown"); // from 200 x 100
    QTest::newRow("up") << Qt::UpArrow << QSize(200, 160);
    QTest::newRow("up, beyond the screen") << Qt::UpArrow << QSize(200, 900);
    QTest::newRow("down") << Qt::DownArrow << QSize(200, 160);
    QTest::newRow("left") << Qt::LeftArrow << QSize(300, 100);
    QTest::newRow("right") << Qt::RightArrow << QSize(300, 100);
}

void tst_WPopupQuickView::growsAlong()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QSize, grown);
    QVERIFY(focus());
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    view.showAtRect(QRectF(390, 240, 20, 20), arrow);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QPoint before = view.position();
    watch(&view);
    journal().clear();
    QSignalSpy size(&view,
                    arrow == Qt::UpArrow || arrow == Qt::DownArrow ? &QWindow::heightChanged : &QWindow::widthChanged);
    view.resize(grown);
    QTRY_VERIFY(size.count() > 0);
    QTRY_COMPARE(view.geometry(), QRect(before, grown));
    QCOMPARE(journal(), QStringList());
}

void tst_WPopupQuickView::closedByTheFlip()
{
    QVERIFY(focus());
    auto *view = new WPopupQuickView(m_engine, nullptr, ViewOptions());
    const QPointer<WPopupQuickView> guard = view;
    view->resize(200, 300);
    connect(view, &WPopupQuickView::arrowFlipped, this, [view] { delete view; });
    QSignalSpy moved(view, &WPopupQuickView::arrowOrthogonalChanged);
    view->showAtRect(QRectF(m_screen.left() + 300, m_screen.bottom() - 40, 20, 20), Qt::UpArrow);
    QVERIFY(!guard);
    QCOMPARE(moved.count(), 0);
}

void tst_WPopupQuickView::flipsBack_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QRect>("small");
    QTest::addColumn<QRect>("large");
    QTest::addColumn<Qt::ArrowType>("flipped");
    // Beside a rectangle of 20 x 20; the coordinates are those of a screen of 800 x 500.
    QTest::newRow("up") << Qt::UpArrow << QRect(300, 360, 200, 100) << QRect(290, 140, 220, 200) << Qt::DownArrow;
    QTest::newRow("down") << Qt::DownArrow << QRect(300, 40, 200, 100) << QRect(290, 160, 220, 200) << Qt::UpArrow;
    QTest::newRow("left") << Qt::LeftArrow << QRect(550, 200, 200, 100) << QRect(230, 190, 300, 120) << Qt::RightArrow;
    QTest::newRow("right") << Qt::RightArrow << QRect(50, 200, 200, 100) << QRect(270, 190, 300, 120) << Qt::LeftArrow;
}

void tst_WPopupQuickView::flipsBack()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(QRect, small);
    QFETCH(QRect, large);
    QFETCH(const Qt::ArrowType, flipped);
    QVERIFY(focus());
    if (arrow == Qt::UpArrow || arrow == Qt::LeftArrow) {
        const QPoint shift =
            arrow == Qt::UpArrow ? QPoint(0, m_screen.height() - 500) : QPoint(m_screen.width() - 800, 0);
        small.translate(shift);
        large.translate(shift);
    }
    // What opened it lies between the two.
    const QRect all = small.united(large);
    QRectF rect(0, 0, 20, 20);
    switch (arrow) {
    case Qt::UpArrow:
        rect.moveTo(all.left() + 100, small.top() - 20);
        break;
    case Qt::DownArrow:
        rect.moveTo(all.left() + 100, large.top() - 20);
        break;
    case Qt::LeftArrow:
        rect.moveTo(small.left() - 20, all.top() + 50);
        break;
    default:
        rect.moveTo(large.left() - 20, all.top() + 50);
        break;
    }

    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(small.size());
    watch(&view);
    view.showAtRect(rect, arrow);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.geometry(), small);
    QVERIFY(journal().filter(u"flipped"_s).isEmpty());

    view.resize(large.size());
    QTRY_COMPARE(view.geometry(), large);
    const QString flip = "flipped "_L1 + QLatin1StringView(arrowName(flipped));
    QCOMPARE(journal().filter(u"flipped"_s), QStringList{flip});

    view.resize(small.size());
    QTRY_COMPARE(view.geometry(), small);
    QCOMPARE(journal().filter(u"flipped"_s), QStringList{flip});
}

void tst_WPopupQuickView::moves_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<bool>("heard");
    QTest::newRow("up, sideways") << Qt::UpArrow << QPoint(30, 0) << true;
    QTest::newRow("up, downwards") << Qt::UpArrow << QPoint(0, 30) << false;
    QTest::newRow("down, sideways") << Qt::DownArrow << QPoint(30, 0) << true;
    QTest::newRow("down, downwards") << Qt::DownArrow << QPoint(0, 30) << false;
    QTest::newRow("left, sideways") << Qt::LeftArrow << QPoint(30, 0) << false;
    QTest::newRow("left, downwards") << Qt::LeftArrow << QPoint(0, 30) << true;
    QTest::newRow("right, sideways") << Qt::RightArrow << QPoint(30, 0) << false;
    QTest::newRow("right, downwards") << Qt::RightArrow << QPoint(0, 30) << true;
    QTest::newRow("none, both") << Qt::NoArrow << QPoint(30, 30) << false;
}

void tst_WPopupQuickView::moves()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const QPoint, by);
    QFETCH(const bool, heard);
    QVERIFY(focus());
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    view.showAtRect(QRectF(390, 240, 20, 20), arrow);
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QPoint before = view.position();
    watch(&view);
    journal().clear();
    QSignalSpy moved(&view, by.x() ? &QWindow::xChanged : &QWindow::yChanged);
    view.setPosition(before + by);
    QTRY_COMPARE(moved.count(), 1);
    QCOMPARE(view.position(), before + by);
    QCOMPARE(journal(), heard ? QStringList{u"orthogonal"_s} : QStringList());
}

void tst_WPopupQuickView::secondCallReplacesTheFirst()
{
    QVERIFY(loseFocus());
    WPopupQuickView view;
    view.resize(200, 100);
    int others = 0;
    connect(&view, &QWindow::widthChanged, this, [&others] { ++others; });
    // width, height, x, y; the width has this test's listener too
    struct Step
    {
        Qt::ArrowType arrow;
        QList<int> receivers;
    };
    const QList<int> across{2, 0, 1, 0};
    const QList<int> upright{1, 1, 0, 1};
    for (const Step &step : {Step{Qt::UpArrow, across}, Step{Qt::UpArrow, across}, Step{Qt::LeftArrow, upright},
                             Step{Qt::RightArrow, upright}, Step{Qt::DownArrow, across},
                             Step{Qt::NoArrow, {1, 0, 0, 0}}, Step{Qt::LeftArrow, upright}}) {
        view.showAtRect(QRectF(10, 20, 30, 40), step.arrow);
        QCOMPARE(geometryReceivers(view), step.receivers);
    }
    view.showAtRect(QRectF(50, 60, 30, 40), Qt::RightArrow);
    QCOMPARE(view.activationRect(), QRectF(50, 60, 30, 40));
    watch(&view);
    view.resize(220, 100);
    QCOMPARE(journal(), QStringList());
    QCOMPARE(others, 1);
    view.resize(220, 110);
    QCOMPARE(journal(), (QStringList{u"flipped left"_s, u"orthogonal"_s}));
    QVERIFY(!view.isVisible());
}

void tst_WPopupQuickView::notInFocus_data()
{
    QTest::addColumn<bool>("flips");
    QTest::newRow("flips") << true;
    QTest::newRow("does not flip") << false;
}

void tst_WPopupQuickView::notInFocus()
{
    QFETCH(const bool, flips);
    QVERIFY(loseFocus());
    const QRectF rect(390, flips ? m_screen.bottom() - 40 : 240, 20, 20);
    WPopupQuickView view(m_engine, nullptr, ViewOptions());
    view.resize(200, 100);
    watch(&view);
    view.showAtRect(rect, Qt::UpArrow);
    const QStringList expected = flips ? QStringList{u"flipped down"_s, u"orthogonal"_s} : QStringList{u"orthogonal"_s};
    QCOMPARE(journal(), expected);
    QCOMPARE(view.activationRect(), rect);
    QCOMPARE(view.position(), QPoint());
    QCOMPARE(geometryReceivers(view), (QList<int>{1, 0, 1, 0}));
    QCoreApplication::processEvents();
    QVERIFY(!view.isVisible());

    // With the focus the next change of its size shows it.
    QVERIFY(focus());
    QVERIFY(!view.isVisible());
    view.resize(220, 100);
    QVERIFY(view.isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.position(), QPoint(290, int(rect.y()) + (flips ? -100 : 20)));
}

void tst_WPopupQuickView::marksItsItem()
{
    OpenerItem item;
    OpenerItem stranger;
    {
        WPopupQuickView view;
        view.setupActivationItem(&item, u"open"_s);
        QCOMPARE(item.isOpen(), true);
        QVERIFY(view.hasActivationItem(&item));
        QVERIFY(!view.hasActivationItem(&stranger));
        QVERIFY(!view.hasActivationItem(nullptr));
    }
    QCOMPARE(item.isOpen(), false);
    QCOMPARE(journal(), (QStringList{u" marked"_s, u" unmarked"_s}));
}

void tst_WPopupQuickView::marksNothing_data()
{
    QTest::addColumn<bool>("withItem");
    QTest::addColumn<QString>("property");
    QTest::newRow("empty name") << true << u""_s;
    QTest::newRow("null name") << true << QString();
    QTest::newRow("no item") << false << u"open"_s;
    QTest::newRow("no item, unknown name") << false << u"missing"_s;
    QTest::newRow("nothing") << false << QString();
}

void tst_WPopupQuickView::marksNothing()
{
    QFETCH(const bool, withItem);
    QFETCH(const QString, property);
    OpenerItem item;
    const LogRecorder log;
    {
        WPopupQuickView view;
        view.setupActivationItem(withItem ? &item : nullptr, property);
        QVERIFY(view.hasActivationItem(withItem ? &item : nullptr));
    }
    QCOMPARE(journal(), QStringList());
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
    QCOMPARE(item.dynamicPropertyNames(), QByteArrayList());
}

void tst_WPopupQuickView::marksTheNextItem()
{
    OpenerItem first;
    OpenerItem second;
    first.setObjectName(u"first"_s);
    second.setObjectName(u"second"_s);
    {
        WPopupQuickView view;
        view.setupActivationItem(&first, u"open"_s);
        view.setupActivationItem(&second, u"open"_s);
        QVERIFY(!view.hasActivationItem(&first));
        QVERIFY(view.hasActivationItem(&second));
        QCOMPARE(journal(), (QStringList{u"first marked"_s, u"first unmarked"_s, u"second marked"_s}));
        view.setupActivationItem(nullptr, {});
        QCOMPARE(journal().last(), u"second unmarked"_s);
    }
    QCOMPARE(journal().size(), 4);
    QCOMPARE(first.isOpen(), false);
    QCOMPARE(second.isOpen(), false);
}

void tst_WPopupQuickView::givesTheFocusBack_data()
{
    QTest::addColumn<QString>("property");
    QTest::newRow("property") << u"open"_s;
    QTest::newRow("no property") << QString();
}

void tst_WPopupQuickView::givesTheFocusBack()
{
    QFETCH(const QString, property);
    Opener opener;
    QVERIFY(opener.isActive());
    auto view = std::make_unique<WPopupQuickView>(m_engine, nullptr, ViewOptions());
    view->setupActivationItem(&opener.item, property);
    const Opener other({520, 300});
    QVERIFY(other.isActive());
    QVERIFY(!opener.window.isActive());
    view.reset();
    QTRY_VERIFY(opener.window.isActive());
    QCOMPARE(opener.item.isOpen(), false);
    QCOMPARE(journal(), property.isEmpty() ? QStringList() : (QStringList{u"item marked"_s, u"item unmarked"_s}));
}

void tst_WPopupQuickView::openerDies()
{
    QVERIFY(focus());
    auto window = std::make_unique<QQuickWindow>();
    auto *item = new OpenerItem(window->contentItem());
    const LogRecorder log;
    {
        WPopupQuickView view(m_engine, nullptr, ViewOptions());
        view.setupActivationItem(item, u"open"_s);
        view.resize(200, 100);
        view.showAtRect(QRectF(390, 240, 20, 20), Qt::UpArrow);
        QVERIFY(view.isVisible());
        window.reset(); // and the item with it
        QVERIFY(view.hasActivationItem(nullptr));
        view.resize(220, 100);
        QVERIFY(view.isVisible());
    }
    QCOMPARE(journal(), QStringList{u" marked"_s});
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
}

void tst_WPopupQuickView::itemWithoutWindow()
{
    const Opener opener;
    QVERIFY(opener.isActive());
    OpenerItem item;
    {
        WPopupQuickView view;
        view.setupActivationItem(&item, u"open"_s);
    }
    QCOMPARE(item.isOpen(), false);
    QVERIFY(opener.window.isActive());
}

void tst_WPopupQuickView::unknownProperty_data()
{
    QTest::addColumn<QString>("property");
    QTest::newRow("not there") << u"missing"_s;
    QTest::newRow("read only") << u"readOnly"_s;
    QTest::newRow("not Latin 1") << u"\u0111\u00e3 m\u1edf"_s;
}

void tst_WPopupQuickView::unknownProperty()
{
    QFETCH(const QString, property);
    OpenerItem item;
    LogRecorder log;
    {
        WPopupQuickView view;
        view.setupActivationItem(&item, property);
        QString expected;
        QDebug(&expected) << "WPopupQuickView::setupActivationItem - unable to set property" << property;
        QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, expected.trimmed()}}));
        QVERIFY(view.hasActivationItem(&item));
        log.clear();
    }
    QString expected;
    QDebug(&expected) << "~WPopupQuickView - unable to set property" << property;
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, expected.trimmed()}}));
}

void tst_WPopupQuickView::setPositionFromWidget_data()
{
    QTest::addColumn<QRect>("widget");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QPoint>("expected"); // of a popup of 200 x 100
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const int right = screen.right();
    const int bottom = screen.bottom();
    QTest::newRow("inside") << QRect(300, 100, 101, 31) << 0 << QPoint(250, 130);
    QTest::newRow("right edge") << QRect(right - 49, 100, 51, 31) << 0 << QPoint(right - 200, 130);
    QTest::newRow("a pixel short of the right edge") << QRect(right - 100, 100, 1, 31) << 0 << QPoint(right - 200, 130);
    QTest::newRow("left edge") << QRect(0, 100, 51, 31) << 0 << QPoint(0, 130);
    QTest::newRow("bottom edge") << QRect(300, bottom - 30, 101, 31) << 0 << QPoint(250, bottom);
    QTest::newRow("below the bottom edge") << QRect(300, bottom - 20, 101, 31) << 0 << QPoint(0, bottom + 10);
    QTest::newRow("right edge, not aligned") << QRect(right - 50, 100, 51, 31) << 1 << QPoint(right - 125, 130);
    QTest::newRow("left edge, not aligned") << QRect(0, 100, 51, 31) << 1 << QPoint(-75, 130);
    QTest::newRow("not on a screen") << QRect(right + 500, -300, 101, 31) << 0 << QPoint(right + 450, -270);
    QTest::newRow("left of the screen") << QRect(-301, 100, 101, 31) << 0 << QPoint(-351, 130);
}

void tst_WPopupQuickView::setPositionFromWidget()
{
    QFETCH(const QRect, widget);
    QFETCH(const int, alignment);
    QFETCH(const QPoint, expected);
    // A child, so that its place is not its place on the screen.
    QWidget parent;
    parent.setGeometry(QRect(widget.topLeft() - QPoint(13, 17), QSize(400, 300)));
    auto *child = new QWidget(&parent);
    child->setGeometry(QRect(QPoint(13, 17), widget.size()));
    WPopupQuickView view;
    view.resize(200, 100);
    view.setPositionFromWidget(child, WPopupQuickView::Alignment(alignment));
    QCOMPARE(view.position(), expected);
    QCOMPARE(view.size(), QSize(200, 100));
    QVERIFY(!view.isVisible());
}

void tst_WPopupQuickView::popupStatuses_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("created");
    QTest::addColumn<QStringList>("destroyed");
    QTest::addColumn<QString>("qtWarning");
    QTest::newRow("popup controller") << u"Popup.qml"_s
                                      << QStringList{u"Creating"_s, u"Initializing"_s, u"init a,b"_s, u"callback"_s,
                                                     u"Ready"_s}
                                      << QStringList{u"DestroyedController"_s, u"DestroyedView"_s} << QString();
    QTest::newRow("other controller") << u"OtherController.qml"_s
                                      << QStringList{u"Creating"_s, u"Initializing"_s, u"callback"_s, u"Ready"_s}
                                      << QStringList{u"DestroyedController"_s, u"DestroyedView"_s} << QString();
    QTest::newRow("no controller") << u"NoController.qml"_s << QStringList{u"Creating"_s, u"Initializing"_s, u"Ready"_s}
                                   << QStringList{u"DestroyedView"_s} << QString();
    QTest::newRow("two controllers") << u"TwoControllers.qml"_s
                                     << QStringList{u"Creating"_s,
                                                    u"Error: The Qml view should have only one controller!"_s}
                                     << QStringList{u"DestroyedView"_s} << QString();
    QTest::newRow("syntax error") << u"Broken.qml"_s
                                  << QStringList{u"Creating"_s, u"Error: Unable to load the qml view!"_s}
                                  << QStringList{u"DestroyedView"_s} << u"Expected token"_s;
}

void tst_WPopupQuickView::popupStatuses()
{
    QFETCH(const QString, source);
    QFETCH(const QStringList, created);
    QFETCH(const QStringList, destroyed);
    QFETCH(const QString, qtWarning);
    const auto names = QMetaEnum::fromType<WQmlEngine::QmlViewStatus>();
    connect(m_engine, &WQmlEngine::qmlViewStatusChanged, this,
            [&](WQmlEngine::QmlViewStatus status, const QString &name, const QString &message) {
                QCOMPARE(name, source);
                journal() << QLatin1StringView(names.valueToKey(status)) + (message.isEmpty() ? ""_L1 : ": "_L1)
                        + message;
            });
    if (!qtWarning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(qtWarning, QRegularExpression::DotMatchesEverythingOption));
    const QPointer<WPopupQuickView> view = WQmlEngine::createQmlPopup(
        source, nullptr, {{u"a"_s, 1}, {u"b"_s, 2}}, [](WQmlController *) { journal() << u"callback"_s; });
    QVERIFY(view);
    QVERIFY(!view->isVisible());
    QCOMPARE(journal(), created);
    journal().clear();
    delete view;
    QCOMPARE(journal(), destroyed);
}

void tst_WPopupQuickView::popupFlags_data()
{
    QTest::addColumn<bool>("asDialog");
    QTest::addColumn<Qt::WindowFlags>("flags");
    QTest::addColumn<Qt::WindowType>("type");
    QTest::newRow("popup") << false << (Qt::Popup | Qt::FramelessWindowHint) << Qt::Popup;
    QTest::newRow("dialog") << true << (Qt::Popup | Qt::Dialog | Qt::FramelessWindowHint) << Qt::Tool;
}

void tst_WPopupQuickView::popupFlags()
{
    QFETCH(const bool, asDialog);
    QFETCH(const Qt::WindowFlags, flags);
    QFETCH(const Qt::WindowType, type);
    const std::unique_ptr<WPopupQuickView> view(
        WQmlEngine::createQmlPopup(u"Popup.qml"_s, nullptr, {}, {}, asDialog).data());
    const Qt::WindowFlags plain = WQuickView().flags();
    QCOMPARE(view->flags(), plain | flags);
    QCOMPARE(view->type(), type);
    QCOMPARE(view->color(), QColor(Qt::transparent));
}

void tst_WPopupQuickView::popupOptions()
{
    auto parent = std::make_unique<QWindow>();
    const std::unique_ptr<WPopupQuickView> view(WQmlEngine::createQmlPopup(u"Popup.qml"_s, parent.get()).data());
    const ViewOptions options = view->getViewOptions();
    QCOMPARE(options.dispatchShowEnabled, false);
    QCOMPARE(options.hideOnDeactivate, true);
    QCOMPARE(options.deleteOnClose, true);
    QCOMPARE(options.preventClose, false);
    QCOMPARE(options.focusOnActivate, false);
    QCOMPARE(options.parentWindow, parent.get());
    QCOMPARE(view->QObject::parent(), nullptr);
    QCOMPARE(view->parent(), nullptr);
    QCOMPARE(view->screen(), parent->screen());
    QCOMPARE(view->objectName(), u"Popup"_s);
    QCOMPARE(view->source(), QUrl(u"qrc:/Qml/Popup.qml"_s));
    QCOMPARE(view->resizeMode(), QQuickView::SizeRootObjectToView);
    QCOMPARE(view->engine(), m_engine);
    const QPointer<WPopupQuickView> survivor = view.get();
    parent.reset();
    QVERIFY(survivor);
    QVERIFY(view->getViewOptions().parentWindow.isNull());
}

void tst_WPopupQuickView::popupEmptySource()
{
    const LogRecorder log;
    QVERIFY(!WQmlEngine::createQmlPopup(QString()));
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{
                 {QtWarningMsg, u"Trying to create a Qml view for an empty source! This should never happen!"_s}}));
}

void tst_WPopupQuickView::popupSize_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QSize>("size");
    QTest::newRow("whole pixels") << u"Popup.qml"_s << QSize(240, 120);
    QTest::newRow("fractions") << u"OddSize.qml"_s << QSize(240, 119); // Qt cuts them off when it loads the file
    QTest::newRow("no controller") << u"NoController.qml"_s << QSize(50, 40);
}

void tst_WPopupQuickView::popupSize()
{
    QFETCH(const QString, source);
    QFETCH(const QSize, size);
    const std::unique_ptr<WPopupQuickView> view(WQmlEngine::createQmlPopup(source).data());
    QCOMPARE(view->size(), size);
    view->rootObject()->setWidth(331);
    QCOMPARE(view->width(), 331);
    view->rootObject()->setHeight(77.4);
    QCOMPARE(view->size(), QSize(331, 77));
    view->rootObject()->setHeight(80.5);
    QCOMPARE(view->size(), QSize(331, 81));
}

void tst_WPopupQuickView::popupKnowsItsController_data()
{
    QTest::addColumn<bool>("withCallback");
    QTest::newRow("callback") << true;
    QTest::newRow("no callback") << false;
}

void tst_WPopupQuickView::popupKnowsItsController()
{
    QFETCH(const bool, withCallback);
    int receivers = -1;
    const auto callback = [&receivers](WQmlController *controller) {
        for (QWindow *window : QGuiApplication::topLevelWindows()) {
            auto *view = qobject_cast<WPopupQuickView *>(window);
            if (!view || !view->rootObject()->children().contains(controller))
                continue;
            receivers = (view->*&Opened::receivers)(SIGNAL(arrowFlipped(Qt::ArrowType)));
            Q_EMIT view->arrowFlipped(Qt::RightArrow);
        }
    };
    const std::unique_ptr<WPopupQuickView> view(
        withCallback ? WQmlEngine::createQmlPopup(u"Popup.qml"_s, nullptr, {}, callback).data()
                     : WQmlEngine::createQmlPopup(u"Popup.qml"_s).data());
    auto *controller = view->rootObject()->findChild<WQmlPopupController *>();
    QVERIFY(controller);
    if (withCallback) {
        QCOMPARE(receivers, 1);
        QCOMPARE(controller->arrowAnchor(), WQmlBalloon::Right);
    }
    Q_EMIT view->arrowFlipped(Qt::LeftArrow);
    QCOMPARE(controller->arrowAnchor(), WQmlBalloon::Left);
    view->setControllerView(); // once more changes nothing
    QCOMPARE((view.get()->*&Opened::receivers)(SIGNAL(arrowFlipped(Qt::ArrowType))), 1);
}

void tst_WPopupQuickView::popupWithAnotherController()
{
    for (const QString &source : {u"OtherController.qml"_s, u"NoController.qml"_s}) {
        const std::unique_ptr<WPopupQuickView> view(WQmlEngine::createQmlPopup(source).data());
        view->setControllerView();
        QCOMPARE((view.get()->*&Opened::receivers)(SIGNAL(arrowFlipped(Qt::ArrowType))), 0);
        QCOMPARE((view.get()->*&Opened::receivers)(SIGNAL(arrowOrthogonalChanged())), 0);
    }
    WPopupQuickView empty;
    empty.setControllerView();
    QCOMPARE((empty.*&Opened::receivers)(SIGNAL(arrowFlipped(Qt::ArrowType))), 0);
}

void tst_WPopupQuickView::popupLoop()
{
    QVERIFY(focus());
    const QPointer<WPopupQuickView> view = WQmlEngine::createQmlPopup(u"Popup.qml"_s);
    auto *controller = view->rootObject()->findChild<WQmlPopupController *>();
    view->showAtRect(QRectF(m_screen.right() - 19, m_screen.bottom() - 19, 20, 20), Qt::UpArrow);
    QVERIFY(view->isVisible());
    QCOMPARE(controller->arrowAnchor(), WQmlBalloon::Bottom);
    QCOMPARE(controller->arrowOffset(), 110);
    view->rootObject()->setWidth(300);
    QTRY_COMPARE(controller->arrowOffset(), 140);
    QTRY_COMPARE(view->geometry(), QRect(m_screen.right() - 299, m_screen.bottom() - 139, 300, 120));
    delete view;
}

void tst_WPopupQuickView::popupHidesWithActivation()
{
    Opener opener;
    QVERIFY(opener.isActive());
    const QPointer<WPopupQuickView> view = WQmlEngine::createQmlPopup(u"Popup.qml"_s, &opener.window);
    journal().clear();
    view->setupActivationItem(&opener.item, u"open"_s);
    view->showAtRect(QRectF(390, 240, 20, 20), Qt::UpArrow);
    QVERIFY(QTest::qWaitForWindowExposed(view));
    connect(view, &QWindow::visibleChanged, this,
            [](bool visible) { journal() << (visible ? u"shown"_s : u"hidden"_s); });
    connect(view, &WQuickView::aboutToClose, this, [] { journal() << u"aboutToClose"_s; });
    QVERIFY(view->isVisible());
    {
        const Opener other({520, 10});
        QTRY_VERIFY(view.isNull());
        QCOMPARE(journal(), (QStringList{u"item marked"_s, u"hidden"_s, u"aboutToClose"_s, u"item unmarked"_s}));
        QTRY_VERIFY(opener.window.isActive());
    }
}

void tst_WPopupQuickView::popupHidesWhenParentMoves_data()
{
    QTest::addColumn<QPoint>("by");
    QTest::newRow("sideways") << QPoint(-20, 0);
    QTest::newRow("downwards") << QPoint(0, 20);
}

void tst_WPopupQuickView::popupHidesWhenParentMoves()
{
    QFETCH(const QPoint, by);
    Opener opener;
    QVERIFY(opener.isActive());
    const QPointer<WPopupQuickView> view = WQmlEngine::createQmlPopup(u"Popup.qml"_s, &opener.window);
    view->showAtRect(QRectF(390, 240, 20, 20), Qt::UpArrow);
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QVERIFY(view->isVisible());
    opener.window.setPosition(opener.window.position() + by);
    QTRY_VERIFY(view.isNull());
}

LUMAKIT_TEST_MAIN(tst_WPopupQuickView)
#include "tst_wpopupquickview.moc"
