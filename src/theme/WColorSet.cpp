#include "WColorSet.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<QLatin1StringView, QColor WColorSet::*>, 6> StateNames{{
    {QLatin1StringView("hovered"), &WColorSet::hovered},
    {QLatin1StringView("pressed"), &WColorSet::pressed},
    {QLatin1StringView("disabled"), &WColorSet::disabled},
    {QLatin1StringView("focused"), &WColorSet::focused},
    {QLatin1StringView("checked"), &WColorSet::checked},
    {QLatin1StringView("normal"), &WColorSet::normal},
}};

} // namespace

WColorSet::WColorSet(const QString &setName, const QColor &color)
    : WColorSet(setName, color, color, color, color, color, color)
{
}

WColorSet::WColorSet(const QString &setName, const QColor &normalColor, const QColor &hoveredColor,
                     const QColor &pressedColor, const QColor &disabledColor, const QColor &focusedColor,
                     const QColor &checkedColor)
    : name(setName)
    , normal(normalColor)
    , hovered(hoveredColor)
    , pressed(pressedColor)
    , disabled(disabledColor)
    , focused(focusedColor)
    , checked(checkedColor)
{
}

WColorSet::WColorSet(const QString &setName, const WColorSet &other)
    : WColorSet(other)
{
    name = setName;
}

bool WColorSet::isValid() const
{
    return !name.isEmpty() && normal.isValid() && hovered.isValid() && pressed.isValid() && disabled.isValid()
        && focused.isValid() && checked.isValid();
}

QColor WColorSet::getColor(const QString &state) const
{
    const auto *entry = std::find_if(StateNames.begin(), StateNames.end(),
                                     [&state](const auto &candidate) { return candidate.first == state; });
    if (entry == StateNames.end()) {
        qWarning() << "WColorSet: color state is invalid!" << state;
        return {};
    }
    return this->*entry->second;
}

QColor WColorSet::getColor(QStyle::State state) const
{
    if (!state.testFlag(QStyle::State_Enabled))
        return disabled;
    if (state.testFlag(QStyle::State_Sunken))
        return pressed;
    if (state.testFlag(QStyle::State_MouseOver))
        return hovered;
    // A focus colour equal to the normal one is passed over, so that a checked element keeps its colour in focus.
    if (state.testFlag(QStyle::State_HasFocus) && focused != normal)
        return focused;
    if (state & (QStyle::State_Selected | QStyle::State_On))
        return checked;
    return normal;
}
