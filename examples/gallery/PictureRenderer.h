#pragma once

#include <QObject>
#include <QStringList>

class GalleryApplication;
class WQuickView;

/// Takes a picture of every page of the gallery, in every theme, and in one theme mirrored and at the largest font
/// scale.
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
    bool layOut();
    bool save(const QString &path);

    GalleryApplication *m_application;
    WQuickView *m_view;
    QString m_folder;
};
