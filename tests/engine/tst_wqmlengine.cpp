#include "TestController.h"

#include <TestCase.h>
#include <WQmlEngine.h>
#include <WQuickView.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickItem>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr auto LoadError = "Unable to load the qml view!"_L1;
constexpr auto RootError = "Unable to find the rootObject for this qml view."_L1;
constexpr auto ControllerError = "The Qml view should have only one controller!"_L1;

// What a factory makes.
enum class Kind { Window, Dialog, Component };

QByteArray kindName(Kind kind)
{
    constexpr std::array names{"window", "dialog", "component"};
    return names.at(size_t(kind));
}

// Opens what is protected, of the engine that the application made.
struct OpenEngine : WQmlEngine
{
    using WQmlEngine::setPerformanceWatcherEnabled;
    using WQmlEngine::setReadQmlFromDisk;
};

// The QML files that cannot stand beside the good ones.
const QMap<QString, QByteArray> OddFiles{
    {u"/Qml/Broken.qml"_s, "import QtQuick\nItem {\n    width: }\n"},
    {u"/Qml/UnknownType.qml"_s, "import QtQuick\nNoSuchType { }\n"},
    {u"/Qml/Empty.qml"_s, ""},
    {u"/Qml/deep/er/Some.View.qml"_s, "import QtQuick\nItem { width: 10; height: 10 }\n"},
};

// A QML file with a controller, "qrc:/Qml/" + name to the engine, that stays on the way until it is delivered.
class SlowFile : public QQmlAbstractUrlInterceptor
{
public:
    SlowFile(QQmlEngine *engine, const QString &name)
        : m_engine(engine)
        , m_name(name)
    {
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("no loopback server");
        m_target = u"http://127.0.0.1:%1/%2"_s.arg(m_server.serverPort()).arg(name);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            QTcpSocket *socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { receive(socket); });
        });
        engine->addUrlInterceptor(this);
    }
    ~SlowFile() override
    {
        m_engine->removeUrlInterceptor(this);
        m_engine->clearComponentCache();
    }

    // From whichever thread loads.
    QUrl intercept(const QUrl &url, DataType) override
    {
        return url.fileName() == m_name && url.scheme() == "qrc"_L1 ? QUrl(m_target) : url;
    }

    bool isAskedFor() const { return !m_asking.isEmpty(); }
    void deliver()
    {
        const QByteArray text = "import QtQml\nimport LumakitTests 1.0\n"
                                "QtObject { property TestController controller: TestController { } }\n";
        for (QTcpSocket *socket : std::as_const(m_asking))
            answer(socket, "200 OK", text);
        m_asking.clear();
    }

private:
    void receive(QTcpSocket *socket)
    {
        if (socket->readAll().contains("GET /" + m_name.toLatin1()))
            m_asking << socket;
        else
            answer(socket, "404 Not Found", {}); // a folder without a qmldir
    }
    static void answer(QTcpSocket *socket, const QByteArray &status, const QByteArray &text)
    {
        socket->write("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(text.size())
                      + "\r\nConnection: close\r\n\r\n" + text);
        socket->disconnectFromHost();
    }

    QQmlEngine *m_engine;
    QString m_name;
    QString m_target;
    QTcpServer m_server;
    QList<QTcpSocket *> m_asking;
};

} // namespace

Q_DECLARE_METATYPE(Kind)

// The journal holds, in the order they come: the engine's statuses ("Ready Plain.qml"), with their message after a
// colon; the controllers' "init" with the names of the properties; and "callback".
class tst_WQmlEngine : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void createdOnDemand();
    void construction();
    void statusEnum();
    void metaObject();
    void readFromDisk();

    void statuses_data();
    void statuses();
    void statusesOfTwoViews();
    void initialProperties_data();
    void initialProperties();
    void noCallback_data();
    void noCallback();
    void queuedStatuses();
    void rootRemoved();
    void otherViewStatuses_data();
    void otherViewStatuses();
    void controllerRemoved();

    void emptySource_data();
    void emptySource();
    void window();
    void dialog_data();
    void dialog();
    void dialogFollowsRoot();
    void objectNames_data();
    void objectNames();
    void filterKinds_data();
    void filterKinds();
    void textRenderType();
    void childrenDieWithTheWindow_data();
    void childrenDieWithTheWindow();
    void closedDialogIsDeleted();

    void component();
    void componentOfObject();
    void componentAlreadyLoaded();
    void componentAsynchronous();
    void componentLeavesNothingBehind_data();
    void componentLeavesNothingBehind();

    void factoryInCallback_data();
    void factoryInCallback();
    void factoryInCreating();
    void parentDeleted_data();
    void parentDeleted();
    void parentClosed_data();
    void parentClosed();
    void componentParentDeleted_data();
    void componentParentDeleted();
    void componentParentDeletedWhileLoading();
    void viewDeletedInCallback();

    void reloadFromFile();
    void reloadBrokenFile();
    void reloadOfResources();
    void reloadOfEmptyView();
    void reloadSkipsDevTools();
    void reloadSkipsRenamedDevTools();
    void reloadAfterTheViewIsGone();

    void performance();
    void performanceReceivers();
    void performanceSkipsDevTools();
    void performanceOfRealFrames();
    void sceneGraphErrors();
    void criticalErrorOnce();

protected:
    void prepare() override;
    void tidy() override;

private:
    QStringList &journal() { return TestController::journal(); }
    void create(Kind kind, const QString &source, const QVariantMap &properties = {});
    // Deletes what create() made.
    void destroy();
    // What the engine logs and reports when all views load again.
    QStringList reload();

    WQmlEngine *m_engine = nullptr;
    QList<LogRecorder::Line> m_creationLog;
    QPointer<WQuickView> m_view;
    QPointer<QObject> m_object;
    QObject m_owner;
    std::unique_ptr<MemoryResources> m_resources;
    QTemporaryDir m_folder;
};

void tst_WQmlEngine::initTestCase()
{
    TestController::registerType();
    m_resources = std::make_unique<MemoryResources>(OddFiles);
    const LogRecorder log;
    m_engine = qobject_cast<IWApplication *>(qApp)->getQmlEngine();
    m_creationLog = log.lines();
}

void tst_WQmlEngine::prepare()
{
    journal().clear();
    if (!m_engine) // not yet: initTestCase()
        return;
    connect(m_engine, &WQmlEngine::qmlViewStatusChanged, this,
            [this](WQmlEngine::QmlViewStatus status, const QString &name, const QString &message) {
                const auto *key = QMetaEnum::fromType<WQmlEngine::QmlViewStatus>().valueToKey(status);
                journal() << QLatin1StringView(key) + u' ' + name + (message.isEmpty() ? QString() : ": "_L1 + message);
            });
}

void tst_WQmlEngine::tidy()
{
    TestController::initHook() = {};
    if (m_engine)
        disconnect(m_engine, nullptr, this, nullptr);
    destroy();
    qDeleteAll(m_owner.children());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(QGuiApplication::topLevelWindows().size(), 0);
}

