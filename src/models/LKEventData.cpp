#include "LKEventData.h"

#include "LKButtonColors.h"

LKEventData::LKEventData(QObject *parent)
    : WObject(parent)
{
}

LKEventData::~LKEventData()
{
    while (!m_users.isEmpty())
        m_users.last()->setEventData(nullptr);
}

bool LKEventData::enabled() const
{
    return m_enabled;
}

void LKEventData::setEnabled(bool enabled)
{
    setFlag(m_enabled, enabled, &LKEventData::enabledChanged);
}

bool LKEventData::hovered() const
{
    return m_hovered;
}

void LKEventData::setHovered(bool hovered)
{
    setFlag(m_hovered, hovered, &LKEventData::hoveredChanged);
}

bool LKEventData::activeFocus() const
{
    return m_activeFocus;
}

void LKEventData::setActiveFocus(bool activeFocus)
{
    setFlag(m_activeFocus, activeFocus, &LKEventData::activeFocusChanged);
}

bool LKEventData::checked() const
{
    return m_checked;
}

void LKEventData::setChecked(bool checked)
{
    setFlag(m_checked, checked, &LKEventData::checkedChanged);
}

bool LKEventData::pressed() const
{
    return m_pressed;
}

void LKEventData::setPressed(bool pressed)
{
    setFlag(m_pressed, pressed, &LKEventData::pressedChanged);
}

void LKEventData::setFlag(bool &flag, bool value, void (LKEventData::*changed)())
{
    if (value == flag)
        return;
    flag = value;
    const auto users = m_users; // one may go meanwhile
    for (LKButtonColors *user : users) {
        if (m_users.contains(user))
            user->updateState();
    }
    Q_EMIT(this->*changed)();
}
