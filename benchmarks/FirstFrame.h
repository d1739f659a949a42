#pragma once

#include <QQuickWindow>

#include <functional>

/// Shows a window and returns when it has shown a frame. A window without one ends the benchmark.
void showFirstFrame(QQuickWindow *window, const std::function<void()> &show);
/// The same with QWindow::show().
void showFirstFrame(QQuickWindow *window);