void tst_WQmlEngine::create(Kind kind, const QString &source, const QVariantMap &properties)
{
    const auto callback = [this](WQmlController *) { journal() << u"callback"_s; };
    switch (kind) {
    case Kind::Window:
        m_view = WQmlEngine::createQmlWindow(source, nullptr, properties, callback);
        break;
    case Kind::Dialog:
        m_view = WQmlEngine::createQmlDialog(source, nullptr, properties, callback, false);
        break;
    case Kind::Component:
        WQmlEngine::createQmlComponent(source, &m_owner, properties, [this](QObject *object, WQmlController *) {
            journal() << u"callback"_s;
            m_object = object;
        });
        // Loading ends when no component is left.
        QTRY_VERIFY(m_owner.findChildren<QQmlComponent *>().isEmpty());
        break;
    }
}

void tst_WQmlEngine::destroy()
{
    delete m_view;
    qDeleteAll(m_owner.children());
}

QStringList tst_WQmlEngine::reload()
{
    const LogRecorder log;
    QMetaObject::invokeMethod(m_engine, "reload", Qt::DirectConnection);
    return log.texts();
}

// The application makes its engine when it is first asked for, and says so.
void tst_WQmlEngine::createdOnDemand()
{
    QCOMPARE(m_creationLog,
             (QList<LogRecorder::Line>{
                 {QtDebugMsg, u"[UILifecycle][Startup] Creating WQmlEngine."_s},
                 {QtDebugMsg, u"[UILifecycle][Startup] Finished creating WQmlEngine."_s},
             }));
    QVERIFY(m_engine);
    QCOMPARE(m_engine->parent(), nullptr);
    QVERIFY(m_engine->imageProvider(u"svg"_s));
    const LogRecorder log;
    QCOMPARE(qobject_cast<IWApplication *>(qApp)->getQmlEngine(), m_engine);
    QCOMPARE(log.texts(), QStringList());
}

void tst_WQmlEngine::construction()
{
    QObject parent;
    const auto *engine = new WQmlEngine(&parent);
    QCOMPARE(engine->parent(), &parent);
    QVERIFY(!engine->isReadingQmlFromDisk());
    QVERIFY(!engine->isWatchingPerformance());
    QVERIFY(!engine->imageProvider(u"svg"_s)); // the application's part
    QCOMPARE(QMetaType::fromName("QmlViewStatus"), QMetaType::fromType<WQmlEngine::QmlViewStatus>());
}

void tst_WQmlEngine::statusEnum()
{
    const auto statuses = QMetaEnum::fromType<WQmlEngine::QmlViewStatus>();
    QList<std::pair<QByteArray, int>> entries;
    for (int i = 0; i < statuses.keyCount(); ++i)
        entries.append({statuses.key(i), statuses.value(i)});
    const QList<std::pair<QByteArray, int>> expected{{"Creating", 0},      {"Initializing", 1},
                                                     {"Ready", 2},         {"DestroyedController", 3},
                                                     {"DestroyedView", 4}, {"Error", 5}};
    QCOMPARE(entries, expected);
    QCOMPARE(statuses.name(), "QmlViewStatus");
    QVERIFY(!statuses.isFlag());
}

void tst_WQmlEngine::metaObject()
{
    const QMetaObject &meta = WQmlEngine::staticMetaObject;
    QCOMPARE(meta.superClass(), &QQmlEngine::staticMetaObject);
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods << (method.methodType() == QMetaMethod::Signal    ? "signal "
                        : method.access() == QMetaMethod::Private ? "private slot "
                                                                  : "slot ")
                + method.methodSignature();
    }
    const QByteArrayList expected{"signal qmlViewStatusChanged(WQmlEngine::QmlViewStatus,QString,QString)",
                                  "signal qmlViewStatusChanged(WQmlEngine::QmlViewStatus,QString)",
                                  "signal reloadAllQmlViews()",
                                  "signal finishedRendering(QString,qlonglong)",
                                  "signal sceneGraphCriticalError()",
                                  "slot onSceneGraphCriticalError()",
                                  "private slot reload()"};
    QCOMPARE(methods, expected);
    QCOMPARE(meta.method(meta.methodOffset()).parameterNames(), (QByteArrayList{"status", "viewName", "message"}));
    QCOMPARE(meta.method(meta.methodOffset() + 3).parameterNames(), (QByteArrayList{"source", "milisec"}));
}

void tst_WQmlEngine::readFromDisk()
{
    const auto set = &OpenEngine::setReadQmlFromDisk;
    (m_engine->*set)(true);
    QVERIFY(m_engine->isReadingQmlFromDisk());
    // The factories do not care.
    create(Kind::Window, u"Plain.qml"_s);
    QCOMPARE(m_view->source(), QUrl(u"qrc:/Qml/Plain.qml"_s));
    (m_engine->*set)(false);
    QVERIFY(!m_engine->isReadingQmlFromDisk());
}

void tst_WQmlEngine::statuses_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("created"); // the source's name is appended to each status
    QTest::addColumn<QStringList>("destroyed"); // in this order for views
    QTest::addColumn<QString>("qtWarning");

    const auto add = [](Kind kind, const char *what, const QString &source, const QStringList &created,
                        const QStringList &destroyed, const QString &qtWarning = {}) {
        QTest::addRow("%s: %s", kindName(kind).constData(), what)
            << kind << source << created << destroyed << qtWarning;
    };
    const QString loadError = "Error *: "_L1 + LoadError;
    const QString controllerError = "Error *: "_L1 + ControllerError;
    for (const Kind kind : {Kind::Window, Kind::Dialog}) {
        add(kind, "controller", u"Controlled.qml"_s,
            {u"Creating *"_s, u"Initializing *"_s, u"init a,b"_s, u"callback"_s, u"Ready *"_s},
            {u"DestroyedController *"_s, u"DestroyedView *"_s});
        add(kind, "no controller", u"Plain.qml"_s, {u"Creating *"_s, u"Initializing *"_s, u"Ready *"_s},
            {u"DestroyedView *"_s});
        add(kind, "nested controller", u"NestedController.qml"_s, {u"Creating *"_s, u"Initializing *"_s, u"Ready *"_s},
            {u"DestroyedView *"_s});
        add(kind, "two controllers", u"ManyControllers.qml"_s, {u"Creating *"_s, controllerError},
            {u"DestroyedView *"_s});
        add(kind, "syntax error", u"Broken.qml"_s, {u"Creating *"_s, loadError}, {u"DestroyedView *"_s},
            u"Broken.qml:3:.*Expected token"_s);
        add(kind, "unknown type", u"UnknownType.qml"_s, {u"Creating *"_s, loadError}, {u"DestroyedView *"_s},
            u"UnknownType.qml:2:1: NoSuchType is not a type"_s);
        add(kind, "missing file", u"Missing.qml"_s, {u"Creating *"_s, loadError}, {u"DestroyedView *"_s},
            u"Missing.qml.*No such file"_s);
        add(kind, "a folder, no file", u"deep"_s, {u"Creating *"_s, loadError}, {u"DestroyedView *"_s}, u"deep"_s);
        add(kind, "empty file", u"Empty.qml"_s, {u"Creating *"_s, loadError}, {u"DestroyedView *"_s}, u"Empty.qml"_s);
        add(kind, "root is no item", u"ObjectRoot.qml"_s, {u"Creating *"_s, loadError}, {u"DestroyedView *"_s},
            u"QQuickView only supports loading of root objects that derive from QQuickItem"_s);
        add(kind, "required property not given", u"Required.qml"_s, {u"Creating *"_s, loadError},
            {u"DestroyedView *"_s}, u"Required property text was not initialized"_s);
        add(kind, "in a folder", u"deep/er/Some.View.qml"_s, {u"Creating *"_s, u"Initializing *"_s, u"Ready *"_s},
            {u"DestroyedView *"_s});
    }

    const Kind kind = Kind::Component;
    const QStringList nothing;
    add(kind, "controller", u"Controlled.qml"_s,
        {u"Creating *"_s, u"Initializing *"_s, u"init a,b"_s, u"callback"_s, u"Ready *"_s},
        {u"DestroyedController *"_s, u"DestroyedView *"_s});
    add(kind, "no controller", u"Plain.qml"_s, {u"Creating *"_s, u"Initializing *"_s, u"Ready *"_s},
        {u"DestroyedView *"_s});
    add(kind, "nested controller", u"NestedController.qml"_s, {u"Creating *"_s, u"Initializing *"_s, u"Ready *"_s},
        {u"DestroyedView *"_s});
    add(kind, "two controllers", u"ManyControllers.qml"_s, {u"Creating *"_s, controllerError}, {u"DestroyedView *"_s});
    add(kind, "root is no item", u"ObjectRoot.qml"_s,
        {u"Creating *"_s, u"Initializing *"_s, u"init a,b"_s, u"callback"_s, u"Ready *"_s},
        {u"DestroyedController *"_s, u"DestroyedView *"_s});
    // What cannot be loaded is not reported.
    add(kind, "syntax error", u"Broken.qml"_s, {u"Creating *"_s}, nothing);
    add(kind, "unknown type", u"UnknownType.qml"_s, {u"Creating *"_s}, nothing);
    add(kind, "missing file", u"Missing.qml"_s, {u"Creating *"_s}, nothing);
    add(kind, "empty file", u"Empty.qml"_s, {u"Creating *"_s}, nothing);
    add(kind, "required property not given", u"Required.qml"_s, {u"Creating *"_s}, nothing);
}

