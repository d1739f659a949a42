#include <TestCase.h>
#include <WPopupQuickView.h>
#include <WQmlPopupController.h>

#include <QMetaMethod>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>
#include <QStandardItemModel>

#include <memory>
#include <new>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Properties{"takesModelOwnership", "arrowOffset", "arrowSize", "arrowAlignment",
                                "arrowAnchor",         "model",       "themeType"};

// Counts each of the controller's signals.
class Spies
{
public:
    explicit Spies(WQmlPopupController *controller)
    {
        for (const char *property : Properties) {
            const int index = WQmlPopupController::staticMetaObject.indexOfProperty(property);
            const QMetaMethod notify = WQmlPopupController::staticMetaObject.property(index).notifySignal();
            m_spies.push_back(std::make_unique<QSignalSpy>(controller, notify));
        }
    }

    // The properties whose signal came since the last call, once for each time.
    QByteArrayList take()
    {
        QByteArrayList changed;
        for (size_t i = 0; i < m_spies.size(); ++i) {
            changed += QByteArrayList(m_spies[i]->count(), Properties.at(i));
            m_spies[i]->clear();
        }
        return changed;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

// Writes through a setter, and the property that it changes.
struct Setter
{
    const char *property;
    void (*call)(WQmlPopupController &);
    QVariant value;
};

enum class Held { Object, Derived, Guarded, NoObject, VanishedGuarded, Number, Text, List, ListOfObjects, Nothing };

} // namespace

Q_DECLARE_METATYPE(Setter)
Q_DECLARE_METATYPE(Held)

class tst_WQmlPopupController : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaObject();
    void defaults();
    void parent();

    void setters_data();
    void setters();
    void themeTypeIsNotCompared();
    void propertyWrites_data();
    void propertyWrites();
    void models_data();
    void models();
    void qmlWrites();

    void flipArrow_data();
    void flipArrow();
    void adjustArrowOffset_data();
    void adjustArrowOffset();
    void adjustsForTheAnchorThatItHolds();
    void withoutView();

    void followsItsView();
    void sameViewTwice();
    void otherView();
    void noViewAnyMore();
    void viewDies();
    void forgetsEveryConnectionOfTheFirstView();
    void loopOfFlipAndSlide_data();
    void loopOfFlipAndSlide();

    void modelOwnership_data();
    void modelOwnership();
    void modelIsDeletedLater();
    void modelThatWasDeletedBefore_data();
    void modelThatWasDeletedBefore();
    void replacedModelSurvives();

private:
    QRectF m_screen;
};

void tst_WQmlPopupController::initTestCase()
{
    qmlRegisterType<WQmlPopupController>("LumakitTests", 1, 0, "WQmlPopupController");
    qmlRegisterType<WQmlBalloon>("LumakitTests", 1, 0, "WBalloon");
    m_screen = QGuiApplication::primaryScreen()->availableGeometry();
    QCOMPARE(m_screen, QRectF(0, 0, 800, 800));
}

void tst_WQmlPopupController::metaObject()
{
    const QMetaObject &meta = WQmlPopupController::staticMetaObject;
    QCOMPARE(meta.superClass(), &WQmlController::staticMetaObject);

    QByteArrayList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QVERIFY(property.isWritable());
        QVERIFY(property.hasNotifySignal());
        properties << property.typeName() + QByteArray(" ") + property.name() + " "
                + property.notifySignal().methodSignature();
    }
    QCOMPARE(properties,
             (QByteArrayList{"bool takesModelOwnership takesModelOwnershipChanged()",
                             "int arrowOffset arrowOffsetChanged()", "int arrowSize arrowSizeChanged()",
                             "WQmlBalloon::ArrowAlignment arrowAlignment arrowAlignmentChanged()",
                             "WQmlBalloon::ArrowAnchor arrowAnchor arrowAnchorChanged()",
                             "QVariant model modelChanged()", "QString themeType themeTypeChanged()"}));

    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        QCOMPARE(method.access(), QMetaMethod::Public);
        methods << (method.methodType() == QMetaMethod::Signal ? "signal " : "slot ") + method.methodSignature();
    }
    QCOMPARE(
        methods,
        (QByteArrayList{"signal arrowOffsetChanged()", "signal arrowSizeChanged()", "signal arrowAlignmentChanged()",
                        "signal arrowAnchorChanged()", "signal modelChanged()", "signal takesModelOwnershipChanged()",
                        "signal themeTypeChanged()", "slot adjustArrowOffset()", "slot flipArrow(Qt::ArrowType)"}));
}

