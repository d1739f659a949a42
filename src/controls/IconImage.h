#pragma once

#include <QColor>
#include <QString>
#include <QUrl>

#include <QtQuick/private/qquickimage_p.h>

/// An image that stands on whole pixels of the device where it fills its item; between them an icon would be blurred.
class IconImage : public QQuickImage
{
    Q_OBJECT

public:
    using QQuickImage::QQuickImage;

    /// "#rrggbb", with an alpha "#aarrggbb".
    static QString colorName(const QColor &color);
    /// Of an icon of the host's resources in one colour. None without a name or in no colour: there is nothing to draw.
    static QUrl iconUrl(const QColor &color, const QString &name);

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
};