void tst_WQmlEngine::statuses()
{
    QFETCH(const Kind, kind);
    QFETCH(const QString, source);
    QFETCH(QStringList, created);
    QFETCH(QStringList, destroyed);
    QFETCH(const QString, qtWarning);
    created.replaceInStrings(u"*"_s, source);
    destroyed.replaceInStrings(u"*"_s, source);

    if (!qtWarning.isEmpty())
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(qtWarning, QRegularExpression::DotMatchesEverythingOption));
    create(kind, source, {{u"a"_s, 1}, {u"b"_s, 2}});
    QCOMPARE(journal(), created);
    QCOMPARE(!m_view.isNull(), kind != Kind::Component);

    journal().clear();
    destroy();
    if (kind == Kind::Component) // the order of these two is that of the object's own end
        journal().sort();
    QCOMPARE(journal(), destroyed);
}

void tst_WQmlEngine::statusesOfTwoViews()
{
    const QPointer<WQuickView> first = WQmlEngine::createQmlWindow(u"Plain.qml"_s);
    const QPointer<WQuickView> second = WQmlEngine::createQmlWindow(u"Plain.qml"_s);
    QVERIFY(first != second);
    QCOMPARE(first->engine(), m_engine);
    QCOMPARE(second->engine(), m_engine);
    const QStringList each{u"Creating Plain.qml"_s, u"Initializing Plain.qml"_s, u"Ready Plain.qml"_s};
    QCOMPARE(journal(), each + each);
    journal().clear();
    delete first;
    QCOMPARE(journal(), QStringList{u"DestroyedView Plain.qml"_s});
    delete second;
    QCOMPARE(journal().size(), 2);
}

void tst_WQmlEngine::initialProperties_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QVariantMap>("properties");
    for (const Kind kind : {Kind::Window, Kind::Dialog, Kind::Component}) {
        const QByteArray name = kindName(kind);
        QTest::addRow("%s: none", name.constData()) << kind << QVariantMap();
        QTest::addRow("%s: values", name.constData())
            << kind << QVariantMap{{u"number"_s, 1.5}, {u"text"_s, u"ä"_s}, {u"list"_s, QVariantList{1, u"2"_s}}};
        QTest::addRow("%s: odd ones", name.constData())
            << kind << QVariantMap{{QString(), QVariant()}, {u"size"_s, QSize(1, 2)}, {u"width"_s, 7}};
    }
}

void tst_WQmlEngine::initialProperties()
{
    QFETCH(const Kind, kind);
    QFETCH(const QVariantMap, properties);
    create(kind, u"Controlled.qml"_s, properties);
    const QObject *root = m_view ? m_view->rootObject() : m_object.data();
    QVERIFY(root);
    const auto *controller = root->findChild<TestController *>();
    QVERIFY(controller);
    QCOMPARE(controller->initialProperties(), properties);
    QCOMPARE(root->property("width").toInt(), 320); // they are the controller's, not the root's
}

void tst_WQmlEngine::noCallback_data()
{
    QTest::addColumn<Kind>("kind");
    for (const Kind kind : {Kind::Window, Kind::Dialog, Kind::Component})
        QTest::addRow("%s", kindName(kind).constData()) << kind;
}

void tst_WQmlEngine::noCallback()
{
    QFETCH(const Kind, kind);
    if (kind == Kind::Window)
        m_view = WQmlEngine::createQmlWindow(u"Controlled.qml"_s);
    else if (kind == Kind::Dialog)
        m_view = WQmlEngine::createQmlDialog(u"Controlled.qml"_s);
    else
        WQmlEngine::createQmlComponent(u"Controlled.qml"_s, &m_owner);
    const QStringList expected{u"Creating Controlled.qml"_s, u"Initializing Controlled.qml"_s, u"init "_s,
                               u"Ready Controlled.qml"_s};
    QTRY_COMPARE(journal(), expected);
}

// The status travels through a queued connection.
void tst_WQmlEngine::queuedStatuses()
{
    QList<WQmlEngine::QmlViewStatus> queued;
    QObject context;
    connect(
        m_engine, &WQmlEngine::qmlViewStatusChanged, &context,
        [&queued](WQmlEngine::QmlViewStatus status) { queued << status; }, Qt::QueuedConnection);
    create(Kind::Window, u"Plain.qml"_s);
    QVERIFY(queued.isEmpty());
    QTRY_COMPARE(queued, (QList{WQmlEngine::Creating, WQmlEngine::Initializing, WQmlEngine::Ready}));
}

void tst_WQmlEngine::rootRemoved()
{
    create(Kind::Window, u"Controlled.qml"_s);
    journal().clear();
    delete m_view->rootObject();
    Q_EMIT m_view->statusChanged(QQuickView::Ready);
    QCOMPARE(journal(),
             (QStringList{u"DestroyedController Controlled.qml"_s, "Creating Controlled.qml: "_L1 + RootError}));
}

void tst_WQmlEngine::otherViewStatuses_data()
{
    QTest::addColumn<QQuickView::Status>("status");
    QTest::newRow("null") << QQuickView::Null;
    QTest::newRow("loading") << QQuickView::Loading;
    QTest::newRow("error") << QQuickView::Error;
}

