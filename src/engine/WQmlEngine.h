#pragma once

#include <LumakitQmlExport.h>

#include <QMap>
#include <QPointer>
#include <QQmlEngine>
#include <QString>
#include <QVariant>

#include <functional>

class QWindow;
class WPopupQuickView;
class WQmlController;
class WQuickView;
struct ViewOptions;

/// The one QML engine of an application, and the maker of all its QML windows, dialogs, popups and components.
///
/// The factories find the engine through the application object and load "qrc:/Qml/" + source. Each reports the life
/// of what it makes through qmlViewStatusChanged(). Without an IWApplication they log a warning and make nothing.
class LUMAKITQML_EXPORT WQmlEngine : public QQmlEngine
{
    Q_OBJECT

public:
    enum QmlViewStatus {
        Creating = 0, ///< work has begun; with a message: the loaded view has no root object
        Initializing = 1, ///< loaded; the controller's init() is next
        Ready = 2, ///< the controller is initialised and the callback was called
        DestroyedController = 3, ///< the controller is gone
        DestroyedView = 4, ///< the view or component object is gone
        Error = 5, ///< the QML cannot be loaded, or it has more than one controller
    };
    Q_ENUM(QmlViewStatus)

    /// Receives the controller of a view that is ready, again after each reload.
    using ControllerCallback = std::function<void(WQmlController *)>;
    /// Receives the object of a component that is ready, and its controller.
    using ComponentCallback = std::function<void(QObject *, WQmlController *)>;

    /// Takes its import path from the environment variable QML2_IMPORT_PATH, one directory, if it is set.
    explicit WQmlEngine(QObject *parent = nullptr);
    ~WQmlEngine() override;

    /// A flag for the host's own use; the factories load from the resources either way.
    bool isReadingQmlFromDisk() const;
    /// New views time their frames.
    bool isWatchingPerformance() const;

    /// A window, not shown yet: the caller shows it. It is a child of the parent window, if there is one. Null for an
    /// empty source, which logs a warning.
    static QPointer<WQuickView> createQmlWindow(const QString &source, QWindow *parent = nullptr,
                                                const QMap<QString, QVariant> &initialProperties = {},
                                                const std::function<void(WQmlController *)> &callback = {});

    /// A dialog of its root item's size, not shown yet, deleted when it is closed. With `fixedNativeFilter` its border
    /// does not resize it.
    static QPointer<WQuickView> createQmlDialog(const QString &source, QWindow *parent = nullptr,
                                                const QMap<QString, QVariant> &initialProperties = {},
                                                const std::function<void(WQmlController *)> &callback = {},
                                                bool fixedNativeFilter = false);

    /// A popup of its root item's size, frameless, that hides and is deleted when it is no longer active or `parent`
    /// moves. It is not shown yet: the caller shows it beside something. A WQmlPopupController knows the view before
    /// the callback runs.
    static QPointer<WPopupQuickView> createQmlPopup(const QString &source, QWindow *parent = nullptr,
                                                    const QMap<QString, QVariant> &initialProperties = {},
                                                    const std::function<void(WQmlController *)> &callback = {},
                                                    bool asDialog = false);

    /// A QML object that is no window, loaded asynchronously and owned by `parent`. A source that cannot be loaded is
    /// never reported. A root without a controller is reported as ready, but not called back.
    static void createQmlComponent(const QString &source, QObject *parent = nullptr,
                                   const QMap<QString, QVariant> &initialProperties = {},
                                   const std::function<void(QObject *, WQmlController *)> &callback = {});

Q_SIGNALS:
    /// `viewName` is the source that the factory was given; several views may share it.
    void qmlViewStatusChanged(WQmlEngine::QmlViewStatus status, const QString &viewName,
                              const QString &message = QString());
    /// Every view whose source is not in the resources loads it again.
    void reloadAllQmlViews();
    /// A view made while the performance is watched has rendered a frame.
    void finishedRendering(const QString &source, qint64 milisec);
    /// A view has lost its graphics context; emitted once at most.
    void sceneGraphCriticalError();

public Q_SLOTS:
    void onSceneGraphCriticalError();

protected:
    void setReadQmlFromDisk(bool enabled);
    /// Counts for views made from now on. Turning it off also drops what the engine itself has connected to
    /// finishedRendering().
    void setPerformanceWatcherEnabled(bool enabled);
    void fixImportPath();

private Q_SLOTS:
    /// Clears the component cache and emits reloadAllQmlViews().
    void reload();

private:
    enum class FilterKind { Resizable, Fixed };

    template<typename View>
    static QPointer<View> createView(const QString &source, QWindow *parent, FilterKind filter,
                                     const QMap<QString, QVariant> &initialProperties,
                                     const ControllerCallback &callback);
    static void reloadView(WQuickView *view);

    void setPopupView(QWindow *popup);
    void watchView(WQuickView *view, const QString &source);
    void handleViewStatus(WQuickView *view, int status, const QString &source,
                          const QMap<QString, QVariant> &initialProperties, const ControllerCallback &callback);
    void initializeController(QObject *root, const QString &source, const QMap<QString, QVariant> &initialProperties,
                              const ControllerCallback &callback);

    int m_utilsType = -1;
    bool m_readQmlFromDisk = false;
    bool m_watchingPerformance = false;
    bool m_criticalErrorReported = false;
};
