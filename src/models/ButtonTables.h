#pragma once

#include "LKButtonSize.h"

#include <QString>
#include <QStringView>

#include <array>

/// Tables that are indexed by an enum, whose entries begin with their key.
namespace ButtonTables {

template<typename Table> constexpr bool isIndexedByKey(const Table &table)
{
    for (size_t i = 0; i < table.size(); ++i) {
        if (size_t(table[i].key) != i)
            return false;
    }
    return true;
}

/// The entry of a key; of a value that is no key the first, that of None.
template<typename Table, typename Key> constexpr const auto &entry(const Table &table, Key key)
{
    return table[key >= 0 && size_t(key) < table.size() ? size_t(key) : 0];
}

/// A text of a table, without a copy.
inline QString text(QStringView view)
{
    return QString::fromRawData(view.data(), view.size());
}

/// Lengths in pixels; 0 where there is none.
struct RoundSize
{
    LKButtonSize::Size key;
    int edge;
    int icon;
};

inline constexpr auto RoundSizes = std::to_array<RoundSize>({
    {LKButtonSize::None, 0, 0},
    {LKButtonSize::XL, 64, 32},
    {LKButtonSize::L, 52, 28},
    {LKButtonSize::M, 40, 20},
    {LKButtonSize::S, 32, 16},
    {LKButtonSize::XS, 28, 16},
    {LKButtonSize::XXS, 24, 13},
    {LKButtonSize::XXXS, 16, 8},
});
static_assert(isIndexedByKey(RoundSizes));

} // namespace ButtonTables
