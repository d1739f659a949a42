#pragma once

#include "WQAbstractNativeEventFilter.h"

/// Keeps the native frame of a resizable window invisible but its border, snapping and shadow alive, and brings a
/// window that was minimised from maximised back maximised. Native messages mean something on Windows only.
class LUMAKITQML_EXPORT NativeEventFilter : public WQAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit NativeEventFilter(QPointer<QWindow> window);
    ~NativeEventFilter() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void showEvent(QShowEvent *event, QPointer<QWindow> window) override;

private:
    void updateWindowState(Qt::WindowState state);

    QPointer<QWindow> m_window;
    Qt::WindowState m_previousState = Qt::WindowNoState;
    Qt::WindowState m_currentState = Qt::WindowNoState;
    bool m_maximized = false;
    bool m_fullScreen = false;
};
