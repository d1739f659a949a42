#pragma once

#include "WQAbstractNativeEventFilter.h"

/// Keeps the native frame of a window of fixed size invisible. On systems other than Windows it does nothing.
class LUMAKITQML_EXPORT FixedNativeEventFilter : public WQAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit FixedNativeEventFilter(QPointer<QWindow> window);
    ~FixedNativeEventFilter() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void showEvent(QShowEvent *event, QPointer<QWindow> window) override;

private:
    QPointer<QWindow> m_window;
};