void tst_WQmlEngine::otherViewStatuses()
{
    QFETCH(const QQuickView::Status, status);
    create(Kind::Window, u"Controlled.qml"_s);
    journal().clear();
    Q_EMIT m_view->statusChanged(status);
    QCOMPARE(journal(), QStringList{"Error Controlled.qml: "_L1 + LoadError});
}

void tst_WQmlEngine::controllerRemoved()
{
    create(Kind::Window, u"Controlled.qml"_s);
    journal().clear();
    delete m_view->rootObject()->findChild<TestController *>();
    QCOMPARE(journal(), QStringList{u"DestroyedController Controlled.qml"_s});
    destroy();
    QCOMPARE(journal(), (QStringList{u"DestroyedController Controlled.qml"_s, u"DestroyedView Controlled.qml"_s}));
}

void tst_WQmlEngine::emptySource_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("warning");
    const QString ofViews = u"Trying to create a Qml view for an empty source! This should never happen!"_s;
    QTest::newRow("window") << Kind::Window << u""_s << ofViews;
    QTest::newRow("window, null") << Kind::Window << QString() << ofViews;
    QTest::newRow("dialog") << Kind::Dialog << u""_s << ofViews;
    QTest::newRow("component") << Kind::Component << u""_s << ofViews + " Resource:  \"\""_L1;
    QTest::newRow("component, null") << Kind::Component << QString() << ofViews + " Resource:  \"\""_L1;
}

void tst_WQmlEngine::emptySource()
{
    QFETCH(const Kind, kind);
    QFETCH(const QString, source);
    QFETCH(const QString, warning);
    const LogRecorder log;
    create(kind, source);
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, warning}}));
    QVERIFY(m_view.isNull());
    QVERIFY(m_owner.children().isEmpty());
    QCOMPARE(journal(), QStringList());
}

void tst_WQmlEngine::window()
{
    QWindow parent;
    m_view = WQmlEngine::createQmlWindow(u"Controlled.qml"_s, &parent);
    QVERIFY(!m_view->isVisible());
    QCOMPARE(m_view->engine(), m_engine);
    QCOMPARE(m_view->source(), QUrl(u"qrc:/Qml/Controlled.qml"_s));
    QCOMPARE(m_view->resizeMode(), QQuickView::SizeRootObjectToView);
    QCOMPARE(static_cast<QObject *>(m_view)->parent(), &parent);
    QCOMPARE(m_view->parent(QWindow::ExcludeTransients), &parent);
    QCOMPARE(m_view->transientParent(), nullptr);
    QVERIFY((m_view->flags() & Qt::Dialog) != Qt::Dialog);

    const ViewOptions options = m_view->getViewOptions();
    QCOMPARE(options.dispatchShowEnabled, false);
    QCOMPARE(options.hideOnDeactivate, false);
    QCOMPARE(options.deleteOnClose, true);
    QCOMPARE(options.preventClose, false);
    QCOMPARE(options.focusOnActivate, false);
    QVERIFY(options.parentWindow.isNull());

    // The root item follows the window, until adjustViewSize() turns it round.
    parent.show();
    m_view->show();
    m_view->resize(500, 400);
    QTRY_COMPARE(m_view->rootObject()->size(), QSizeF(500, 400));
    m_view->rootObject()->setWidth(123);
    QCOMPARE(m_view->width(), 500);
    m_view->adjustViewSize();
    QCOMPARE(m_view->size(), QSize(123, 400));
}

void tst_WQmlEngine::dialog_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::addColumn<bool>("fixed");
    QTest::newRow("free, resizable") << false << false;
    QTest::newRow("free, fixed") << false << true;
    QTest::newRow("of a window, resizable") << true << false;
    QTest::newRow("of a window, fixed") << true << true;
}

void tst_WQmlEngine::dialog()
{
    QFETCH(const bool, hasParent);
    QFETCH(const bool, fixed);
    QWindow window;
    QWindow *parent = hasParent ? &window : nullptr;
    m_view = WQmlEngine::createQmlDialog(u"Controlled.qml"_s, parent, {}, {}, fixed);
    QVERIFY(!m_view->isVisible());
    QCOMPARE(m_view->flags() & Qt::Dialog, Qt::Dialog);
    QCOMPARE(m_view->type(), Qt::Dialog);
    QCOMPARE(m_view->transientParent(), parent);
    QCOMPARE(m_view->parent(QWindow::ExcludeTransients), parent);
    QCOMPARE(m_view->size(), QSize(320, 180));
    QCOMPARE(m_view->resizeMode(), QQuickView::SizeRootObjectToView);
    const ViewOptions options = m_view->getViewOptions();
    QCOMPARE(options.dispatchShowEnabled, false);
    QCOMPARE(options.hideOnDeactivate, false);
    QCOMPARE(options.deleteOnClose, true);
    QCOMPARE(options.preventClose, false);
    QCOMPARE(options.focusOnActivate, false);
    QVERIFY(options.parentWindow.isNull());
}

void tst_WQmlEngine::dialogFollowsRoot()
{
    m_view = WQmlEngine::createQmlDialog(u"Controlled.qml"_s);
    m_view->rootObject()->setSize({401, 302});
    QCOMPARE(m_view->size(), QSize(401, 302));
}

void tst_WQmlEngine::objectNames_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("name");
    for (const Kind kind : {Kind::Window, Kind::Dialog, Kind::Component}) {
        const QByteArray prefix = kindName(kind);
        QTest::addRow("%s: file", prefix.constData()) << kind << u"Controlled.qml"_s << u"Controlled"_s;
        QTest::addRow("%s: in folders, two dots", prefix.constData())
            << kind << u"deep/er/../../Controlled.qml"_s << u"Controlled"_s;
    }
    QTest::newRow("window: up to the first dot") << Kind::Window << u"deep/er/Some.View.qml"_s << u"Some"_s;
}

void tst_WQmlEngine::objectNames()
{
    QFETCH(const Kind, kind);
    QFETCH(const QString, source);
    create(kind, source);
    const QObject *object = m_view ? static_cast<QObject *>(m_view) : m_object.data();
    QVERIFY(object);
    QTEST(object->objectName(), "name");
    QCOMPARE(journal().constFirst(), "Creating "_L1 + source); // the name in signals is the source
}

void tst_WQmlEngine::filterKinds_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("fixed");
    QTest::addColumn<bool>("maximizedAgain");
    QTest::newRow("window") << Kind::Window << false << true;
    QTest::newRow("dialog") << Kind::Dialog << false << true;
    QTest::newRow("dialog, fixed") << Kind::Dialog << true << false;
}

// Only the filter of resizable windows brings one back maximised.
void tst_WQmlEngine::filterKinds()
{
    QFETCH(const Kind, kind);
    QFETCH(const bool, fixed);
    QFETCH(const bool, maximizedAgain);
    m_view = kind == Kind::Window ? WQmlEngine::createQmlWindow(u"Plain.qml"_s)
                                  : WQmlEngine::createQmlDialog(u"Plain.qml"_s, nullptr, {}, {}, fixed);
    for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowMinimized, Qt::WindowNoState})
        m_view->setWindowState(state);
    QCOMPARE(m_view->windowState(), maximizedAgain ? Qt::WindowMaximized : Qt::WindowNoState);
    QCOMPARE(m_view->isVisible(), maximizedAgain);
}

