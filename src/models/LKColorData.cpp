#include "LKColorData.h"

#include "LKEventData.h"
#include "WThemeUtils.h"

namespace {

const QColor &stateColor(const WColorSet &colorSet, const LKEventData &state)
{
    if (!state.enabled())
        return colorSet.disabled;
    if (state.pressed())
        return colorSet.pressed;
    if (state.hovered())
        return colorSet.hovered;
    if (state.checked())
        return colorSet.checked;
    if (state.activeFocus())
        return colorSet.focused;
    return colorSet.normal;
}

} // namespace

LKColorData::LKColorData(QObject *parent)
    : WObject(parent)
{
}

LKColorData::~LKColorData() = default;

QString LKColorData::token() const
{
    return m_token;
}

void LKColorData::setToken(const QString &token)
{
    if (token == m_token)
        return;
    m_token = token;
    Q_EMIT tokenChanged();
    m_colorSet = WThemeUtils::findColorSet(m_token);
    onEventDataChanged();
}

QString LKColorData::activeToken() const
{
    return m_activeToken;
}

void LKColorData::setActiveToken(const QString &activeToken)
{
    if (activeToken == m_activeToken)
        return;
    m_activeToken = activeToken;
    Q_EMIT activeTokenChanged();
    lookUpActiveColorSet();
    onEventDataChanged();
}

QColor LKColorData::color() const
{
    return m_color;
}

LKEventData *LKColorData::eventData() const
{
    return m_eventData;
}

void LKColorData::setEventData(LKEventData *eventData)
{
    if (eventData != m_eventData) {
        m_eventData = eventData;
        Q_EMIT eventDataChanged();
    }
    onEventDataChanged();
}

void LKColorData::onEventDataChanged()
{
    if (!m_eventData || !m_colorSet.isValid()) {
        setColor(Qt::transparent);
        return;
    }
    const bool isActive = m_eventData->checked() && m_activeColorSet && m_activeColorSet->isValid();
    setColor(stateColor(isActive ? *m_activeColorSet : m_colorSet, *m_eventData));
}

void LKColorData::onColorDataChanged()
{
    m_colorSet = WThemeUtils::findColorSet(m_token);
    lookUpActiveColorSet();
    onEventDataChanged();
}

void LKColorData::lookUpActiveColorSet()
{
    m_activeColorSet =
        m_activeToken.isEmpty() ? nullptr : std::make_unique<WColorSet>(WThemeUtils::findColorSet(m_activeToken));
}

void LKColorData::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
}