void tst_WQmlPopupController::defaults()
{
    WQmlPopupController controller;
    QCOMPARE(controller.property("takesModelOwnership"), QVariant(false));
    QCOMPARE(controller.arrowOffset(), 0);
    QCOMPARE(controller.arrowSize(), 0);
    QCOMPARE(controller.arrowAlignment(), WQmlBalloon::CenterAlignment);
    QCOMPARE(controller.arrowAnchor(), WQmlBalloon::Top);
    QVERIFY(!controller.property("model").isValid());
    QCOMPARE(controller.property("themeType"), QVariant(u"global"_s));
    QCOMPARE(controller.property("arrowOffset"), QVariant(0));
    QCOMPARE(controller.property("arrowSize"), QVariant(0));
    QCOMPARE(controller.property("arrowAlignment").toInt(), 1);
    QCOMPARE(controller.property("arrowAnchor").toInt(), 1);
}

void tst_WQmlPopupController::parent()
{
    QObject owner;
    const QPointer<WQmlPopupController> controller = new WQmlPopupController(&owner);
    QCOMPARE(controller->parent(), &owner);
    QCOMPARE(WQmlPopupController().parent(), nullptr);
}

void tst_WQmlPopupController::setters_data()
{
    QTest::addColumn<Setter>("setter");
    const auto add = [](const char *property, auto call, const QVariant &value, const char *name) {
        QTest::newRow(name) << Setter{property, call, value};
    };
    add("arrowOffset", [](WQmlPopupController &c) { c.setArrowOffset(12); }, 12, "offset");
    add("arrowOffset", [](WQmlPopupController &c) { c.setArrowOffset(-7); }, -7, "offset, negative");
    add("arrowSize", [](WQmlPopupController &c) { c.setArrowSize(8); }, 8, "size");
    add("arrowSize", [](WQmlPopupController &c) { c.setArrowSize(-1); }, -1, "size, negative");
    add(
        "arrowAnchor", [](WQmlPopupController &c) { c.setArrowAnchor(WQmlBalloon::None); },
        QVariant::fromValue(WQmlBalloon::None), "anchor, none");
    add(
        "arrowAnchor", [](WQmlPopupController &c) { c.setArrowAnchor(WQmlBalloon::Bottom); },
        QVariant::fromValue(WQmlBalloon::Bottom), "anchor, bottom");
    add(
        "arrowAnchor", [](WQmlPopupController &c) { c.setArrowAnchor(WQmlBalloon::Left); },
        QVariant::fromValue(WQmlBalloon::Left), "anchor, left");
    add(
        "arrowAnchor", [](WQmlPopupController &c) { c.setArrowAnchor(WQmlBalloon::Right); },
        QVariant::fromValue(WQmlBalloon::Right), "anchor, right");
    add(
        "arrowAnchor", [](WQmlPopupController &c) { c.flipArrow(Qt::RightArrow); },
        QVariant::fromValue(WQmlBalloon::Right), "flipped arrow");
    add("model", [](WQmlPopupController &c) { c.setModel(u"text"_s); }, u"text"_s, "model");
    add(
        "model", [](WQmlPopupController &c) { c.setModel(QVariantList{1, u"two"_s}); }, QVariantList{1, u"two"_s},
        "model, list");
}

