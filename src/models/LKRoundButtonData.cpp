#include "LKRoundButtonData.h"

#include "ButtonTables.h"

LKRoundButtonData::LKRoundButtonData(QObject *parent)
    : ILKButtonData(parent)
{
}

LKRoundButtonData::~LKRoundButtonData() = default;

LKRoundButtonData *LKRoundButtonData::qmlAttachedProperties(QObject *object)
{
    return new LKRoundButtonData(object);
}

int LKRoundButtonData::width() const
{
    return m_width;
}

void LKRoundButtonData::setWidth(int width)
{
    if (width == m_width)
        return;
    m_width = width;
    Q_EMIT widthChanged();
}

void LKRoundButtonData::refresh()
{
    applyAll();
}

void LKRoundButtonData::applySize()
{
    const ButtonTables::RoundSize &metrics = ButtonTables::entry(ButtonTables::RoundSizes, size());
    if (metrics.key != LKButtonSize::None) {
        setHeight(metrics.edge);
        setWidth(metrics.edge);
    }
    setIconSize({metrics.icon, metrics.icon});
    setRadius(height() / 2);
    // Any size brings a border, None included and whatever the style says: without a border colour none is seen.
    setBorder(true);
}
