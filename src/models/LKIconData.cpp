#include "LKIconData.h"

#include "LKEventData.h"

LKIconData::LKIconData(QObject *parent)
    : WObject(parent)
{
}

LKIconData::~LKIconData() = default;

QString LKIconData::icon() const
{
    return m_icon;
}

void LKIconData::setIcons(const QString &icon, const QString &checkedIcon)
{
    m_restIcon = icon;
    m_checkedIcon = checkedIcon;
    onEventDataChanged();
}

LKEventData *LKIconData::eventData() const
{
    return m_eventData;
}

void LKIconData::setEventData(LKEventData *eventData)
{
    if (eventData != m_eventData) {
        m_eventData = eventData;
        Q_EMIT eventDataChanged();
    }
    onEventDataChanged();
}

void LKIconData::onEventDataChanged()
{
    const bool isChecked = m_eventData && m_eventData->checked();
    const QString &icon = isChecked && !m_checkedIcon.isEmpty() ? m_checkedIcon : m_restIcon;
    if (icon == m_icon)
        return;
    m_icon = icon;
    Q_EMIT iconChanged();
}