void tst_WQmlPopupController::setters()
{
    QFETCH(const Setter, setter);
    WQmlPopupController controller;
    Spies spies(&controller);
    setter.call(controller);
    QCOMPARE(controller.property(setter.property), setter.value);
    QCOMPARE(spies.take(), QByteArrayList{setter.property});
    setter.call(controller);
    QCOMPARE(controller.property(setter.property), setter.value);
    QCOMPARE(spies.take(), QByteArrayList());
}

void tst_WQmlPopupController::themeTypeIsNotCompared()
{
    WQmlPopupController controller;
    Spies spies(&controller);
    controller.setThemeType(u"global"_s);
    QCOMPARE(spies.take(), QByteArrayList{"themeType"});
    controller.setThemeType(u"meeting"_s);
    QCOMPARE(controller.property("themeType"), QVariant(u"meeting"_s));
    controller.setThemeType(u"meeting"_s);
    QCOMPARE(spies.take(), (QByteArrayList{"themeType", "themeType"}));
    controller.setThemeType({});
    QCOMPARE(controller.property("themeType"), QVariant(QString()));
    QCOMPARE(spies.take(), QByteArrayList{"themeType"});
}

void tst_WQmlPopupController::propertyWrites_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("same"); // what a new controller has
    QTest::addColumn<QVariant>("other");
    QTest::newRow("takesModelOwnership") << QByteArray("takesModelOwnership") << QVariant(false) << QVariant(true);
    QTest::newRow("arrowOffset") << QByteArray("arrowOffset") << QVariant(0) << QVariant(-30);
    QTest::newRow("arrowSize") << QByteArray("arrowSize") << QVariant(0) << QVariant(9);
    QTest::newRow("arrowAlignment") << QByteArray("arrowAlignment") << QVariant::fromValue(WQmlBalloon::CenterAlignment)
                                    << QVariant::fromValue(WQmlBalloon::BottomAlignment);
    QTest::newRow("arrowAnchor") << QByteArray("arrowAnchor") << QVariant::fromValue(WQmlBalloon::Top)
                                 << QVariant::fromValue(WQmlBalloon::Left);
    QTest::newRow("model") << QByteArray("model") << QVariant() << QVariant(QStringList{u"a"_s});
    QTest::newRow("themeType") << QByteArray("themeType") << QVariant(u"global"_s) << QVariant(u"meeting"_s);
}

void tst_WQmlPopupController::propertyWrites()
{
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, same);
    QFETCH(const QVariant, other);
    WQmlPopupController controller;
    Spies spies(&controller);
    QVERIFY(controller.setProperty(property, same));
    QCOMPARE(spies.take(), QByteArrayList());
    QVERIFY(controller.setProperty(property, other));
    QCOMPARE(controller.property(property), other);
    QCOMPARE(spies.take(), QByteArrayList{property});
    QVERIFY(controller.setProperty(property, other));
    QCOMPARE(spies.take(), QByteArrayList());
    QVERIFY(controller.setProperty(property, same));
    QCOMPARE(controller.property(property), same);
    QCOMPARE(spies.take(), QByteArrayList{property});
}

void tst_WQmlPopupController::models_data()
{
    static QObject one;
    static QObject two;
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");
    QTest::addColumn<bool>("different");
    QTest::newRow("number and the same") << QVariant(1) << QVariant(1) << false;
    QTest::newRow("number and another") << QVariant(1) << QVariant(2) << true;
    QTest::newRow("number and text") << QVariant(1) << QVariant(u"one"_s) << true;
    QTest::newRow("nothing and nothing") << QVariant() << QVariant() << false;
    QTest::newRow("nothing and an empty text") << QVariant() << QVariant(QString()) << true;
    QTest::newRow("text and nothing") << QVariant(u"a"_s) << QVariant() << true;
    QTest::newRow("equal lists") << QVariant(QVariantList{1}) << QVariant(QVariantList{1}) << false;
    QTest::newRow("object and the same") << QVariant::fromValue(&one) << QVariant::fromValue(&one) << false;
    QTest::newRow("object and another") << QVariant::fromValue(&one) << QVariant::fromValue(&two) << true;
}

