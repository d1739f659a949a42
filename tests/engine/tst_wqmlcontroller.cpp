#include <TestCase.h>
#include <WQmlController.h>

#include <QMetaMethod>
#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

// One that leaves init() alone.
class QuietController : public WQmlController
{
    Q_OBJECT

public:
    using WQmlController::WQmlController;
};

class ListeningController : public WQmlController
{
    Q_OBJECT

public:
    using WQmlController::WQmlController;

    void init(const QMap<QString, QVariant> &initialProperties) override { received << initialProperties; }

    QList<QVariantMap> received;
};

class tst_WQmlController : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void parents();
    void commonBase();
    void metaObject();
    void baseInit_data();
    void baseInit();
    void initIsVirtual();
    void initFromQml();
    void translation();
};

void tst_WQmlController::initTestCase()
{
    qmlRegisterType<QuietController>("LumakitTests", 1, 0, "QuietController");
    qmlRegisterType<ListeningController>("LumakitTests", 1, 0, "ListeningController");
}

void tst_WQmlController::parents()
{
    QObject owner;
    QPointer<WQmlController> controller = new WQmlController(&owner);
    QPointer<WObject> object = new WObject(&owner);
    QCOMPARE(controller->parent(), &owner);
    QCOMPARE(object->parent(), &owner);
    delete object;
    QCOMPARE(owner.children(), QObjectList{controller});

    const WQmlController free;
    QCOMPARE(free.parent(), nullptr);
}

// The common base adds nothing to QObject's meta-object.
void tst_WQmlController::commonBase()
{
    const WObject object;
    QCOMPARE(object.metaObject(), &QObject::staticMetaObject);
    WQmlController controller;
    QVERIFY(dynamic_cast<WObject *>(&controller));
}

void tst_WQmlController::metaObject()
{
    const QMetaObject &meta = WQmlController::staticMetaObject;
    QCOMPARE(meta.className(), "WQmlController");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);

    const QMetaMethod init = meta.method(meta.methodOffset());
    QCOMPARE(init.name(), "init"_ba);
    QCOMPARE(init.methodType(), QMetaMethod::Method);
    QCOMPARE(init.access(), QMetaMethod::Public);
    QCOMPARE(init.returnMetaType(), QMetaType::fromType<void>());
    QCOMPARE(init.parameterCount(), 1);
    QCOMPARE(init.parameterMetaType(0), QMetaType::fromType<QVariantMap>());
    QCOMPARE(init.parameterNames(), QByteArrayList{"initialProperties"_ba});
}

void tst_WQmlController::baseInit_data()
{
    QTest::addColumn<QVariantMap>("initialProperties");
    QTest::newRow("empty") << QVariantMap();
    QTest::newRow("values") << QVariantMap{{u"a"_s, 1}, {u"b"_s, u"text"_s}};
    QTest::newRow("the name of a property") << QVariantMap{{u"objectName"_s, u"changed"_s}};
    QTest::newRow("an empty name and an invalid value") << QVariantMap{{QString(), QVariant()}};
}

void tst_WQmlController::baseInit()
{
    QFETCH(const QVariantMap, initialProperties);
    QuietController controller;
    controller.setObjectName(u"name"_s);
    QSignalSpy renamed(&controller, &QObject::objectNameChanged);
    controller.init(initialProperties);
    QCOMPARE(controller.objectName(), u"name"_s);
    QCOMPARE(renamed.count(), 0);
    QVERIFY(controller.dynamicPropertyNames().isEmpty());
    QVERIFY(controller.children().isEmpty());
}

void tst_WQmlController::initIsVirtual()
{
    const QVariantMap properties{{u"a"_s, 1}};
    ListeningController controller;
    static_cast<WQmlController &>(controller).init(properties);
    QCOMPARE(controller.received, QList{properties});
    QVERIFY(QMetaObject::invokeMethod(&controller, "init", Q_ARG(QVariantMap, properties)));
    QCOMPARE(controller.received, QList({properties, properties}));
}

void tst_WQmlController::initFromQml()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\n"
                      "import LumakitTests 1.0\n"
                      "ListeningController {\n"
                      "    property QuietController quiet: QuietController { }\n"
                      "    Component.onCompleted: { init({ a: 1, b: 'two' }); quiet.init({ a: 1 }) }\n"
                      "}",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QCOMPARE(component.errorString(), QString());
    const auto *controller = qobject_cast<ListeningController *>(object.get());
    QVERIFY(controller);
    QCOMPARE(controller->received, QList({QVariantMap{{u"a"_s, 1}, {u"b"_s, u"two"_s}}}));
}

void tst_WQmlController::translation()
{
    QCOMPARE(WQmlController::tr("%n view(s)", "", 3), u"3 view(s)"_s);
}

LUMAKIT_TEST_MAIN(tst_WQmlController)
#include "tst_wqmlcontroller.moc"
