#include "WQuickView.h"

#include "AppUtils.h"
#include "ViewPlacement.h"
#include "WQAbstractNativeEventFilter.h"
#include "WQmlController.h"
#include "WQmlEngine.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickItem>
#include <QScreen>
#include <QWidget>

WQuickView::WQuickView(QWindow *parent)
    : QQuickView(parent)
{
}

WQuickView::WQuickView(WQmlEngine *engine, QWindow *parent, const ViewOptions &options)
    : QQuickView(engine, parent)
{
    setIcon(AppUtils::getDialogIcon(parent != nullptr));
    setViewOptions(options);
    const auto showAndActivate = [this] {
        show();
        requestActivate();
    };
    connect(this, &WQuickView::_dispatchShow, this, showAndActivate, Qt::QueuedConnection);
}

WQuickView::~WQuickView() = default;

ViewOptions WQuickView::getViewOptions()
{
    return m_options;
}

void WQuickView::setViewOptions(const ViewOptions &options)
{
    m_options = options;
    if (!options.hideOnDeactivate)
        return;
    connect(this, &QWindow::activeChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
    if (QWindow *window = options.parentWindow) {
        connect(window, &QWindow::xChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
        connect(window, &QWindow::yChanged, this, &WQuickView::onActiveChanged, Qt::UniqueConnection);
    }
}

void WQuickView::adjustViewSize()
{
    updateSize();
    if (const QQuickItem *root = rootObject()) {
        connect(root, &QQuickItem::heightChanged, this, &WQuickView::updateSize, Qt::UniqueConnection);
        connect(root, &QQuickItem::widthChanged, this, &WQuickView::updateSize, Qt::UniqueConnection);
    }
}

void WQuickView::showAt(const QPoint &pos, QScreen *targetScreen)
{
    if (!targetScreen)
        targetScreen = screen();
    if (!targetScreen)
        return;
    if (targetScreen != screen()) // a child window is always on its parent's, and Qt warns when it is set
        setScreen(targetScreen);
    setPosition(ViewPlacement::positionOnScreen(QRect(pos, size()), targetScreen->availableGeometry()));
    if (m_options.dispatchShowEnabled)
        dispatchShow();
    else
        show();
}

void WQuickView::showAt(const QWidget *widget, QScreen *targetScreen)
{
    const QPoint centre = widget->mapToGlobal(widget->rect().center());
    showAt(centre + QPoint(-width() / 2, widget->height() / 2), targetScreen);
}

void WQuickView::dispatchShow()
{
    Q_EMIT _dispatchShow();
}

bool WQuickView::underMouse() const
{
    return geometry().contains(QCursor::pos());
}

void WQuickView::callControllerCallback(const std::function<void(WQmlController *)> &callback)
{
    const QPointer<WQmlController> controller = findController();
    if (controller && callback)
        callback(controller);
}

void WQuickView::setCustomNativeHandler(std::shared_ptr<WQAbstractNativeEventFilter> handler)
{
    m_nativeHandler = std::move(handler);
}

void WQuickView::setPerformanceWatcherEnabled(bool enabled)
{
    disconnect(m_beforeRendering);
    disconnect(m_afterRendering);
    m_renderTimer.reset();
    if (!enabled)
        return;

    m_renderTimer = std::make_unique<QElapsedTimer>();
    m_renderTimer->start();
    // With the threaded render loop both signals come from the render thread and are queued to this one.
    m_beforeRendering = connect(this, &QQuickWindow::beforeRendering, this, [this] {
        if (m_renderTimer)
            m_renderTimer->restart();
    });
    m_afterRendering = connect(this, &QQuickWindow::afterRendering, this, [this] {
        if (m_renderTimer)
            Q_EMIT finishedRendering(objectName(), m_renderTimer->elapsed());
    });
}

bool WQuickView::getPerformanceWatcherEnabled() const
{
    return m_renderTimer != nullptr;
}

void WQuickView::onActiveChanged()
{
    if (!isVisible())
        return;
    if (isActive()) {
        if (m_options.focusOnActivate && status() == Ready && contentItem())
            contentItem()->setFocus(true, Qt::ActiveWindowFocusReason);
    } else if (m_options.hideOnDeactivate) {
        hide();
        if (m_options.deleteOnClose)
            close();
    }
}

bool WQuickView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Close:
        Q_EMIT aboutToClose();
        if (m_options.preventClose)
            return true;
        if (m_options.deleteOnClose)
            deleteLater();
        break;
    case QEvent::Show:
        Q_EMIT aboutToShow();
        break;
    default:
        break;
    }
    return QQuickView::event(event);
}

void WQuickView::showEvent(QShowEvent *event)
{
    if (m_nativeHandler)
        m_nativeHandler->showEvent(event, this);
    QQuickView::showEvent(event);
}

bool WQuickView::nativeEvent(const QByteArray &eventType, void *message, qintptr *result)
{
    if (m_nativeHandler)
        return m_nativeHandler->nativeEventFilter(eventType, message, result);
    return QQuickView::nativeEvent(eventType, message, result);
}

QPointer<WQmlController> WQuickView::findController()
{
    return rootObject() ? rootObject()->findChild<WQmlController *>(Qt::FindDirectChildrenOnly) : nullptr;
}

void WQuickView::updateSize()
{
    if (const QQuickItem *root = rootObject())
        resize(QSizeF(root->width(), root->height()).toSize());
}
