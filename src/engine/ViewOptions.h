#pragma once

#include <LumakitQmlExport.h>

#include <QPointer>
#include <QWindow>

/// How a WQuickView behaves.
struct LUMAKITQML_EXPORT ViewOptions
{
    /// showAt() shows the view in a later turn of the event loop, and activates it.
    bool dispatchShowEnabled = false;
    /// The view hides when it is no longer the active window, or when parentWindow moves.
    bool hideOnDeactivate = false;
    /// A close request deletes the view; a view that hides on deactivation closes then.
    bool deleteOnClose = true;
    /// A close request has no effect.
    bool preventClose = false;
    /// The view's content takes the focus when the view becomes active.
    bool focusOnActivate = false;
    /// The window whose moves hideOnDeactivate watches.
    QPointer<QWindow> parentWindow;
};
