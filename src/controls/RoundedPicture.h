#pragma once

#include <QImage>
#include <QPointer>
#include <QQuickItem>

class QQuickImage;

/// Draws the picture of the Image that it is declared in with round corners; the image itself then draws nothing. The
/// picture fills this item, cropped to its proportions. Works on every scene graph back end, without shaders.
class RoundedPicture : public QQuickItem
{
    Q_OBJECT
    /// Of the corners, pixels; half the side of a square makes a circle.
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)

public:
    explicit RoundedPicture(QQuickItem *parent = nullptr);
    ~RoundedPicture() override;

    double radius() const;
    void setRadius(double radius);

Q_SIGNALS:
    void radiusChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    QPointer<QQuickImage> m_image;
    QImage m_picture;
    bool m_pictureIsNew = false;
    double m_radius = 0;
};
