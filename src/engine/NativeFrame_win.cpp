#include "NativeFrame.h"

#include "WindowMessages.h"

#include <QWindow>

#include <dwmapi.h>

bool NativeFrame::answerResizable(void *message, bool borderless, qintptr *result)
{
    const auto *msg = static_cast<const MSG *>(message);
    if (!msg || !msg->hwnd)
        return false;
    LRESULT answer = *result;
    const bool answered = WindowMessages::answerResizable(*msg, borderless, answer);
    *result = answer;
    return answered;
}

bool NativeFrame::answerFixed(void *message)
{
    const auto *msg = static_cast<const MSG *>(message);
    return msg && msg->hwnd && WindowMessages::answerFixed(*msg);
}

void NativeFrame::extend(QWindow *window)
{
    if (!window)
        return;
    const MARGINS margins{1, 1, 1, 1};
    DwmExtendFrameIntoClientArea(reinterpret_cast<HWND>(window->winId()), &margins);
    window->setFlag(Qt::FramelessWindowHint, false);
}
