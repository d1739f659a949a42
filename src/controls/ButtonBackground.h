#pragma once

#include "Face.h"
#include "LKButtonColors.h"

#include <QPointer>

/// The background of a button, in the colours of its button data, with a border if those have one.
class ButtonBackground : public Face
{
    Q_OBJECT
    /// The button data; an ILKButtonData or an LKIconButtonData. Set it once.
    Q_PROPERTY(QObject *buttonData READ buttonData WRITE setButtonData NOTIFY buttonDataChanged)
    /// The radius follows the size; otherwise it is set like that of any rectangle.
    Q_PROPERTY(bool roundEnds MEMBER m_roundEnds)

public:
    explicit ButtonBackground(QQuickItem *parent = nullptr);

    QObject *buttonData() const;
    void setButtonData(QObject *buttonData);

Q_SIGNALS:
    void buttonDataChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void updateColors();

    QPointer<LKButtonColors> m_data;
    bool m_hasBorder = false;
    bool m_roundEnds = true;
};