void tst_WQmlEngine::textRenderType()
{
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    WQmlEngine::createQmlComponent(u"Plain.qml"_s, &m_owner);
    QCOMPARE(QQuickWindow::textRenderType(), QQuickWindow::NativeTextRendering);
    create(Kind::Window, u"Plain.qml"_s);
    QCOMPARE(QQuickWindow::textRenderType(), QQuickWindow::QtTextRendering);
}

void tst_WQmlEngine::childrenDieWithTheWindow_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("window") << Kind::Window;
    QTest::newRow("dialog") << Kind::Dialog;
}

void tst_WQmlEngine::childrenDieWithTheWindow()
{
    QFETCH(const Kind, kind);
    auto parent = std::make_unique<QWindow>();
    m_view = kind == Kind::Window ? WQmlEngine::createQmlWindow(u"Controlled.qml"_s, parent.get())
                                  : WQmlEngine::createQmlDialog(u"Controlled.qml"_s, parent.get());
    parent->show();
    m_view->show();
    journal().clear();
    parent.reset();
    QVERIFY(m_view.isNull());
    QCOMPARE(journal(), (QStringList{u"DestroyedController Controlled.qml"_s, u"DestroyedView Controlled.qml"_s}));
}

void tst_WQmlEngine::closedDialogIsDeleted()
{
    create(Kind::Dialog, u"Controlled.qml"_s);
    m_view->show();
    journal().clear();
    m_view->close();
    QVERIFY(m_view);
    QCOMPARE(journal(), QStringList());
    QTRY_VERIFY(m_view.isNull());
    QCOMPARE(journal(), (QStringList{u"DestroyedController Controlled.qml"_s, u"DestroyedView Controlled.qml"_s}));
}

void tst_WQmlEngine::component()
{
    QList<std::pair<QPointer<QObject>, QPointer<WQmlController>>> calls;
    WQmlEngine::createQmlComponent(u"Controlled.qml"_s, &m_owner, {}, [&](QObject *object, WQmlController *controller) {
        calls.append({object, controller});
    });
    QTRY_COMPARE(calls.size(), 1);
    const auto [object, controller] = calls.constFirst();
    QVERIFY(object);
    QCOMPARE(object->parent(), &m_owner);
    QCOMPARE(controller->parent(), object);
    QCOMPARE(qobject_cast<TestController *>(controller)->name(), u"controlled"_s);
    QCOMPARE(qmlContext(object)->engine(), m_engine);

    // Without an owner the caller keeps it.
    WQmlEngine::createQmlComponent(u"Controlled.qml"_s, nullptr, {},
                                   [&](QObject *own, WQmlController *) { calls.append({own, nullptr}); });
    QTRY_COMPARE(calls.size(), 2);
    const std::unique_ptr<QObject> own(calls.at(1).first);
    QCOMPARE(own->parent(), nullptr);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(calls.at(1).first);
}

void tst_WQmlEngine::componentOfObject()
{
    create(Kind::Component, u"ObjectRoot.qml"_s);
    QVERIFY(m_object);
    QVERIFY(!qobject_cast<QQuickItem *>(m_object));
    QCOMPARE(m_object->objectName(), u"ObjectRoot"_s);
}

void tst_WQmlEngine::componentAlreadyLoaded()
{
    create(Kind::Component, u"Controlled.qml"_s);
    const QPointer<QObject> first = m_object;
    create(Kind::Component, u"Controlled.qml"_s);
    QVERIFY(first);
    QVERIFY(m_object != first);
    const QStringList each{u"Creating Controlled.qml"_s, u"Initializing Controlled.qml"_s, u"init "_s, u"callback"_s,
                           u"Ready Controlled.qml"_s};
    QCOMPARE(journal(), each + each);
}

// The caller comes back before anything is there; several may load at once.
void tst_WQmlEngine::componentAsynchronous()
{
    SlowFile slow(m_engine, u"Slow.qml"_s);
    QList<QThread *> calledIn;
    for (int i = 0; i < 2; ++i) {
        WQmlEngine::createQmlComponent(u"Slow.qml"_s, &m_owner, {}, [&](QObject *, WQmlController *) {
            journal() << u"callback"_s;
            calledIn << QThread::currentThread();
        });
    }
    QTRY_VERIFY(slow.isAskedFor());
    const QList<QQmlComponent *> components = m_owner.findChildren<QQmlComponent *>();
    QCOMPARE(components.size(), 2);
    QSignalSpy firstGone(components.at(0), &QObject::destroyed);
    QSignalSpy secondGone(components.at(1), &QObject::destroyed);
    // What is asked for later may be there sooner.
    create(Kind::Window, u"Plain.qml"_s);
    const QStringList before{u"Creating Slow.qml"_s, u"Creating Slow.qml"_s, u"Creating Plain.qml"_s,
                             u"Initializing Plain.qml"_s, u"Ready Plain.qml"_s};
    QCOMPARE(journal(), before);
    slow.deliver();
    const QStringList each{u"Initializing Slow.qml"_s, u"init "_s, u"callback"_s, u"Ready Slow.qml"_s};
    QTRY_COMPARE(journal(), before + each + each);
    QCOMPARE(calledIn, (QList<QThread *>{thread(), thread()}));
    QTRY_COMPARE(firstGone.count() + secondGone.count(), 2);
}

void tst_WQmlEngine::componentLeavesNothingBehind_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("children");
    QTest::newRow("good") << u"Controlled.qml"_s << 1;
    QTest::newRow("two controllers") << u"ManyControllers.qml"_s << 1;
    QTest::newRow("broken") << u"Broken.qml"_s << 0;
    QTest::newRow("missing") << u"Missing.qml"_s << 0;
}

void tst_WQmlEngine::componentLeavesNothingBehind()
{
    QFETCH(const QString, source);
    QFETCH(const int, children);
    for (int i = 0; i < 3; ++i)
        create(Kind::Component, source);
    QCOMPARE(m_owner.children().size(), 3 * children);
}

void tst_WQmlEngine::factoryInCallback_data()
{
    QTest::addColumn<bool>("inInit");
    QTest::newRow("callback") << false;
    QTest::newRow("init") << true;
}

void tst_WQmlEngine::factoryInCallback()
{
    QFETCH(const bool, inInit);
    QPointer<WQuickView> inner;
    const auto makeInner = [&] { inner = WQmlEngine::createQmlWindow(u"Plain.qml"_s); };
    if (inInit)
        TestController::initHook() = makeInner;
    m_view = WQmlEngine::createQmlWindow(u"Controlled.qml"_s, nullptr, {}, [&](WQmlController *) {
        journal() << u"callback"_s;
        if (!inInit)
            makeInner();
    });
    QStringList expected{u"Creating Controlled.qml"_s, u"Initializing Controlled.qml"_s, u"init "_s,
                         u"Creating Plain.qml"_s,      u"Initializing Plain.qml"_s,      u"Ready Plain.qml"_s,
                         u"Ready Controlled.qml"_s};
    expected.insert(inInit ? 6 : 3, u"callback"_s);
    QCOMPARE(journal(), expected);
    QVERIFY(m_view);
    QVERIFY(inner);
    delete inner;
    QVERIFY(m_view->rootObject());
}

