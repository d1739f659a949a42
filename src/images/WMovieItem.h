#pragma once

#include <LumakitQmlExport.h>

#include <QMovie>
#include <QPointer>
#include <QQuickItem>

/// Shows a QMovie in a scene, fitted into the item with its aspect ratio kept.
///
/// It repaints when the movie has a new frame, and pauses the movie while the item is not visible. It does not own the
/// movie: when the movie is deleted the item is empty. Its implicit size is that of the frames.
class LUMAKITQML_EXPORT WMovieItem : public QQuickItem
{
    Q_OBJECT
    /// Started when it is set, unless it runs or was paused already.
    Q_PROPERTY(QMovie *movie READ movie WRITE setMovie NOTIFY movieChanged)

public:
    explicit WMovieItem(QQuickItem *parent = nullptr);
    ~WMovieItem() override;

    QMovie *movie() const;
    void setMovie(QMovie *movie);

Q_SIGNALS:
    /// Also when the movie was deleted.
    void movieChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    void showFrame();
    void followVisibility();
    void dropMovie();

    QPointer<QMovie> m_movie;
    bool m_frameIsNew = false;
    bool m_pausedWhileHidden = false;
};
