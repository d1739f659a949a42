#include "WQmlEngine.h"

#include "FixedNativeEventFilter.h"
#include "IWApplication.h"
#include "NativeEventFilter.h"
#include "QmlUtils.h"
#include "WPopupQuickView.h"
#include "WQmlController.h"
#include "WQuickView.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QQmlComponent>
#include <QQuickItem>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

// A view of this name, the host's own inspector, is neither timed nor reloaded.
constexpr auto DevToolsView = "DevToolsView"_L1;

WQmlEngine *applicationEngine()
{
    const auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance());
    WQmlEngine *engine = application ? application->getQmlEngine() : nullptr;
    if (!engine)
        qWarning()
            << "Unable to create QML view! WQmlEngine is not attached to WApplication! This should never happen!";
    return engine;
}

QUrl sourceUrl(const QString &source)
{
    return QUrl("qrc:/Qml/"_L1 + source);
}

QString baseName(const QString &source)
{
    return QFileInfo(source).baseName();
}

} // namespace

WQmlEngine::WQmlEngine(QObject *parent)
    : QQmlEngine(parent)
{
    qRegisterMetaType<QmlViewStatus>("QmlViewStatus");
    fixImportPath();
}

WQmlEngine::~WQmlEngine() = default;

bool WQmlEngine::isReadingQmlFromDisk() const
{
    return m_readQmlFromDisk;
}

bool WQmlEngine::isWatchingPerformance() const
{
    return m_watchingPerformance;
}

QPointer<WQuickView> WQmlEngine::createQmlWindow(const QString &source, QWindow *parent,
                                                 const QMap<QString, QVariant> &initialProperties,
                                                 const ControllerCallback &callback)
{
    return createView<WQuickView>(source, parent, FilterKind::Resizable, initialProperties, callback);
}

QPointer<WQuickView> WQmlEngine::createQmlDialog(const QString &source, QWindow *parent,
                                                 const QMap<QString, QVariant> &initialProperties,
                                                 const ControllerCallback &callback, bool fixedNativeFilter)
{
    const QPointer<QWindow> owner = parent;
    const auto view = createView<WQuickView>(
        source, parent, fixedNativeFilter ? FilterKind::Fixed : FilterKind::Resizable, initialProperties, callback);
    if (!view)
        return view;
    ViewOptions options;
    options.deleteOnClose = true;
    view->setViewOptions(options);
    view->setFlag(Qt::Dialog);
    view->setTransientParent(owner);
    view->adjustViewSize();
    return view;
}

QPointer<WPopupQuickView> WQmlEngine::createQmlPopup(const QString &source, QWindow *parent,
                                                     const QMap<QString, QVariant> &initialProperties,
                                                     const ControllerCallback &callback, bool asDialog)
{
    const QPointer<QWindow> owner = parent;
    const auto view = createView<WPopupQuickView>(source, nullptr, FilterKind::Fixed, initialProperties, callback);
    if (!view)
        return view;
    ViewOptions options;
    options.hideOnDeactivate = true;
    options.deleteOnClose = true;
    options.parentWindow = owner;
    view->setViewOptions(options);
    view->setFlag(Qt::FramelessWindowHint);
    if (asDialog)
        view->setFlag(Qt::Dialog); // with Qt::Popup these are the bits of Qt::Tool, and stay so
    view->adjustViewSize();
    if (owner && owner->screen())
        view->setScreen(owner->screen());
    return view;
}