void tst_WQmlPopupController::models()
{
    QFETCH(const QVariant, first);
    QFETCH(const QVariant, second);
    QFETCH(const bool, different);
    WQmlPopupController controller;
    controller.setModel(first);
    Spies spies(&controller);
    controller.setModel(second);
    QCOMPARE(spies.take(), different ? QByteArrayList{"model"} : QByteArrayList());
    QCOMPARE(controller.property("model"), second);
}

void tst_WQmlPopupController::qmlWrites()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\n"
                      "import LumakitTests 1.0\n"
                      "WQmlPopupController {\n"
                      "    property string log\n"
                      "    function write() {\n"
                      "        themeType = 'global'; themeType = 'meeting'; themeType = 'meeting';\n"
                      "        arrowAnchor = WBalloon.Top; arrowAnchor = WBalloon.Right;\n"
                      "        arrowAlignment = WBalloon.TopAlignment;\n"
                      "        arrowOffset = 3; arrowOffset = 3; arrowSize = 4;\n"
                      "        takesModelOwnership = true;\n"
                      "    }\n"
                      "    onThemeTypeChanged: log += 'theme '\n"
                      "    onArrowAnchorChanged: log += 'anchor '\n"
                      "    onArrowAlignmentChanged: log += 'alignment '\n"
                      "    onArrowOffsetChanged: log += 'offset '\n"
                      "    onArrowSizeChanged: log += 'size '\n"
                      "    onTakesModelOwnershipChanged: log += 'ownership '\n"
                      "}\n",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    auto *controller = qobject_cast<WQmlPopupController *>(object.get());
    QVERIFY2(controller, qPrintable(component.errorString()));
    QVERIFY(QMetaObject::invokeMethod(controller, "write"));
    QCOMPARE(controller->property("log").toString(), u"theme anchor alignment offset size ownership "_s);
    QCOMPARE(controller->arrowAnchor(), WQmlBalloon::Right);
    QCOMPARE(controller->arrowAlignment(), WQmlBalloon::TopAlignment);
    QCOMPARE(controller->arrowOffset(), 3);
    QCOMPARE(controller->arrowSize(), 4);
}

void tst_WQmlPopupController::flipArrow_data()
{
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<WQmlBalloon::ArrowAnchor>("anchor");
    QTest::newRow("none") << Qt::NoArrow << WQmlBalloon::None;
    QTest::newRow("up") << Qt::UpArrow << WQmlBalloon::Top;
    QTest::newRow("down") << Qt::DownArrow << WQmlBalloon::Bottom;
    QTest::newRow("left") << Qt::LeftArrow << WQmlBalloon::Left;
    QTest::newRow("right") << Qt::RightArrow << WQmlBalloon::Right;
    QTest::newRow("unknown") << Qt::ArrowType(5) << WQmlBalloon::None;
    QTest::newRow("largest of the bits") << Qt::ArrowType(7) << WQmlBalloon::None;
}

void tst_WQmlPopupController::flipArrow()
{
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const WQmlBalloon::ArrowAnchor, anchor);
    WQmlPopupController controller;
    Spies spies(&controller);
    controller.flipArrow(arrow);
    QCOMPARE(controller.arrowAnchor(), anchor);
    QCOMPARE(spies.take(), anchor == WQmlBalloon::Top ? QByteArrayList() : QByteArrayList{"arrowAnchor"});
    controller.flipArrow(arrow);
    QCOMPARE(spies.take(), QByteArrayList());
}

