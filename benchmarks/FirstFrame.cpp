#include "FirstFrame.h"

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

void showFirstFrame(QQuickWindow *window, const std::function<void()> &show)
{
    bool shown = false;
    QObject context;
    QObject::connect(window, &QQuickWindow::frameSwapped, &context, [&shown] { shown = true; });
    QTimer::singleShot(std::chrono::seconds(20), &context, [] { qFatal("the window shows nothing"); });
    show();
    while (!shown)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void showFirstFrame(QQuickWindow *window)
{
    showFirstFrame(window, [window] { window->show(); });
}
