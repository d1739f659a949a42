#pragma once

#include "ILKButtonData.h"

#include <qqmlintegration.h>

/// The data of a circular button with an icon, attached to the button's item in QML. All lengths are in pixels.
class LUMAKITQML_EXPORT LKRoundButtonData : public ILKButtonData
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("")
    QML_ATTACHED(LKRoundButtonData)
    Q_PROPERTY(int width READ width WRITE setWidth NOTIFY widthChanged)

public:
    explicit LKRoundButtonData(QObject *parent = nullptr);
    ~LKRoundButtonData() override;

    /// A new object, owned by the item.
    static LKRoundButtonData *qmlAttachedProperties(QObject *object);

    int width() const;
    void setWidth(int width);

public Q_SLOTS:
    /// Sets all that follows from style and size again and looks the colour sets up. Emits buttonDataChanged().
    void refresh();

Q_SIGNALS:
    void widthChanged();

protected:
    void applySize() override;

private:
    int m_width = 0;
};