void tst_WQmlPopupController::adjustArrowOffset_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<WQmlBalloon::ArrowAnchor>("anchor");
    QTest::addColumn<int>("expected"); // of a popup of 300 x 200 on a screen of 800 x 800
    QTest::newRow("top, inside") << QRectF(400, 100, 10, 10) << WQmlBalloon::Top << 0;
    QTest::newRow("top, right edge") << QRectF(790, 100, 10, 10) << WQmlBalloon::Top << 145;
    QTest::newRow("top, left edge") << QRectF(0, 100, 10, 10) << WQmlBalloon::Top << -145;
    QTest::newRow("bottom, right edge") << QRectF(790, 700, 10, 10) << WQmlBalloon::Bottom << 145;
    QTest::newRow("bottom, left edge") << QRectF(10, 700, 10, 10) << WQmlBalloon::Bottom << -135;
    QTest::newRow("left, top edge") << QRectF(100, 0, 10, 10) << WQmlBalloon::Left << -95;
    QTest::newRow("left, bottom edge") << QRectF(100, 790, 10, 10) << WQmlBalloon::Left << 95;
    QTest::newRow("right, top edge") << QRectF(700, 10, 10, 10) << WQmlBalloon::Right << -85;
    QTest::newRow("right, bottom edge") << QRectF(700, 780, 10, 10) << WQmlBalloon::Right << 85;
    QTest::newRow("none, right edge") << QRectF(790, 100, 10, 10) << WQmlBalloon::None << 0;
}

void tst_WQmlPopupController::adjustArrowOffset()
{
    QFETCH(const QRectF, rect);
    QFETCH(const WQmlBalloon::ArrowAnchor, anchor);
    QFETCH(const int, expected);
    WPopupQuickView view;
    view.resize(300, 200);
    view.setActivationRectAndShow(rect, Qt::NoArrow);
    WQmlPopupController controller;
    controller.setArrowAnchor(anchor);
    controller.setPopupQuickView(&view);
    QCOMPARE(controller.arrowOffset(), 0); // not before it is asked for
    Spies spies(&controller);
    controller.adjustArrowOffset();
    QCOMPARE(controller.arrowOffset(), expected);
    QCOMPARE(spies.take(), expected ? QByteArrayList{"arrowOffset"} : QByteArrayList());
    controller.adjustArrowOffset();
    QCOMPARE(spies.take(), QByteArrayList());
}

void tst_WQmlPopupController::adjustsForTheAnchorThatItHolds()
{
    WPopupQuickView view;
    view.resize(300, 200);
    WQmlPopupController controller;
    controller.setPopupQuickView(&view);
    view.setActivationRectAndShow(QRectF(790, 0, 10, 10), Qt::NoArrow); // top right
    QCOMPARE(controller.arrowOffset(), 145);
    controller.setArrowAnchor(WQmlBalloon::Right);
    QCOMPARE(controller.arrowOffset(), 145);
    Q_EMIT view.arrowOrthogonalChanged();
    QCOMPARE(controller.arrowOffset(), -95);
    controller.setArrowAnchor(WQmlBalloon::None);
    Q_EMIT view.arrowOrthogonalChanged();
    QCOMPARE(controller.arrowOffset(), 0);
}

void tst_WQmlPopupController::withoutView()
{
    WQmlPopupController controller;
    controller.setArrowOffset(5);
    controller.adjustArrowOffset();
    controller.setPopupQuickView(nullptr);
    controller.adjustArrowOffset();
    QCOMPARE(controller.arrowOffset(), 5);
}

void tst_WQmlPopupController::followsItsView()
{
    WPopupQuickView view;
    view.resize(300, 200);
    WQmlPopupController controller;
    Spies spies(&controller);
    controller.setPopupQuickView(&view);
    QCOMPARE(spies.take(), QByteArrayList());
    Q_EMIT view.arrowFlipped(Qt::LeftArrow);
    QCOMPARE(controller.arrowAnchor(), WQmlBalloon::Left);
    QCOMPARE(spies.take(), QByteArrayList{"arrowAnchor"});
    Q_EMIT view.arrowOrthogonalChanged(); // the rectangle is at the origin, half of the popup above it
    QCOMPARE(controller.arrowOffset(), -100);
    QCOMPARE(spies.take(), QByteArrayList{"arrowOffset"});
}

