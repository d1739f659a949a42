#include "ButtonData.h"

ButtonData::ButtonData(QObject *parent)
    : QObject(parent)
{
}

ButtonData::ButtonData(bool visible, bool enabled, bool checked, const QString &backgroundColorSetName,
                       const QString &borderColorSetName, const QString &iconName, const QString &iconColorSetName,
                       const QString &text, const QString &textColorSetName, const QString &tooltip, QObject *parent)
    : QObject(parent)
    , m_visible(visible)
    , m_enabled(enabled)
    , m_checked(checked)
    , m_backgroundColorSetName(backgroundColorSetName)
    , m_borderColorSetName(borderColorSetName)
    , m_iconName(iconName)
    , m_iconColorSetName(iconColorSetName)
    , m_text(text)
    , m_textColorSetName(textColorSetName)
    , m_tooltip(tooltip)
    , m_textVector(2)
{
}

ButtonData::~ButtonData() = default;

bool ButtonData::visible() const
{
    return m_visible;
}

void ButtonData::setVisible(bool visible)
{
    update(m_visible, visible);
}

bool ButtonData::enabled() const
{
    return m_enabled;
}

void ButtonData::setEnabled(bool enabled)
{
    update(m_enabled, enabled);
}

bool ButtonData::checked() const
{
    return m_checked;
}

void ButtonData::setChecked(bool checked)
{
    update(m_checked, checked);
}

bool ButtonData::hasArrow() const
{
    return m_hasArrow;
}

void ButtonData::setHasArrow(bool hasArrow)
{
    update(m_hasArrow, hasArrow);
}

QString ButtonData::backgroundColorSetName() const
{
    return m_backgroundColorSetName;
}

void ButtonData::setBackgroundColorSetName(const QString &backgroundColorSetName)
{
    update(m_backgroundColorSetName, backgroundColorSetName);
}

QString ButtonData::borderColorSetName() const
{
    return m_borderColorSetName;
}

void ButtonData::setBorderColorSetName(const QString &borderColorSetName)
{
    update(m_borderColorSetName, borderColorSetName);
}

QString ButtonData::iconName() const
{
    return m_iconName;
}

void ButtonData::setIconName(const QString &iconName)
{
    update(m_iconName, iconName);
}

QString ButtonData::iconColorSetName() const
{
    return m_iconColorSetName;
}

void ButtonData::setIconColorSetName(const QString &iconColorSetName)
{
    update(m_iconColorSetName, iconColorSetName);
}

QString ButtonData::text() const
{
    return m_text;
}

void ButtonData::setText(const QString &text)
{
    update(m_text, text);
}

QString ButtonData::textColorSetName() const
{
    return m_textColorSetName;
}

void ButtonData::setTextColorSetName(const QString &textColorSetName)
{
    update(m_textColorSetName, textColorSetName);
}

QString ButtonData::tooltip() const
{
    return m_tooltip;
}

void ButtonData::setTooltip(const QString &tooltip)
{
    update(m_tooltip, tooltip);
}

QString ButtonData::accessibleName() const
{
    return m_accessibleName;
}

void ButtonData::setAccessibleName(const QString &accessibleName)
{
    update(m_accessibleName, accessibleName);
}

QString ButtonData::moreButtonTooltip() const
{
    return m_moreButtonTooltip;
}

void ButtonData::setMoreButtonTooltip(const QString &moreButtonTooltip)
{
    update(m_moreButtonTooltip, moreButtonTooltip);
}

QStringList ButtonData::textVector() const
{
    return m_textVector;
}

void ButtonData::setTextVector(const QStringList &textVector)
{
    update(m_textVector, textVector);
}

ButtonDataItem ButtonData::item() const
{
    return {m_visible, m_enabled, m_text, m_tooltip};
}

template<typename Value> void ButtonData::update(Value &member, const Value &value)
{
    if (value == member)
        return;
    member = value;
    Q_EMIT updated();
}
