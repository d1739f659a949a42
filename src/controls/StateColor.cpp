#include "StateColor.h"

#include "ControlState.h"
#include "WThemeUtils.h"

#include <utility>

StateColor::StateColor(ControlState *state, Rule rule)
    : m_state(state)
    , m_rule(rule)
{
    state->add(this);
}

StateColor::~StateColor() = default;

QVariant StateColor::themeType() const
{
    return m_state->themeType();
}

void StateColor::setThemeType(const QVariant &themeType)
{
    m_state->setThemeType(themeType);
}

void StateColor::resetThemeType()
{
    m_state->setThemeType({});
}

QVariant StateColor::target() const
{
    return m_state->target();
}

void StateColor::setTarget(const QVariant &target)
{
    m_state->setTarget(target);
    Q_EMIT targetChanged();
}

QString StateColor::colorSetName() const
{
    return m_colorSetName;
}

void StateColor::setColorSetName(const QString &name)
{
    if (name == m_colorSetName)
        return;
    m_colorSetName = name;
    const bool isOther = refreshColorSet();
    Q_EMIT colorSetNameChanged();
    show(isOther || m_hasColor); // to some it makes a difference whether there is a set
}

void StateColor::exchangePrefix(QLatin1StringView from, QLatin1StringView to)
{
    if (m_colorSetName.startsWith(from))
        setColorSetName(to + m_colorSetName.sliced(from.size()));
}

QVariant StateColor::colorSet() const
{
    return QVariant::fromValue(currentSet());
}

void StateColor::setColorSet(const QVariant &colorSet)
{
    m_ownsColorSet = true;
    m_hasColorSet = true;
    m_colorSet = colorSet.value<WColorSet>();
    Q_EMIT colorSetChanged();
    show(refreshColor());
}

void StateColor::resetColorSet()
{
    m_ownsColorSet = false;
    show(refreshColorSet());
}

QColor StateColor::color() const
{
    if (!std::exchange(m_hasColor, true))
        m_color = currentColor();
    return m_color;
}

void StateColor::setColor(const QColor &color)
{
    m_ownsColor = true;
    if (std::exchange(m_hasColor, true) && color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    show(true);
}

void StateColor::resetColor()
{
    m_ownsColor = false;
    show(refreshColor());
}

bool StateColor::refreshColor()
{
    if (m_ownsColor || !m_hasColor)
        return false;
    const QColor color = currentColor();
    if (color == m_color)
        return false;
    m_color = color;
    Q_EMIT colorChanged();
    return true;
}

bool StateColor::onThemeTypeChanged()
{
    const bool isOther = refreshColorSet();
    Q_EMIT themeTypeChanged();
    return isOther;
}

bool StateColor::refreshColorSet()
{
    if (m_ownsColorSet)
        return false;
    if (std::exchange(m_hasColorSet, false))
        Q_EMIT colorSetChanged();
    return refreshColor();
}

void StateColor::show(bool isOther)
{
    if (isOther)
        m_state->showColors();
}

const WColorSet &StateColor::currentSet() const
{
    if (!std::exchange(m_hasColorSet, true))
        m_colorSet = WThemeUtils::findColorSet(m_colorSetName);
    return m_colorSet;
}

QColor StateColor::currentColor() const
{
    const WColorSet &colorSet = currentSet();
    if (!colorSet.isValid())
        return Qt::transparent;
    const QStyle::State state = m_state->state();
    const bool isNormal = m_rule == Normal || (m_rule == TextField && state.testFlag(QStyle::State_ReadOnly));
    if (isNormal)
        return colorSet.normal;
    return colorSet.getColor(m_rule == TextField ? state & ~QStyle::State(QStyle::State_Sunken) : state);
}