void tst_WQmlPopupController::sameViewTwice()
{
    struct Counting : WQmlPopupController
    {
        int receivedFrom(const WPopupQuickView &view, const char *signal) const
        {
            struct Opened : QObject
            {
                using QObject::receivers;
            };
            return (view.*&Opened::receivers)(signal);
        }
    };
    WPopupQuickView view;
    Counting controller;
    for (int i = 0; i < 3; ++i)
        controller.setPopupQuickView(&view);
    QCOMPARE(controller.receivedFrom(view, SIGNAL(arrowFlipped(Qt::ArrowType))), 1);
    QCOMPARE(controller.receivedFrom(view, SIGNAL(arrowOrthogonalChanged())), 1);
    controller.setPopupQuickView(nullptr);
    QCOMPARE(controller.receivedFrom(view, SIGNAL(arrowFlipped(Qt::ArrowType))), 0);
    QCOMPARE(controller.receivedFrom(view, SIGNAL(arrowOrthogonalChanged())), 0);
}

void tst_WQmlPopupController::otherView()
{
    WPopupQuickView first;
    WPopupQuickView second;
    first.resize(300, 200);
    second.resize(100, 60);
    WQmlPopupController controller;
    controller.setPopupQuickView(&first);
    controller.setPopupQuickView(&second);
    Spies spies(&controller);
    Q_EMIT first.arrowFlipped(Qt::LeftArrow);
    Q_EMIT first.arrowOrthogonalChanged();
    QCOMPARE(spies.take(), QByteArrayList());
    Q_EMIT second.arrowOrthogonalChanged();
    QCOMPARE(controller.arrowOffset(), -50);
    Q_EMIT second.arrowFlipped(Qt::DownArrow);
    QCOMPARE(controller.arrowAnchor(), WQmlBalloon::Bottom);
    QCOMPARE(spies.take(), (QByteArrayList{"arrowOffset", "arrowAnchor"}));

    controller.setPopupQuickView(&first); // and back
    Q_EMIT second.arrowFlipped(Qt::UpArrow);
    QCOMPARE(spies.take(), QByteArrayList());
    Q_EMIT first.arrowOrthogonalChanged();
    QCOMPARE(controller.arrowOffset(), -150);
}

void tst_WQmlPopupController::noViewAnyMore()
{
    WPopupQuickView view;
    view.resize(300, 200);
    WQmlPopupController controller;
    controller.setPopupQuickView(&view);
    controller.setPopupQuickView(nullptr);
    Spies spies(&controller);
    Q_EMIT view.arrowFlipped(Qt::LeftArrow);
    Q_EMIT view.arrowOrthogonalChanged();
    controller.adjustArrowOffset();
    QCOMPARE(spies.take(), QByteArrayList());
}

void tst_WQmlPopupController::viewDies()
{
    auto view = std::make_unique<WPopupQuickView>();
    view->resize(300, 200);
    WQmlPopupController controller;
    controller.setPopupQuickView(view.get());
    controller.adjustArrowOffset();
    QCOMPARE(controller.arrowOffset(), -150);
    view.reset();
    Spies spies(&controller);
    controller.adjustArrowOffset();
    QCOMPARE(spies.take(), QByteArrayList());
    WPopupQuickView next;
    next.resize(100, 60);
    controller.setPopupQuickView(&next);
    controller.adjustArrowOffset();
    QCOMPARE(controller.arrowOffset(), -50);
}