void tst_WQmlEngine::factoryInCreating()
{
    QPointer<WQuickView> inner;
    QObject context;
    connect(m_engine, &WQmlEngine::qmlViewStatusChanged, &context,
            [&](WQmlEngine::QmlViewStatus status, const QString &name) {
                if (status == WQmlEngine::Creating && name == "Controlled.qml"_L1)
                    inner = WQmlEngine::createQmlDialog(u"Plain.qml"_s);
            });
    create(Kind::Window, u"Controlled.qml"_s);
    QCOMPARE(journal(),
             (QStringList{u"Creating Controlled.qml"_s, u"Creating Plain.qml"_s, u"Initializing Plain.qml"_s,
                          u"Ready Plain.qml"_s, u"Initializing Controlled.qml"_s, u"init "_s, u"callback"_s,
                          u"Ready Controlled.qml"_s}));
    QCOMPARE(m_view->objectName(), u"Controlled"_s);
    QCOMPARE(inner->objectName(), u"Plain"_s);
    delete inner;
}

void tst_WQmlEngine::parentDeleted_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("when");
    QTest::addColumn<QStringList>("expected");
    for (const Kind kind : {Kind::Window, Kind::Dialog}) {
        const QByteArray name = kindName(kind);
        const QStringList end{u"DestroyedController *"_s, u"DestroyedView *"_s};
        QTest::addRow("%s: Creating", name.constData()) << kind << u"Creating"_s << QStringList{u"Creating *"_s};
        QTest::addRow("%s: Initializing", name.constData())
            << kind << u"Initializing"_s << QStringList{u"Creating *"_s, u"Initializing *"_s, u"DestroyedView *"_s};
        QTest::addRow("%s: init", name.constData())
            << kind << u"init"_s << QStringList{u"Creating *"_s, u"Initializing *"_s, u"init "_s} + end;
        QTest::addRow("%s: callback", name.constData())
            << kind << u"callback"_s
            << QStringList{u"Creating *"_s, u"Initializing *"_s, u"init "_s, u"callback"_s} + end;
        QTest::addRow("%s: Ready", name.constData())
            << kind << u"Ready"_s
            << QStringList{u"Creating *"_s, u"Initializing *"_s, u"init "_s, u"callback"_s, u"Ready *"_s} + end;
    }
}

// Nothing is reported of a view that is gone but its end.
void tst_WQmlEngine::parentDeleted()
{
    QFETCH(const Kind, kind);
    QFETCH(const QString, when);
    QFETCH(QStringList, expected);
    expected.replaceInStrings(u"*"_s, u"Controlled.qml"_s);
    QPointer<QWindow> parent = new QWindow;
    QObject context;
    connect(m_engine, &WQmlEngine::qmlViewStatusChanged, &context, [&](WQmlEngine::QmlViewStatus, const QString &) {
        if (journal().constLast() == when + " Controlled.qml"_L1)
            delete parent;
    });
    if (when == "init"_L1)
        TestController::initHook() = [&] { delete parent; };
    const auto callback = [&](WQmlController *) {
        journal() << u"callback"_s;
        if (when == "callback"_L1)
            delete parent;
    };
    m_view = kind == Kind::Window ? WQmlEngine::createQmlWindow(u"Controlled.qml"_s, parent, {}, callback)
                                  : WQmlEngine::createQmlDialog(u"Controlled.qml"_s, parent, {}, callback);
    QVERIFY(!parent);
    QVERIFY(m_view.isNull());
    QCOMPARE(journal(), expected);
    QCoreApplication::processEvents();
    QCOMPARE(journal(), expected);
}

void tst_WQmlEngine::parentClosed_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("when");
    for (const Kind kind : {Kind::Window, Kind::Dialog}) {
        for (const QString &when : {u"Creating"_s, u"Initializing"_s, u"init"_s, u"callback"_s, u"Ready"_s})
            QTest::addRow("%s: %s", kindName(kind).constData(), qPrintable(when)) << kind << when;
    }
}

// A parent window that deletes itself when it is closed takes what was being made with it, in a later turn.
void tst_WQmlEngine::parentClosed()
{
    QFETCH(const Kind, kind);
    QFETCH(const QString, when);
    QPointer<WQuickView> parent = WQmlEngine::createQmlWindow(u"Plain.qml"_s);
    parent->show();
    journal().clear();
    QObject context;
    connect(m_engine, &WQmlEngine::qmlViewStatusChanged, &context, [&](WQmlEngine::QmlViewStatus, const QString &) {
        if (journal().constLast() == when + " Controlled.qml"_L1)
            parent->close();
    });
    if (when == "init"_L1)
        TestController::initHook() = [&] { parent->close(); };
    const auto callback = [&](WQmlController *) {
        journal() << u"callback"_s;
        if (when == "callback"_L1)
            parent->close();
    };
    m_view = kind == Kind::Window ? WQmlEngine::createQmlWindow(u"Controlled.qml"_s, parent, {}, callback)
                                  : WQmlEngine::createQmlDialog(u"Controlled.qml"_s, parent, {}, callback);
    QCOMPARE(journal(),
             (QStringList{u"Creating Controlled.qml"_s, u"Initializing Controlled.qml"_s, u"init "_s, u"callback"_s,
                          u"Ready Controlled.qml"_s}));
    QVERIFY(parent);
    QVERIFY(m_view);
    QVERIFY(!parent->isVisible());
    journal().clear();
    QTRY_VERIFY(!parent);
    QVERIFY(!m_view);
    journal().sort();
    QCOMPARE(journal(),
             (QStringList{u"DestroyedController Controlled.qml"_s, u"DestroyedView Controlled.qml"_s,
                          u"DestroyedView Plain.qml"_s}));
}

void tst_WQmlEngine::componentParentDeleted_data()
{
    QTest::addColumn<QString>("when");
    QTest::addColumn<QStringList>("expected");
    const QStringList end{u"DestroyedController *"_s, u"DestroyedView *"_s};
    const QStringList start{u"Creating *"_s, u"Initializing *"_s};
    QTest::newRow("Creating") << u"Creating"_s << QStringList{u"Creating *"_s};
    QTest::newRow("Initializing") << u"Initializing"_s << start + QStringList{u"DestroyedView *"_s};
    QTest::newRow("init") << u"init"_s << start + QStringList{u"init "_s} + end;
    QTest::newRow("callback") << u"callback"_s << start + QStringList{u"init "_s, u"callback"_s} + end;
    QTest::newRow("Ready") << u"Ready"_s << start + QStringList{u"init "_s, u"callback"_s, u"Ready *"_s} + end;
}

void tst_WQmlEngine::componentParentDeleted()
{
    QFETCH(const QString, when);
    QFETCH(QStringList, expected);
    expected.replaceInStrings(u"*"_s, u"Controlled.qml"_s);
    QPointer<QObject> parent = new QObject;
    QObject context;
    connect(m_engine, &WQmlEngine::qmlViewStatusChanged, &context, [&](WQmlEngine::QmlViewStatus, const QString &) {
        if (journal().constLast() == when + " Controlled.qml"_L1)
            delete parent;
    });
    if (when == "init"_L1)
        TestController::initHook() = [&] { delete parent; };
    WQmlEngine::createQmlComponent(u"Controlled.qml"_s, parent, {}, [&](QObject *, WQmlController *) {
        journal() << u"callback"_s;
        if (when == "callback"_L1)
            delete parent;
    });
    QTRY_VERIFY(!parent);
    QCoreApplication::processEvents();
    if (expected.size() > 3) // the order of the last two is that of the object's own end
        std::sort(journal().end() - 2, journal().end());
    QCOMPARE(journal(), expected);
}

