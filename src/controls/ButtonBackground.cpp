#include "ButtonBackground.h"

#include "ILKButtonData.h"
#include "LKColorData.h"
#include "LKIconButtonData.h"

#include <algorithm>

ButtonBackground::ButtonBackground(QQuickItem *parent)
    : Face(parent)
{
}

QObject *ButtonBackground::buttonData() const
{
    return m_data;
}

void ButtonBackground::setButtonData(QObject *buttonData)
{
    if (m_data == buttonData)
        return;
    // Without a meta-object of its own the common base is no target of qobject_cast.
    m_data = dynamic_cast<LKButtonColors *>(buttonData);
    if (m_data) {
        for (const LKColorData *color : {m_data->backgroundColorData(), m_data->borderColorData()}) {
            if (color)
                connect(color, &LKColorData::colorChanged, this, &ButtonBackground::updateColors);
        }
        if (const auto *data = qobject_cast<ILKButtonData *>(buttonData))
            connect(data, &ILKButtonData::borderChanged, this, &ButtonBackground::updateColors);
        else if (const auto *iconData = qobject_cast<LKIconButtonData *>(buttonData))
            connect(iconData, &LKIconButtonData::borderChanged, this, &ButtonBackground::updateColors);
        updateColors();
    }
    Q_EMIT buttonDataChanged();
}

void ButtonBackground::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    Face::geometryChange(newGeometry, oldGeometry);
    if (m_roundEnds)
        setRadius(std::min(newGeometry.width(), newGeometry.height()) / 2);
}

void ButtonBackground::updateColors()
{
    if (!m_data)
        return;
    if (const LKColorData *background = m_data->backgroundColorData())
        setColor(background->color());
    const LKColorData *borderData = m_data->borderColorData();
    const bool hasBorder = m_data->border() && borderData && borderData->color().alpha() > 0;
    if (!hasBorder && !m_hasBorder)
        return; // asking for the pen would make one
    m_hasBorder = true;
    border()->setWidth(hasBorder ? 1 : 0);
    border()->setColor(hasBorder ? borderData->color() : QColor(Qt::transparent));
}
