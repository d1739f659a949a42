#include "GalleryApplication.h"
#include "PictureRenderer.h"

#include <WQmlEngine.h>
#include <WQuickView.h>

#include <QCommandLineParser>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QCoreApplication::setOrganizationName(u"LumakitQml"_s);
    QCoreApplication::setApplicationName(u"Gallery"_s);

    // Pictures start from the defaults and leave the user's choice alone; the theme is read on construction.
    const bool renders = std::any_of(argv, argv + argc, [](const char *argument) {
        return QLatin1StringView(argument) == "--render"_L1 || QLatin1StringView(argument).startsWith("--render="_L1);
    });
    const QTemporaryDir settings;
    if (renders) {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    }

    GalleryApplication application(argc, argv);
    application.setAnimationsDisabled(renders);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows what LumakitQml has."_s);
    parser.addHelpOption();
    const QCommandLineOption render(u"render"_s, u"Write a picture of each page in each theme to <folder> and quit."_s,
                                    u"folder"_s);
    parser.addOption(render);
    parser.process(application);

    const QPointer<WQuickView> window = WQmlEngine::createQmlWindow(u"Gallery.qml"_s);
    if (!window || !window->rootObject())
        return 1;
    window->setTitle(u"LumakitQml Gallery"_s);
    window->setMinimumSize({800, 500});
    window->show();
    if (parser.isSet(render))
        return PictureRenderer(&application, window, parser.value(render)).run();
    return QApplication::exec();
}
