#pragma once

#include <QObject>
#include <QStringList>

class GalleryApplication;
class QQuickWindow;
class WQuickView;

/// Takes a picture of every page and every popup of the gallery, in every theme, and in one theme mirrored and at the
/// largest font scale.
class PictureRenderer : public QObject
{
    Q_OBJECT

public:
    PictureRenderer(GalleryApplication *application, WQuickView *view, const QString &folder);

    /// Renders, prints the path of each file, and returns the exit code of the program: 0 when all were written. The
    /// first file that cannot be written ends it.
    int run();

private:
    bool renderPages(const QString &suffix);
    bool renderPage(int page, const QString &suffix);
    bool renderPopups(const QString &page, const QString &suffix);
    bool activate();
    bool layOut(QQuickWindow *window);
    bool save(QQuickWindow *window, const QString &name);

    GalleryApplication *m_application;
    WQuickView *m_view;
    QString m_folder;
};
