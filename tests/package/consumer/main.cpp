#include <LumakitQml/WApplication.h>
#include <WFont.h>
#include <WQmlEngine.h>
#include <WQuickView.h>
#include <WSvgRenderer.h>
#include <WThemeUtils.h>

#include <QLoggingCategory>
#include <QQuickItem>

#include <cstdio>

// Uses a part of each subsystem, so that a symbol that is not exported does not link. Silent when all is well.
int main(int argc, char **argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("LumakitQml"));
    QCoreApplication::setApplicationName(QStringLiteral("Consumer"));
    // There are no theme files here; the messages about it are not what this is for.
    QLoggingCategory::setFilterRules(QStringLiteral("default=false"));
    WApplication application(argc, argv);
    qmlRegisterSingletonInstance("Corvane", 1, 0, "App", &application);

    const auto fail = [](const char *what) {
        std::fprintf(stderr, "%s\n", what);
        return 1;
    };
    if (!application.getColorSet(QStringLiteral("transparent")).isValid())
        return fail("no colour set");
    if (WThemeUtils::colorSetTokenName(641).isEmpty())
        return fail("no token names");
    if (WFont(WFont::Title, false).pixelSize() != 20)
        return fail("no font tokens");
    if (WSvgRenderer(nullptr).isLoaded())
        return fail("an empty renderer is loaded");

    const QPointer<WQuickView> view = WQmlEngine::createQmlWindow(QStringLiteral("Consumer.qml"));
    if (!view || !view->rootObject() || view->rootObject()->implicitWidth() != 120)
        return fail("no view");
    delete view;
    return 0;
}