void WQmlEngine::createQmlComponent(const QString &source, QObject *parent,
                                    const QMap<QString, QVariant> &initialProperties, const ComponentCallback &callback)
{
    if (source.isEmpty()) {
        qWarning() << "Trying to create a Qml view for an empty source! This should never happen! Resource: " << source;
        return;
    }
    const QPointer<QObject> owner = parent;
    WQmlEngine *engine = applicationEngine();
    if (!engine)
        return;
    Q_EMIT engine->qmlViewStatusChanged(Creating, source);
    if (parent && !owner)
        return; // a listener deleted it

    auto *component = new QQmlComponent(engine, parent);
    const auto handleStatus = [=](QQmlComponent::Status status) {
        if (status == QQmlComponent::Loading || status == QQmlComponent::Null)
            return;
        component->setParent(nullptr); // the callback may delete the owner, but not what is emitting
        component->deleteLater(); // what it makes does not need it any more
        if (status != QQmlComponent::Ready)
            return; // not reported: callers of components wait for the callback only
        const QPointer<QObject> object = component->create();
        if (!object)
            return;
        object->setParent(owner);
        object->setObjectName(baseName(source));
        connect(object, &QObject::destroyed, engine,
                [engine, source] { Q_EMIT engine->qmlViewStatusChanged(DestroyedView, source); });
        engine->initializeController(object, source, initialProperties, [object, callback](WQmlController *controller) {
            if (callback && object)
                callback(object, controller);
        });
    };
    connect(component, &QQmlComponent::statusChanged, component, handleStatus);
    component->loadUrl(sourceUrl(source), QQmlComponent::Asynchronous);
}

void WQmlEngine::onSceneGraphCriticalError()
{
    if (m_criticalErrorReported)
        return;
    m_criticalErrorReported = true;
    Q_EMIT sceneGraphCriticalError();
}

void WQmlEngine::setReadQmlFromDisk(bool enabled)
{
    m_readQmlFromDisk = enabled;
}

void WQmlEngine::setPerformanceWatcherEnabled(bool enabled)
{
    if (enabled == m_watchingPerformance)
        return;
    m_watchingPerformance = enabled;
    if (!enabled)
        disconnect(this, &WQmlEngine::finishedRendering, this, nullptr);
}

void WQmlEngine::fixImportPath()
{
    const QString variable = qEnvironmentVariable("QML2_IMPORT_PATH").trimmed();
    const QStringList parts = variable.split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return;
    if (parts.size() > 1)
        qWarning() << "QML2_IMPORT_PATH should have only one path! This should NEVER happen!";

    QStringList paths;
    for (const QString &part : parts) {
        const QString path = QDir::fromNativeSeparators(part);
        if (path.isEmpty())
            continue;
        const QDir directory(path);
        if (directory.exists()) {
            paths.append(path);
            continue;
        }
        qWarning() << "QML2_IMPORT_PATH is invalid! This should NEVER happen!"
                   << "isEmpty:" << directory.isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot)
                   << "isRelative:" << directory.isRelative();
    }
    if (paths.isEmpty())
        qWarning() << "QML2_IMPORT_PATH isn't being set! This should NEVER happen!";
    else
        setImportPathList(paths);
}

void WQmlEngine::reload()
{
    qDebug() << "Reloading WQmlEngine";
    clearComponentCache();
    Q_EMIT reloadAllQmlViews();
}

template<typename View>
QPointer<View> WQmlEngine::createView(const QString &source, QWindow *parent, FilterKind filter,
                                      const QMap<QString, QVariant> &initialProperties,
                                      const ControllerCallback &callback)
{
    if (source.isEmpty()) {
        qWarning() << "Trying to create a Qml view for an empty source! This should never happen!";
        return {};
    }
    const QPointer<QWindow> owner = parent;
    WQmlEngine *engine = applicationEngine();
    if (!engine)
        return {};
    Q_EMIT engine->qmlViewStatusChanged(Creating, source);
    if (parent && !owner)
        return {}; // a listener closed it

    // From here on whoever hears of the view, its QML included, may delete it.
    const QPointer<View> view = new View(engine, parent, ViewOptions());
    view->setObjectName(baseName(source));
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    if (filter == FilterKind::Fixed)
        view->setCustomNativeHandler(std::make_shared<FixedNativeEventFilter>(view));
    else
        view->setCustomNativeHandler(std::make_shared<NativeEventFilter>(view));
    engine->watchView(view, source);
    ControllerCallback controllerCallback = callback;
    if constexpr (std::is_same_v<View, WPopupQuickView>) {
        controllerCallback = [view, callback](WQmlController *controller) {
            if (view)
                view->setControllerView();
            if (callback)
                callback(controller);
        };
        connect(view, &WQuickView::aboutToShow, engine, [engine, view] { engine->setPopupView(view); });
    }
    connect(view, &QQuickView::statusChanged, view, [=](QQuickView::Status status) {
        engine->handleViewStatus(view, status, source, initialProperties, controllerCallback);
    });
    view->setSource(sourceUrl(source));
    return view;
}

