#pragma once

#include "ViewOptions.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QPointer>
#include <QQuickView>

#include <functional>
#include <memory>

class QScreen;
class QWidget;
class WQAbstractNativeEventFilter;
class WQmlController;
class WQmlEngine;

/// The top-level window that shows a QML file. Made by the factories of WQmlEngine; by default it deletes itself when
/// it is closed.
class LUMAKITQML_EXPORT WQuickView : public QQuickView
{
    Q_OBJECT

public:
    /// A plain view with an engine of its own; dispatchShow() shows nothing on it.
    explicit WQuickView(QWindow *parent = nullptr);
    /// A view on the engine. One with a parent window shows no icon.
    WQuickView(WQmlEngine *engine, QWindow *parent, const ViewOptions &options);
    ~WQuickView() override;

    ViewOptions getViewOptions();
    /// Takes the options. What hideOnDeactivate has once watched stays watched.
    void setViewOptions(const ViewOptions &options);

    /// Sizes the window to the root item, now and whenever the item's size changes.
    void adjustViewSize();

    /// Shows the view with its top-left corner at `pos` (global), moved left and up where it would be cut off. Without
    /// a screen the view's own is taken; with neither nothing happens.
    void showAt(const QPoint &pos, QScreen *screen);
    /// Shows the view under the widget, centred horizontally.
    void showAt(const QWidget *widget, QScreen *screen);
    /// Shows and activates an engine-made view in a later turn of the event loop.
    void dispatchShow();

    /// The cursor is over the window.
    bool underMouse() const;

    /// Calls back with the view's controller, if it has one.
    void callControllerCallback(const std::function<void(WQmlController *)> &callback);

    /// The filter that answers this view's native messages in place of Qt; null for none.
    void setCustomNativeHandler(std::shared_ptr<WQAbstractNativeEventFilter> handler);

    /// Times each frame, reported by finishedRendering().
    void setPerformanceWatcherEnabled(bool enabled);
    bool getPerformanceWatcherEnabled() const;

    void showEvent(QShowEvent *event) override;
    bool nativeEvent(const QByteArray &eventType, void *message, qintptr *result) override;

Q_SIGNALS:
    /// On every close request, also one that is refused.
    void aboutToClose();
    /// On every show event.
    void aboutToShow();
    void _dispatchShow();
    /// A frame was rendered; `source` is the object name, the base name of the QML file for an engine-made view.
    void finishedRendering(const QString &source, qint64 milisec);

public Q_SLOTS:
    /// Applies focusOnActivate or hideOnDeactivate to a visible view.
    void onActiveChanged();

protected:
    bool event(QEvent *event) override;

    /// The first controller among the direct children of the root item; null when there is none.
    QPointer<WQmlController> findController();

private Q_SLOTS:
    void updateSize();

private:
    ViewOptions m_options;
    std::unique_ptr<QElapsedTimer> m_renderTimer;
    QMetaObject::Connection m_beforeRendering;
    QMetaObject::Connection m_afterRendering;
    std::shared_ptr<WQAbstractNativeEventFilter> m_nativeHandler;
};
