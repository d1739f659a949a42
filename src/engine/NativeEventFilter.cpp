#include "NativeEventFilter.h"

#include "NativeFrame.h"

NativeEventFilter::NativeEventFilter(QPointer<QWindow> window)
    : m_window(std::move(window))
{
    if (!m_window)
        return;
    m_maximized = m_window->windowState() == Qt::WindowMaximized;
    m_fullScreen = m_window->windowState() == Qt::WindowFullScreen;
    connect(m_window, &QWindow::windowStateChanged, this, &NativeEventFilter::updateWindowState);
}

NativeEventFilter::~NativeEventFilter() = default;

bool NativeEventFilter::nativeEventFilter(const QByteArray &, void *message, qintptr *result)
{
    return m_window && NativeFrame::answerResizable(message, m_maximized || m_fullScreen, result);
}

void NativeEventFilter::showEvent(QShowEvent *, QPointer<QWindow> window)
{
    NativeFrame::extend(window);
}

void NativeEventFilter::updateWindowState(Qt::WindowState state)
{
    if (state == m_currentState)
        return;
    const bool wasMinimizedFromMaximized =
        m_currentState == Qt::WindowMinimized && m_previousState == Qt::WindowMaximized;
    m_previousState = m_currentState;
    m_currentState = state;
    m_maximized = state == Qt::WindowMaximized;
    m_fullScreen = state == Qt::WindowFullScreen;
    if (wasMinimizedFromMaximized)
        m_window->showMaximized(); // the task bar would restore it as a normal window
}
