#include "SampleRenderer.h"

#include <TestApplication.h>
#include <WQmlEngine.h>

#include <QDir>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

using namespace Qt::StringLiterals;

void SampleRenderer::useSoftware()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickWindow::setTextRenderType(QQuickWindow::QtTextRendering);
}

QStringList SampleRenderer::names()
{
    QStringList names = QDir(u":/Qml"_s).entryList({u"*Sample.qml"_s}, QDir::Files, QDir::Name);
    names.removeAll("GallerySample.qml"_L1);
    for (QString &name : names)
        name.chop(int(qstrlen("Sample.qml")));
    return names;
}

QImage SampleRenderer::render(const QString &name, const Look &look, QString *error)
{
    auto *application = static_cast<TestApplication *>(QCoreApplication::instance());
    if (application->getThemeMode() != look.themeMode)
        application->setThemeMode(look.themeMode);
    application->setFontScaleFactor(look.fontScaleFactor);
    application->setAnimationsDisabled(true);
    QGuiApplication::setLayoutDirection(look.mirrored ? Qt::RightToLeft : Qt::LeftToRight);

    QQuickView view(application->getQmlEngine(), nullptr);
    QQmlComponent component(view.engine(), QUrl(u"qrc:/Qml/%1Sample.qml"_s.arg(name)));
    std::unique_ptr<QObject> object(component.create());
    auto *item = qobject_cast<QQuickItem *>(object.get());
    if (!item) {
        *error = component.errorString();
        return {};
    }
    view.setContent(component.url(), nullptr, object.release());
    view.setColor(application->getColorSet(u"panel-primary-background"_s).normal);
    view.resize(item->size().toSize());
    view.show();
    if (!QTest::qWaitForWindowExposed(&view)) {
        *error = u"the window is not shown"_s;
        return {};
    }
    // Positioners and what is loaded on demand settle with the frames.
    for (int frame = 0; frame < 3; ++frame) {
        view.resize(item->size().toSize());
        view.grabWindow();
        QCoreApplication::processEvents();
    }
    return view.grabWindow().convertToFormat(QImage::Format_RGB32);
}
