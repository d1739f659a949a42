#include "AppUtils.h"

#include "WApplication.h"

#include <QPixmap>

namespace {
WApplication *application()
{
    return qobject_cast<WApplication *>(QCoreApplication::instance());
}
} // namespace

QString AppUtils::getAppPngIconPath()
{
    auto *app = application();
    return app ? app->getLogoPngPath() : QString();
}

QString AppUtils::getAppSvgIconPath()
{
    auto *app = application();
    return app ? app->getLogoSvgPath() : QString();
}

QIcon AppUtils::getDialogIcon(bool hidden)
{
    if (!hidden)
        return QIcon(getAppPngIconPath());
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    return QIcon(pixmap);
}

bool AppUtils::isRTLLayoutDirection()
{
    return application() && QGuiApplication::layoutDirection() == Qt::RightToLeft;
}
