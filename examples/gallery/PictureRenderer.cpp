#include "PictureRenderer.h"

#include "GalleryApplication.h"
#include "GalleryData.h"
#include "GalleryPopups.h"

#include <WPopupQuickView.h>
#include <WQuickView.h>

#include <QEventLoop>
#include <QMetaEnum>
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
    if (!layOut(m_view))
        return false;
    const int screenfuls = root->property("screenfuls").toInt();
    for (int screenful = 0; screenful < screenfuls; ++screenful) {
        root->setProperty("screenful", screenful);
        const QString number = screenfuls > 1 ? u"-%1"_s.arg(screenful + 1) : QString();
        if (!layOut(m_view) || !save(m_view, u"%1%2-%3"_s.arg(name, number, suffix)))
            return false;
    }
    root->setProperty("screenful", 0);
    return screenfuls > 0 && renderPopups(name, suffix);
}

// The page of the popups has an anchor to open them at.
bool PictureRenderer::renderPopups(const QString &page, const QString &suffix)
{
    auto *anchor = m_view->rootObject()->findChild<QQuickItem *>(u"anchor"_s);
    if (!anchor)
        return true;
    auto *popups = m_view->engine()->singletonInstance<GalleryPopups *>(u"Gallery"_s, u"Popups"_s);
    const auto kinds = QMetaEnum::fromType<GalleryPopups::Kind>();
    for (int i = 0; i < kinds.keyCount(); ++i) {
        // A popup is shown while the application is active only, and closes when another window becomes active.
        if (!activate())
            return false;
        popups->show(GalleryPopups::Kind(kinds.value(i)), anchor, Qt::UpArrow);
        const QString kind = QString::fromLatin1(kinds.key(i)).toLower();
        QQuickWindow *popup = popups->view();
        if (!popup || !layOut(popup) || !save(popup, u"%1-%2-%3"_s.arg(page, kind, suffix)))
            return false;
        QEventLoop loop;
        connect(popup, &QObject::destroyed, &loop, &QEventLoop::quit);
        popups->hide();
        loop.exec();
    }
    return true;
}

bool PictureRenderer::activate()
{
    m_view->requestActivate();
    if (!m_view->isActive()) {
        QEventLoop loop;
        connect(m_view, &QWindow::activeChanged, &loop, &QEventLoop::quit);
        QTimer::singleShot(5000, &loop, &QEventLoop::quit);
        loop.exec();
    }
    if (!m_view->isActive())
        QTextStream(stderr) << tr("The window is not active") << Qt::endl;
    return m_view->isActive();
}

bool PictureRenderer::layOut(QQuickWindow *window)
{
    // Two frames: the first lays out what the change has created.
    for (int frame = 0; frame < 2; ++frame) {
        QEventLoop loop;
        connect(window, &QObject::destroyed, &loop, [&loop] { loop.exit(1); });
        connect(window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
        QTimer::singleShot(5000, &loop, [&loop] { loop.exit(1); });
        window->update();
        if (loop.exec() != 0) {
            QTextStream(stderr) << tr("The window shows nothing") << Qt::endl;
            return false;
        }
    }
    return true;
}

bool PictureRenderer::save(QQuickWindow *window, const QString &name)
{
    const QString path = u"%1/%2.png"_s.arg(m_folder, name);
    if (!window->grabWindow().save(path, "PNG", FastCompression)) {
        QTextStream(stderr) << tr("Cannot write %1").arg(path) << Qt::endl;
        return false;
    }
    QTextStream(stdout) << path << Qt::endl;
    return true;
}
