#pragma once

#include "WindowFrame.h"

#include <windows.h>

/// What a frameless window answers to native messages. Windows only; free of Qt.
namespace WindowMessages {

/// Pixels at the window's edge that resize it.
constexpr int BorderWidth = 4;

/// For a resizable window: the whole rectangle is client area, and the border resizes unless the window is
/// `borderless` (maximised or full screen). True when `result` is the window's answer; false leaves it to the toolkit.
inline bool answerResizable(const MSG &message, bool borderless, LRESULT &result)
{
    switch (message.message) {
    case WM_NCCALCSIZE:
        if (message.wParam != TRUE)
            return false;
        result = WVR_HREDRAW | WVR_VREDRAW;
        return true;
    case WM_NCHITTEST: {
        RECT rect{};
        GetWindowRect(message.hwnd, &rect);
        result = 0;
        if (borderless)
            return false;
        const auto x = static_cast<short>(LOWORD(message.lParam));
        const auto y = static_cast<short>(HIWORD(message.lParam));
        result = WindowFrame::borderHitCode({static_cast<int>(rect.left), static_cast<int>(rect.top),
                                             static_cast<int>(rect.right), static_cast<int>(rect.bottom)},
                                            x, y, BorderWidth);
        return result != 0;
    }
    case WM_DPICHANGED: // the toolkit scales by itself
        return true;
    default:
        return false;
    }
}

/// For a window of fixed size: all client area, no border.
inline bool answerFixed(const MSG &message)
{
    return message.message == WM_NCCALCSIZE || message.message == WM_DPICHANGED;
}

} // namespace WindowMessages