// Loading ends with it.
void tst_WQmlEngine::componentParentDeletedWhileLoading()
{
    SlowFile slow(m_engine, u"Slow.qml"_s);
    auto parent = std::make_unique<QObject>();
    for (QObject *owner : {parent.get(), &m_owner})
        WQmlEngine::createQmlComponent(u"Slow.qml"_s, owner, {}, [this, owner](QObject *, WQmlController *) {
            journal() << (owner == &m_owner ? u"callback"_s : u"callback for nobody"_s);
        });
    QTRY_VERIFY(slow.isAskedFor());
    parent.reset();
    slow.deliver();
    QTRY_COMPARE(journal(),
                 (QStringList{u"Creating Slow.qml"_s, u"Creating Slow.qml"_s, u"Initializing Slow.qml"_s, u"init "_s,
                              u"callback"_s, u"Ready Slow.qml"_s}));
}

void tst_WQmlEngine::viewDeletedInCallback()
{
    m_view = WQmlEngine::createQmlWindow(u"Controlled.qml"_s, nullptr, {}, [&](WQmlController *controller) {
        delete qobject_cast<QQuickItem *>(controller->parent())->window();
        journal() << u"callback"_s;
    });
    QVERIFY(m_view.isNull());
    QCOMPARE(journal(),
             (QStringList{u"Creating Controlled.qml"_s, u"Initializing Controlled.qml"_s, u"init "_s,
                          u"DestroyedController Controlled.qml"_s, u"DestroyedView Controlled.qml"_s, u"callback"_s}));
}

namespace {

// Each time with another time stamp: the engine's cache takes a file of the same as unchanged, and two writes may come
// within one tick of the file system's clock.
void write(const QString &path, const QByteArray &text)
{
    static int seconds = 0;
    QFile file(path);
    const QDateTime stamp = QDateTime::currentDateTime().addSecs(++seconds);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()
        || !file.setFileTime(stamp, QFileDevice::FileModificationTime))
        qFatal("cannot write a test file");
}

QByteArray controlledText(int width)
{
    return "import QtQuick\nimport LumakitTests 1.0\nItem {\n    property int given: " + QByteArray::number(width)
        + "\n    TestController { }\n}\n" + QByteArray(width, '\n');
}

} // namespace

void tst_WQmlEngine::reloadFromFile()
{
    const QString path = m_folder.filePath(u"Reloaded.qml"_s);
    write(path, controlledText(1));
    create(Kind::Window, u"Controlled.qml"_s, {{u"a"_s, 1}});
    journal().clear();
    const QUrl url = QUrl::fromLocalFile(path);
    m_view->setSource(url);
    const QStringList again{u"DestroyedController Controlled.qml"_s, u"Initializing Controlled.qml"_s, u"init a"_s,
                            u"callback"_s, u"Ready Controlled.qml"_s};
    QCOMPARE(journal(), again);
    QCOMPARE(m_view->rootObject()->property("given"), 1);

    QSignalSpy reloadAll(m_engine, &WQmlEngine::reloadAllQmlViews);
    for (int i = 2; i < 4; ++i) {
        write(path, controlledText(i));
        journal().clear();
        QCOMPARE(reload(),
                 (QStringList{u"Reloading WQmlEngine"_s, u"Reloading QML view: QUrl(\"%1\")"_s.arg(url.toString())}));
        QCOMPARE(journal(), again);
        QCOMPARE(m_view->rootObject()->property("given"), i);
        const auto *controller = m_view->rootObject()->findChild<TestController *>();
        QCOMPARE(controller->initialProperties(), (QVariantMap{{u"a"_s, 1}}));
        QCOMPARE(m_view->source(), url);
        QCOMPARE(reloadAll.count(), i - 1);
    }
}

void tst_WQmlEngine::reloadBrokenFile()
{
    const QString path = m_folder.filePath(u"Breaks.qml"_s);
    write(path, controlledText(1));
    create(Kind::Window, u"Controlled.qml"_s);
    const QUrl url = QUrl::fromLocalFile(path);
    m_view->setSource(url);
    journal().clear();
    write(path, "import QtQuick\nItem {");
    const QStringList lines = reload();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), u"Reloading WQmlEngine"_s);
    QVERIFY2(lines.at(1).contains("Breaks.qml"_L1), qPrintable(lines.at(1)));
    QCOMPARE(lines.at(2), u"Reloading QML view: QUrl(\"%1\")"_s.arg(url.toString()));
    QCOMPARE(journal(),
             (QStringList{u"DestroyedController Controlled.qml"_s, "Error Controlled.qml: "_L1 + LoadError}));
    // And it mends.
    journal().clear();
    write(path, controlledText(5));
    reload();
    QCOMPARE(journal().constLast(), u"Ready Controlled.qml"_s);
    QCOMPARE(m_view->rootObject()->property("given"), 5);
}

void tst_WQmlEngine::reloadOfResources()
{
    create(Kind::Window, u"Plain.qml"_s);
    const QPointer<QQuickItem> root = m_view->rootObject();
    journal().clear();
    const LogRecorder log;
    QMetaObject::invokeMethod(m_engine, "reload", Qt::DirectConnection);
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{
                 {QtDebugMsg, u"Reloading WQmlEngine"_s},
                 {QtWarningMsg, u"Reloading views from QRC is not supported. QUrl(\"qrc:/Qml/Plain.qml\")"_s}}));
    QCOMPARE(m_view->rootObject(), root);
    QVERIFY(root);
    QCOMPARE(journal(), QStringList());
}

void tst_WQmlEngine::reloadOfEmptyView()
{
    create(Kind::Window, u"Plain.qml"_s);
    m_view->setSource(QUrl());
    journal().clear();
    const LogRecorder log;
    QMetaObject::invokeMethod(m_engine, "reload", Qt::DirectConnection);
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{{QtDebugMsg, u"Reloading WQmlEngine"_s},
                                       {QtWarningMsg, u"Trying to reload an empty QML view"_s}}));
    QCOMPARE(journal(), QStringList());
}

void tst_WQmlEngine::reloadSkipsDevTools()
{
    create(Kind::Window, u"DevToolsView.qml"_s);
    QCOMPARE(m_view->objectName(), u"DevToolsView"_s);
    QCOMPARE(reload(), QStringList{u"Reloading WQmlEngine"_s});
    const QString path = m_folder.filePath(u"DevTools.qml"_s);
    write(path, controlledText(1));
    m_view->setSource(QUrl::fromLocalFile(path));
    m_view->setObjectName(u"Other"_s); // what it was made as counts
    QCOMPARE(reload(), QStringList{u"Reloading WQmlEngine"_s});
}

