#pragma once

#include <LumakitQmlExport.h>

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPointer>
#include <QWindow>

class QShowEvent;

/// Receives every native message of one WQuickView, and its show events. Not installed on the application.
class LUMAKITQML_EXPORT WQAbstractNativeEventFilter : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    WQAbstractNativeEventFilter();
    ~WQAbstractNativeEventFilter() override;

    /// Called before the view handles its show event.
    virtual void showEvent(QShowEvent *event, QPointer<QWindow> window) = 0;
};
