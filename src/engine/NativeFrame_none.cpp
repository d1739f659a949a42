#include "NativeFrame.h"

bool NativeFrame::answerResizable(void *, bool, qintptr *)
{
    return false;
}

bool NativeFrame::answerFixed(void *)
{
    return false;
}

void NativeFrame::extend(QWindow *) { }
