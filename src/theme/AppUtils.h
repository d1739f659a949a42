#pragma once

#include <LumakitQmlExport.h>

#include <QIcon>
#include <QString>

/// What the running application object says about itself, or a neutral answer when it is no WApplication.
namespace AppUtils {

/// The application's logo paths; empty without a WApplication.
LUMAKITQML_EXPORT QString getAppPngIconPath();
LUMAKITQML_EXPORT QString getAppSvgIconPath();

/// The icon of a window: the application's PNG logo, or with `hidden` a transparent 32 x 32 pixmap, for a dialog
/// that must show no icon.
LUMAKITQML_EXPORT QIcon getDialogIcon(bool hidden);

/// The layout runs from right to left; false without a WApplication.
LUMAKITQML_EXPORT bool isRTLLayoutDirection();

} // namespace AppUtils