void WQmlEngine::setPopupView(QWindow *popup)
{
    // A host that has not registered the library's types has no Utils that could close the popup.
    if (m_utilsType < 0)
        m_utilsType = qmlTypeId("LumakitQml", 1, 0, "Utils");
    if (auto *utils = singletonInstance<QmlUtils *>(m_utilsType))
        utils->setPopupView(popup);
}

void WQmlEngine::watchView(WQuickView *view, const QString &source)
{
    QQuickWindow::setTextRenderType(QQuickWindow::QtTextRendering);
    connect(view, &QQuickWindow::sceneGraphError, this,
            [this, view = QPointer(view)](QQuickWindow::SceneGraphError error, const QString &message) {
                if (error != QQuickWindow::ContextNotAvailable)
                    return;
                qWarning() << "Critical Scene Graph Error creating: " << (view ? view->objectName() : QString())
                           << " with message: " << message;
                onSceneGraphCriticalError();
            });
    if (view->objectName() != DevToolsView) {
        view->setPerformanceWatcherEnabled(m_watchingPerformance);
        if (m_watchingPerformance)
            connect(view, &WQuickView::finishedRendering, this, &WQmlEngine::finishedRendering);
        connect(this, &WQmlEngine::reloadAllQmlViews, view, [view] { reloadView(view); });
    }
    connect(view, &QObject::destroyed, this, [this, source] { Q_EMIT qmlViewStatusChanged(DestroyedView, source); });
}

void WQmlEngine::handleViewStatus(WQuickView *view, int status, const QString &source,
                                  const QMap<QString, QVariant> &initialProperties, const ControllerCallback &callback)
{
    if (status != QQuickView::Ready) {
        Q_EMIT qmlViewStatusChanged(Error, source, u"Unable to load the qml view!"_s);
        return;
    }
    QQuickItem *root = view ? view->rootObject() : nullptr;
    if (!root) {
        // Reported as Creating, not as Error: the message tells it from the start of the work.
        Q_EMIT qmlViewStatusChanged(Creating, source, u"Unable to find the rootObject for this qml view."_s);
        return;
    }
    initializeController(root, source, initialProperties, callback);
}

void WQmlEngine::initializeController(QObject *root, const QString &source,
                                      const QMap<QString, QVariant> &initialProperties,
                                      const ControllerCallback &callback)
{
    const QList<WQmlController *> controllers = root->findChildren<WQmlController *>(Qt::FindDirectChildrenOnly);
    if (controllers.size() > 1) {
        Q_EMIT qmlViewStatusChanged(Error, source, u"The Qml view should have only one controller!"_s);
        return;
    }
    const QPointer<QObject> guard = root;
    const QPointer<WQmlController> controller = controllers.value(0);
    Q_EMIT qmlViewStatusChanged(Initializing, source);
    if (controller) {
        connect(controller, &QObject::destroyed, this,
                [this, source] { Q_EMIT qmlViewStatusChanged(DestroyedController, source); });
        controller->init(initialProperties);
    }
    if (controller && callback)
        callback(controller);
    if (guard) // what one of these deleted is never ready
        Q_EMIT qmlViewStatusChanged(Ready, source);
}

void WQmlEngine::reloadView(WQuickView *view)
{
    const QUrl url = view->source();
    if (!url.isValid()) {
        qWarning() << "Trying to reload an empty QML view";
        return;
    }
    if (url.scheme() == "qrc"_L1) {
        qWarning() << "Reloading views from QRC is not supported." << url;
        return;
    }
    if (view->objectName() == DevToolsView)
        return; // renamed since it was made
    view->setSource(url);
    qDebug() << "Reloading QML view:" << url;
}
