#pragma once

#include <LumakitQmlExport.h>

#include <QColor>
#include <QIcon>
#include <QObject>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QPainter;
class QSvgNode;
class QSvgRenderer;
class QSvgTinyDocument;
QT_END_NAMESPACE

/// Loads one SVG file and paints it in a colour of the caller's choice.
///
/// A file with exactly one top-level element is recoloured: its shapes without a fill of their own take the colour.
/// Any other file is drawn in its own colours, and may be animated. GUI thread only.
class LUMAKITQML_EXPORT WSvgRenderer : public QObject
{
    Q_OBJECT

public:
    explicit WSvgRenderer(QObject *parent = nullptr);
    explicit WSvgRenderer(const QString &path, QObject *parent = nullptr);
    ~WSvgRenderer() override;

    /// A new renderer for an icon of the host's resources; an empty name loads nothing. A null parent is warned about.
    static WSvgRenderer *loadIconResource(const QString &name, QObject *parent);

    /// ":/Resources/" + name + ".svg"
    static QString resourcePath(const QString &name);

    /// Loads a file, "qrc:/..." included. The path that is loaded already costs nothing. On failure logs a warning,
    /// returns false and leaves the renderer empty.
    bool load(const QString &path);
    /// Loads an icon of the host's resources; false, with nothing changed, for an empty name.
    bool updateIconResource(const QString &name);

    /// The path as it was given to load(); empty when nothing is loaded.
    QString getLoadedPath() const;
    bool isLoaded() const;
    bool isAnimated() const;

    /// Paints into the rectangle (logical pixels), aspect ratio kept. `opacity` is 0..1; it and the colour count only
    /// for files that are recoloured.
    void draw(QPainter *painter, const QRectF &rect, const QColor &color, double opacity) const;

    /// Paints a file that is not recoloured at the origin, as wide as `rect`'s height asks for and as high as its own
    /// view box.
    void drawScalingHeight(QPainter *painter, const QRectF &rect) const;

    /// A pixmap of `pixmapSize` device pixels with the icon in `iconRect` (logical pixels). An icon larger than the
    /// pixmap is warned about and clipped. A size that cannot be allocated logs a warning and gives a null pixmap.
    QPixmap renderPixmap(const QRectF &iconRect, const QSize &pixmapSize, double devicePixelRatio, const QColor &color,
                         const QColor &background) const;
    /// The icon centred in the pixmap.
    QPixmap renderPixmap(const QSize &iconSize, const QSize &pixmapSize, double devicePixelRatio, const QColor &color,
                         const QColor &background) const;
    /// The icon fills the pixmap; the background is transparent.
    QPixmap renderPixmap(const QSize &size, double devicePixelRatio, const QColor &color) const;

    /// An icon with an image each for off and on. An empty name repeats what is loaded. Leaves `onName` loaded.
    QIcon renderIcon(const QString &offName, const QString &onName, const QSize &size, double devicePixelRatio,
                     const QColor &color, QIcon::Mode mode);

Q_SIGNALS:
    /// The next frame of an animated file is due.
    void repaintNeeded();

protected:
    void connectNotify(const QMetaMethod &signal) override;

private:
    QSvgNode *getSvgNode() const;
    void clear();

    std::unique_ptr<QSvgTinyDocument> m_document;
    std::unique_ptr<QSvgRenderer> m_renderer;
    QString m_loadedPath;
};
