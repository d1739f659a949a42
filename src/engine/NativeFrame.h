#pragma once

#include <QtTypes>

class QWindow;

/// The platform's side of frameless windows: NativeFrame_win.cpp on Windows, NativeFrame_none.cpp elsewhere.
namespace NativeFrame {

/// Answers a native message of a resizable window; see WindowMessages. False for a message without a window.
bool answerResizable(void *message, bool borderless, qintptr *result);

/// Answers a native message of a window of fixed size.
bool answerFixed(void *message);

/// Brings back the frame, for shadow and snapping; the messages keep it invisible.
void extend(QWindow *window);

} // namespace NativeFrame
