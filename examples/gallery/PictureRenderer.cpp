#include "PictureRenderer.h"

#include "GalleryApplication.h"
#include "GalleryData.h"

#include <WQuickView.h>

#include <QEventLoop>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTextStream>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr int FastCompression = 80; // the quality at which the PNG writer hardly tries
}

PictureRenderer::PictureRenderer(GalleryApplication *application, WQuickView *view, const QString &folder)
    : m_application(application)
    , m_view(view)
    , m_folder(folder)
{
}

int PictureRenderer::run()
{
    for (const QString &mode : GalleryData::themeModes()) {
        if (mode != m_application->getThemeMode())
            m_application->setThemeMode(mode);
        if (!renderPages(mode))
            return 1;
    }

    m_application->setThemeMode(GalleryData::themeModes().first());
    auto *data = m_view->engine()->singletonInstance<GalleryData *>(u"Gallery"_s, u"Gallery"_s);
    data->setMirrored(true);
    if (!renderPages(u"mirrored"_s))
        return 1;
    data->setMirrored(false);

    m_application->setFontScaleFactor(1.5F);
    return renderPages(u"large"_s) ? 0 : 1;
}

bool PictureRenderer::renderPages(const QString &suffix)
{
    const int pages = m_view->rootObject()->property("pageCount").toInt();
    for (int page = 0; page < pages; ++page) {
        if (!renderPage(page, suffix))
            return false;
    }
    return pages > 0;
}

bool PictureRenderer::renderPage(int page, const QString &suffix)
{
    QQuickItem *root = m_view->rootObject();
    root->setProperty("currentPage", page);
    const QString name = root->property("pageName").toString();
    // A page that is longer than the window shows itself a screenful at a time; how many is known once it is laid out.
    if (!layOut())
        return false;
    const int screenfuls = root->property("screenfuls").toInt();
    for (int screenful = 0; screenful < screenfuls; ++screenful) {
        root->setProperty("screenful", screenful);
        const QString number = screenfuls > 1 ? u"-%1"_s.arg(screenful + 1) : QString();
        if (!layOut() || !save(m_folder + u"/%1%2-%3.png"_s.arg(name, number, suffix)))
            return false;
    }
    root->setProperty("screenful", 0);
    return screenfuls > 0;
}

bool PictureRenderer::layOut()
{
    // Two frames: the first lays out what the change has created.
    for (int frame = 0; frame < 2; ++frame) {
        QEventLoop loop;
        connect(m_view, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
        QTimer::singleShot(5000, &loop, [&loop] { loop.exit(1); });
        m_view->update();
        if (loop.exec() != 0) {
            QTextStream(stderr) << tr("The window shows nothing") << Qt::endl;
            return false;
        }
    }
    return true;
}

bool PictureRenderer::save(const QString &path)
{
    if (!m_view->grabWindow().save(path, "PNG", FastCompression)) {
        QTextStream(stderr) << tr("Cannot write %1").arg(path) << Qt::endl;
        return false;
    }
    QTextStream(stdout) << path << Qt::endl;
    return true;
}
