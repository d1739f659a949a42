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

PictureRenderer::PictureRenderer(GalleryApplication *application, WQuickView *view, const QString &folder)
    : m_application(application)
    , m_view(view)
    , m_folder(folder)
{
}

int PictureRenderer::run()
{
    const int pages = m_view->rootObject()->property("pageCount").toInt();
    bool complete = pages > 0;
    for (const QString &mode : GalleryData::themeModes()) {
        if (mode != m_application->getThemeMode())
            m_application->setThemeMode(mode);
        for (int page = 0; page < pages; ++page)
            complete &= renderPage(page, mode);
    }

    m_application->setThemeMode(GalleryData::themeModes().first());
    auto *data = m_view->engine()->singletonInstance<GalleryData *>(u"Gallery"_s, u"Gallery"_s);
    data->setMirrored(true);
    for (int page = 0; page < pages; ++page)
        complete &= renderPage(page, u"mirrored"_s);
    data->setMirrored(false);

    m_application->setFontScaleFactor(1.5F);
    for (int page = 0; page < pages; ++page)
        complete &= renderPage(page, u"large"_s);
    m_application->setFontScaleFactor(1.0F);
    return complete ? 0 : 1;
}

bool PictureRenderer::renderPage(int page, const QString &suffix)
{
    QQuickItem *root = m_view->rootObject();
    root->setProperty("currentPage", page);
    const QString name = root->property("pageName").toString();
    // A page that is longer than the window shows itself a screenful at a time.
    const int screenfuls = root->property("screenfuls").toInt();
    bool complete = true;
    for (int screenful = 0; screenful < screenfuls; ++screenful) {
        root->setProperty("screenful", screenful);
        const QString number = screenfuls > 1 ? u"-%1"_s.arg(screenful + 1) : QString();
        complete &= save(u"%1%2-%3.png"_s.arg(name, number, suffix));
    }
    root->setProperty("screenful", 0);
    return complete;
}

bool PictureRenderer::save(const QString &name)
{
    // Two frames: the first lays out what the change has created.
    for (int frame = 0; frame < 2; ++frame) {
        QEventLoop loop;
        connect(m_view, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
        QTimer::singleShot(5000, &loop, [&loop] { loop.exit(1); });
        m_view->update();
        if (loop.exec() != 0)
            return false;
    }
    const QString path = m_folder + u'/' + name;
    const bool saved = m_view->grabWindow().save(path);
    QTextStream(stdout) << (saved ? path : tr("Cannot write %1").arg(path)) << Qt::endl;
    return saved;
}