void tst_WQmlPopupController::forgetsEveryConnectionOfTheFirstView()
{
    WPopupQuickView first;
    WPopupQuickView second;
    WQmlPopupController controller;
    controller.setPopupQuickView(&first);
    int heard = 0;
    connect(&first, &QWindow::windowTitleChanged, &controller, [&heard] { ++heard; });
    int others = 0;
    connect(&first, &QWindow::windowTitleChanged, this, [&others] { ++others; });
    first.setTitle(u"one"_s);
    QCOMPARE(heard, 1);
    controller.setPopupQuickView(&second);
    first.setTitle(u"two"_s);
    QCOMPARE(heard, 1);
    QCOMPARE(others, 2);
}

void tst_WQmlPopupController::loopOfFlipAndSlide_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<Qt::ArrowType>("arrow");
    QTest::addColumn<WQmlBalloon::ArrowAnchor>("anchor");
    QTest::addColumn<int>("offset");
    QTest::newRow("up, inside") << QRectF(400, 400, 10, 10) << Qt::UpArrow << WQmlBalloon::Top << 0;
    QTest::newRow("up, bottom right") << QRectF(790, 790, 10, 10) << Qt::UpArrow << WQmlBalloon::Bottom << 145;
    QTest::newRow("up, bottom left") << QRectF(0, 790, 10, 10) << Qt::UpArrow << WQmlBalloon::Bottom << -145;
    QTest::newRow("down, top right") << QRectF(790, 0, 10, 10) << Qt::DownArrow << WQmlBalloon::Top << 145;
    QTest::newRow("down, top left") << QRectF(0, 0, 10, 10) << Qt::DownArrow << WQmlBalloon::Top << -145;
    QTest::newRow("left, top right") << QRectF(790, 0, 10, 10) << Qt::LeftArrow << WQmlBalloon::Right << -95;
    QTest::newRow("left, bottom right") << QRectF(790, 790, 10, 10) << Qt::LeftArrow << WQmlBalloon::Right << 95;
    QTest::newRow("right, top left") << QRectF(0, 0, 10, 10) << Qt::RightArrow << WQmlBalloon::Left << -95;
    QTest::newRow("right, bottom left") << QRectF(0, 790, 10, 10) << Qt::RightArrow << WQmlBalloon::Left << 95;
}

void tst_WQmlPopupController::loopOfFlipAndSlide()
{
    QFETCH(const QRectF, rect);
    QFETCH(const Qt::ArrowType, arrow);
    QFETCH(const WQmlBalloon::ArrowAnchor, anchor);
    QFETCH(const int, offset);
    WPopupQuickView view;
    view.resize(300, 200);
    WQmlPopupController controller;
    controller.setArrowAnchor(WQmlBalloon::arrowAnchorFromArrowType(arrow));
    controller.setPopupQuickView(&view);
    view.showAtRect(rect, arrow);
    QCOMPARE(controller.arrowAnchor(), anchor);
    QCOMPARE(controller.arrowOffset(), offset);
}

void tst_WQmlPopupController::modelOwnership_data()
{
    QTest::addColumn<Held>("held");
    QTest::addColumn<bool>("owned");
    QTest::addColumn<bool>("deleted");
    QTest::newRow("object, owned") << Held::Object << true << true;
    QTest::newRow("object, not owned") << Held::Object << false << false;
    QTest::newRow("derived object, owned") << Held::Derived << true << true;
    QTest::newRow("derived object, not owned") << Held::Derived << false << false;
    QTest::newRow("guarded object, owned") << Held::Guarded << true << true;
    QTest::newRow("guarded object, not owned") << Held::Guarded << false << false;
    QTest::newRow("null object, owned") << Held::NoObject << true << false;
    QTest::newRow("guarded object that vanished, owned") << Held::VanishedGuarded << true << false;
    QTest::newRow("number, owned") << Held::Number << true << false;
    QTest::newRow("text, owned") << Held::Text << true << false;
    QTest::newRow("list, owned") << Held::List << true << false;
    QTest::newRow("list of objects, owned") << Held::ListOfObjects << true << false;
    QTest::newRow("nothing, owned") << Held::Nothing << true << false;
}

