#include "FixedNativeEventFilter.h"

#include "NativeFrame.h"

FixedNativeEventFilter::FixedNativeEventFilter(QPointer<QWindow> window)
    : m_window(std::move(window))
{
}

FixedNativeEventFilter::~FixedNativeEventFilter() = default;

bool FixedNativeEventFilter::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    return NativeFrame::answerFixed(message);
}

void FixedNativeEventFilter::showEvent(QShowEvent *, QPointer<QWindow> window)
{
    NativeFrame::extend(window);
}