void tst_WQmlEngine::reloadSkipsRenamedDevTools()
{
    const QString path = m_folder.filePath(u"Renamed.qml"_s);
    write(path, controlledText(1));
    create(Kind::Window, u"Controlled.qml"_s);
    m_view->setSource(QUrl::fromLocalFile(path));
    m_view->setObjectName(u"DevToolsView"_s);
    journal().clear();
    QCOMPARE(reload(), QStringList{u"Reloading WQmlEngine"_s});
    QCOMPARE(journal(), QStringList());
    m_view->setObjectName(u"Controlled"_s);
    QCOMPARE(reload().size(), 2);
    QCOMPARE(journal().constLast(), u"Ready Controlled.qml"_s);
}

void tst_WQmlEngine::reloadAfterTheViewIsGone()
{
    create(Kind::Window, u"Plain.qml"_s);
    destroy();
    QCOMPARE(reload(), QStringList{u"Reloading WQmlEngine"_s});
}

void tst_WQmlEngine::performance()
{
    const auto watch = &OpenEngine::setPerformanceWatcherEnabled;
    QSignalSpy finished(m_engine, &WQmlEngine::finishedRendering);
    const QPointer<WQuickView> before = WQmlEngine::createQmlWindow(u"Plain.qml"_s);
    (m_engine->*watch)(true);
    QVERIFY(m_engine->isWatchingPerformance());
    const QPointer<WQuickView> watched = WQmlEngine::createQmlWindow(u"Plain.qml"_s);
    const QPointer<WQuickView> watchedDialog = WQmlEngine::createQmlDialog(u"Controlled.qml"_s);
    (m_engine->*watch)(false);
    QVERIFY(!m_engine->isWatchingPerformance());
    const QPointer<WQuickView> after = WQmlEngine::createQmlWindow(u"Plain.qml"_s);

    // Only views made in between are timed, and they stay so.
    QVERIFY(!before->getPerformanceWatcherEnabled());
    QVERIFY(watched->getPerformanceWatcherEnabled());
    QVERIFY(watchedDialog->getPerformanceWatcherEnabled());
    QVERIFY(!after->getPerformanceWatcherEnabled());

    Q_EMIT before->finishedRendering(u"before"_s, 1);
    Q_EMIT watched->finishedRendering(u"watched"_s, 2);
    Q_EMIT after->finishedRendering(u"after"_s, 3);
    Q_EMIT watchedDialog->finishedRendering(u"dialog"_s, 4);
    const QList<QVariantList> expected{{u"watched"_s, qint64(2)}, {u"dialog"_s, qint64(4)}};
    QCOMPARE(finished, expected);
    qDeleteAll(QList<WQuickView *>{before, watched, watchedDialog, after});
}

void tst_WQmlEngine::performanceReceivers()
{
    const auto watch = &OpenEngine::setPerformanceWatcherEnabled;
    QStringList heard;
    QObject other;
    QStringList *list = &heard;
    connect(m_engine, &WQmlEngine::finishedRendering, m_engine, [list] { *list << u"engine"_s; });
    connect(m_engine, &WQmlEngine::finishedRendering, &other, [list] { *list << u"other"_s; });

    (m_engine->*watch)(false); // as it is
    Q_EMIT m_engine->finishedRendering(u"x"_s, 1);
    QCOMPARE(heard, (QStringList{u"engine"_s, u"other"_s}));

    heard.clear();
    (m_engine->*watch)(true);
    (m_engine->*watch)(true);
    Q_EMIT m_engine->finishedRendering(u"x"_s, 1);
    QCOMPARE(heard, (QStringList{u"engine"_s, u"other"_s}));

    heard.clear();
    (m_engine->*watch)(false);
    Q_EMIT m_engine->finishedRendering(u"x"_s, 1);
    QCOMPARE(heard, QStringList{u"other"_s});
}

void tst_WQmlEngine::performanceSkipsDevTools()
{
    const auto watch = &OpenEngine::setPerformanceWatcherEnabled;
    QSignalSpy finished(m_engine, &WQmlEngine::finishedRendering);
    (m_engine->*watch)(true);
    create(Kind::Window, u"DevToolsView.qml"_s);
    (m_engine->*watch)(false);
    QVERIFY(!m_view->getPerformanceWatcherEnabled());
    Q_EMIT m_view->finishedRendering(u"DevToolsView"_s, 1);
    QCOMPARE(finished.count(), 0);
}

void tst_WQmlEngine::performanceOfRealFrames()
{
    const auto watch = &OpenEngine::setPerformanceWatcherEnabled;
    QSignalSpy finished(m_engine, &WQmlEngine::finishedRendering);
    (m_engine->*watch)(true);
    create(Kind::Window, u"Controlled.qml"_s);
    (m_engine->*watch)(false);
    m_view->resize(100, 100);
    m_view->show();
    QTRY_VERIFY(finished.count() >= 1);
    QCOMPARE(finished.constFirst().at(0).toString(), u"Controlled"_s);
    QCOMPARE_GE(finished.constFirst().at(1).toLongLong(), 0);
}

void tst_WQmlEngine::sceneGraphErrors()
{
    QSignalSpy critical(m_engine, &WQmlEngine::sceneGraphCriticalError);
    const QPointer<WQuickView> first = WQmlEngine::createQmlWindow(u"Plain.qml"_s);
    const QPointer<WQuickView> second = WQmlEngine::createQmlDialog(u"Controlled.qml"_s);
    const auto warning = [](const QString &name, const QString &message) {
        return LogRecorder::Line{
            QtWarningMsg, u"Critical Scene Graph Error creating:  \"%1\"  with message:  \"%2\""_s.arg(name, message)};
    };
    const LogRecorder log;
    Q_EMIT first->sceneGraphError(QQuickWindow::SceneGraphError(0), u"ignored"_s); // the one other value that fits
    QCOMPARE(log.lines(), QList<LogRecorder::Line>());
    QCOMPARE(critical.count(), 0);

    QList<LogRecorder::Line> expected{warning(u"Plain"_s, u"lost"_s)};
    Q_EMIT first->sceneGraphError(QQuickWindow::ContextNotAvailable, u"lost"_s);
    QCOMPARE(log.lines(), expected);
    QCOMPARE(critical.count(), 1);

    expected << warning(u"Controlled"_s, u""_s);
    Q_EMIT second->sceneGraphError(QQuickWindow::ContextNotAvailable, QString());
    QCOMPARE(log.lines(), expected);
    QCOMPARE(critical.count(), 1);

    // From the render thread it arrives by the event loop.
    const std::unique_ptr<QThread> renderThread(
        QThread::create([&] { Q_EMIT first->sceneGraphError(QQuickWindow::ContextNotAvailable, u"elsewhere"_s); }));
    renderThread->start();
    QVERIFY(renderThread->wait());
    QCOMPARE(log.lines(), expected);
    expected << warning(u"Plain"_s, u"elsewhere"_s);
    QTRY_COMPARE(log.lines(), expected);
    QCOMPARE(critical.count(), 1);
    delete first;
    delete second;
}

void tst_WQmlEngine::criticalErrorOnce()
{
    WQmlEngine engine;
    QSignalSpy critical(&engine, &WQmlEngine::sceneGraphCriticalError);
    for (int i = 0; i < 3; ++i) {
        engine.onSceneGraphCriticalError();
        QCOMPARE(critical.count(), 1);
    }
}

LUMAKIT_TEST_MAIN(tst_WQmlEngine)
#include "tst_wqmlengine.moc"