void tst_WQmlPopupController::modelOwnership()
{
    QFETCH(const Held, held);
    QFETCH(const bool, owned);
    QFETCH(const bool, deleted);
    QStandardItemModel *model = new QStandardItemModel(this);
    const QPointer<QObject> guard = model;
    QSignalSpy destroyed(model, &QObject::destroyed);
    QVariant value;
    switch (held) {
    case Held::Object:
        value = QVariant::fromValue<QObject *>(model);
        break;
    case Held::Derived:
        value = QVariant::fromValue(model);
        break;
    case Held::Guarded:
        value = QVariant::fromValue(QPointer<QStandardItemModel>(model));
        break;
    case Held::NoObject:
        value = QVariant::fromValue<QObject *>(nullptr);
        break;
    case Held::VanishedGuarded: {
        QObject other;
        value = QVariant::fromValue(QPointer<QObject>(&other));
        break;
    }
    case Held::Number:
        value = 42;
        break;
    case Held::Text:
        value = u"text"_s;
        break;
    case Held::List:
        value = QVariantList{1, 2};
        break;
    case Held::ListOfObjects:
        value = QVariantList{QVariant::fromValue<QObject *>(model)};
        break;
    case Held::Nothing:
        break;
    }
    auto controller = std::make_unique<WQmlPopupController>();
    controller->setModel(value);
    controller->setProperty("takesModelOwnership", owned);
    QVERIFY(guard);
    controller.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(guard.isNull(), deleted);
    QCOMPARE(destroyed.count(), deleted ? 1 : 0);
    delete guard;
}

void tst_WQmlPopupController::modelIsDeletedLater()
{
    const QPointer<QObject> model = new QObject(this);
    auto controller = std::make_unique<WQmlPopupController>();
    controller->setProperty("takesModelOwnership", true); // before the model, and through the property
    controller->setProperty("model", QVariant::fromValue<QObject *>(model));
    controller.reset();
    QVERIFY(model);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!model);
}

void tst_WQmlPopupController::modelThatWasDeletedBefore_data()
{
    QTest::addColumn<bool>("byProperty");
    QTest::newRow("setter") << false;
    QTest::newRow("property") << true;
}

// Another object may stand where the model was; it is none of the controller's.
void tst_WQmlPopupController::modelThatWasDeletedBefore()
{
    QFETCH(const bool, byProperty);
    struct Filter : QObject
    {
        bool eventFilter(QObject *, QEvent *event) override
        {
            deletions += event->type() == QEvent::DeferredDelete;
            return event->type() == QEvent::DeferredDelete; // not allocated one by one
        }
        int deletions = 0;
    } filter;
    alignas(QObject) std::byte place[sizeof(QObject)];
    auto *model = new (place) QObject;
    auto controller = std::make_unique<WQmlPopupController>();
    controller->setProperty("takesModelOwnership", true);
    const QVariant value = QVariant::fromValue<QObject *>(model);
    if (byProperty)
        controller->setProperty("model", value);
    else
        controller->setModel(value);
    model->~QObject();
    auto *stranger = new (place) QObject;
    stranger->installEventFilter(&filter);
    controller.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    stranger->~QObject();
    QCOMPARE(filter.deletions, 0);
}

// Only the model that the controller holds at its end is its own.
void tst_WQmlPopupController::replacedModelSurvives()
{
    const std::unique_ptr<QObject> first = std::make_unique<QObject>();
    const QPointer<QObject> guard = first.get();
    const QPointer<QObject> second = new QObject(this);
    auto controller = std::make_unique<WQmlPopupController>();
    controller->setProperty("takesModelOwnership", true);
    controller->setModel(QVariant::fromValue(first.get()));
    controller->setModel(QVariant::fromValue(second.data()));
    controller.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(guard);
    QVERIFY(!second);
}

LUMAKIT_TEST_MAIN(tst_WQmlPopupController)
#include "tst_wqmlpopupcontroller.moc"
