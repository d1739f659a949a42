#include "BaseListModel.h"

#include <QDebug>

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t maximumRows = 10000;
constexpr size_t initialCapacity = 100;

void warnOfUndefinedRole(int row, int role)
{
    qWarning() << "Role is undefined! Row:" << row << " Role:" << role;
}

} // namespace

BaseListModel::BaseListModel(QObject *parent)
    : QAbstractListModel(parent)
{
    m_rows.reserve(initialCapacity);
    m_positions.reserve(initialCapacity);
}

BaseListModel::~BaseListModel() = default;

int BaseListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant BaseListModel::data(const QModelIndex &index, int role) const
{
    // Qt::UserRole itself is never served: roles of rows begin above it.
    if (!holds(index) || role <= Qt::UserRole)
        return {};
    const RoleValues &values = m_rows[size_t(index.row())].second;
    const auto value = values.find(role);
    if (value == values.end()) {
        warnOfUndefinedRole(index.row(), role);
        return {};
    }
    return value->second;
}

bool BaseListModel::removeRows(int row, int count, const QModelIndex &parent)
{
    const int size = int(m_rows.size());
    if (row < 0 || count <= 0 || row >= size || count > size - row) {
        qWarning() << "BaseListModel::removeRows - invalid row! row:" << row << "count:" << count << "size:" << size;
        return false;
    }
    beginRemoveRows(parent, row, row + count - 1);
    m_rows.erase(m_rows.begin() + row, m_rows.begin() + row + count);
    rebuildIndex();
    endRemoveRows();
    Q_EMIT countChanged(getCount());
    return true;
}

QString BaseListModel::header() const
{
    return m_header;
}

void BaseListModel::setHeader(const QString &header)
{
    if (header == m_header)
        return;
    m_header = header;
    Q_EMIT headerChanged();
}

int BaseListModel::getCount() const
{
    return rowCount(QModelIndex()); // a subclass may count otherwise
}

void BaseListModel::appendRows(const Rows &newRows)
{
    append(newRows);
}

void BaseListModel::insertRows(int row, const Rows &newRows)
{
    const int size = int(m_rows.size());
    if (size == 0 || row >= size) {
        appendRows(newRows);
        return;
    }
    if (newRows.empty())
        return;
    if (row < 0) {
        qWarning() << "BaseListModel::insertRows - invalid row! row:" << row << "size:" << size;
        return;
    }
    if (!hasRoomFor(newRows.size()))
        return;
    beginInsertRows(QModelIndex(), row, row + int(newRows.size()) - 1);
    m_rows.insert(m_rows.begin() + row, newRows.begin(), newRows.end());
    rebuildIndex();
    endInsertRows();
    Q_EMIT countChanged(getCount());
}

void BaseListModel::appendOrUpdate(const Rows &newRows)
{
    std::vector<const Row *> unknown;
    unknown.reserve(newRows.size());
    // The run begins at row 0, so a signal for rows 0 to 0 comes first unless row 1 is updated first, and comes alone
    // where nothing is updated: views read a row again that has not changed.
    size_t start = 0;
    size_t previous = 0;
    const auto announceRun = [&] { Q_EMIT dataChanged(index(int(start)), index(int(previous))); };
    for (const Row &row : newRows) {
        const auto entry = m_positions.find(row.first);
        if (entry == m_positions.end()) {
            unknown.push_back(&row);
            continue;
        }
        const size_t position = entry->second;
        if (position > m_rows.size()) { // one past the end goes through, but the index holds only rows that exist
            qWarning() << "Out of range! This should never happen!";
            return;
        }
        m_rows[position].second = row.second;
        if (position != previous + 1) {
            announceRun();
            start = position;
        }
        previous = position;
    }
    announceRun();
    append(unknown | std::views::transform([](const Row *row) -> const Row & { return *row; }));
}

void BaseListModel::replace(const Rows &newRows)
{
    if (newRows.empty()) {
        clear();
        return;
    }
    if (m_rows.empty()) {
        appendRows(newRows);
        return;
    }

    const size_t oldCount = m_rows.size();
    const size_t newCount = newRows.size();
    if (newCount < oldCount) {
        removeRows(int(newCount), int(oldCount - newCount), QModelIndex());
    } else if (newCount > oldCount) {
        m_rows.reserve(newCount);
        m_positions.reserve(newCount);
        beginInsertRows(QModelIndex(), int(oldCount), int(newCount) - 1);
        for (size_t i = oldCount; i < newCount; ++i) {
            m_positions[newRows[i].first] = i;
            m_rows.push_back(newRows[i]);
        }
        endInsertRows();
        Q_EMIT countChanged(getCount());
    }

    struct Run
    {
        int first;
        int last;
    };
    std::vector<Run> runs;
    bool idsChanged = false;
    const size_t common = std::min({oldCount, newCount, m_rows.size()}); // a slot may have removed rows
    for (size_t i = 0; i < common; ++i) {
        if (newRows[i] == m_rows[i])
            continue;
        idsChanged = idsChanged || newRows[i].first != m_rows[i].first;
        m_rows[i] = newRows[i];
        const int row = int(i);
        if (!runs.empty() && runs.back().last == row - 1)
            runs.back().last = row;
        else
            runs.push_back({row, row});
    }
    if (idsChanged)
        rebuildIndex();

    for (const Run &run : runs) {
        const QModelIndex top = index(run.first);
        QModelIndex bottom = index(run.last);
        if (!top.isValid())
            continue; // the subclass counts fewer rows than there are
        if (!bottom.isValid()) {
            qWarning() << "BaseListModel::replace() - Invalid index! This should never happen";
            bottom = top;
        }
        Q_EMIT dataChanged(top, bottom);
    }
}

void BaseListModel::setRoleValueForRow(const QModelIndex &&index, const QMap<int, QVariant> &values)
{
    if (!holds(index) || index.row() >= rowCount(QModelIndex()))
        return;
    RoleValues &rowValues = m_rows[size_t(index.row())].second;
    QList<int> changedRoles;
    for (const auto &[role, value] : values.asKeyValueRange()) {
        if (role <= Qt::UserRole) {
            qWarning() << "Role is less than Qt::UserRole! Role:" << role; // or equal to it
        } else if (!value.isValid()) {
            qWarning() << "Role value is invalid! Row:" << index.row() << " Role:" << role;
        } else {
            rowValues.insert_or_assign(role, value);
            changedRoles.append(role);
        }
    }
    if (!changedRoles.isEmpty())
        Q_EMIT dataChanged(index, index, changedRoles);
}

void BaseListModel::setRoleValueForRow(const std::string &rowId, const QMap<int, QVariant> &values)
{
    const int row = getRowIndex(rowId);
    if (row != -1)
        setRoleValueForRow(index(row, 0, QModelIndex()), values);
}

BaseListModel::Row BaseListModel::getRowById(const std::string &rowId) const
{
    if (!hasRow(rowId))
        return {};
    // Searched for rather than looked up: where an inserted id repeats, this is its first row, getRowIndex() its last.
    const auto row = std::ranges::find(m_rows, rowId, &Row::first);
    return row == m_rows.end() ? Row() : *row;
}

int BaseListModel::getRowIndex(const std::string &rowId) const
{
    const auto entry = m_positions.find(rowId);
    return entry == m_positions.end() ? -1 : int(entry->second);
}

BaseListModel::Rows BaseListModel::getRows() const
{
    return m_rows;
}

bool BaseListModel::hasRow(const std::string &rowId) const
{
    return m_positions.contains(rowId);
}

void BaseListModel::clear()
{
    if (m_rows.empty())
        return;
    beginResetModel();
    m_rows.clear();
    m_positions.clear();
    endResetModel();
    Q_EMIT countChanged(getCount());
}

bool BaseListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!value.isValid() || !hasIndex(index.row(), index.column(), index.parent()) || !holds(index))
        return false;
    RoleValues &values = m_rows[size_t(index.row())].second;
    const auto current = values.find(role); // low roles too, which data() never serves
    if (current == values.end()) {
        warnOfUndefinedRole(index.row(), role);
        return false;
    }
    current->second = value;
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

bool BaseListModel::holds(const QModelIndex &index) const
{
    return index.isValid() && size_t(index.row()) < m_rows.size();
}

bool BaseListModel::hasRoomFor(size_t additional) const
{
    if (m_rows.size() + additional <= maximumRows)
        return true;
    qWarning() << "Too many rows!";
    return false;
}

template<typename Range> void BaseListModel::append(const Range &newRows)
{
    if (newRows.empty() || !hasRoomFor(newRows.size()))
        return;
    // Rows that are skipped are announced too: views find nothing there.
    const int first = int(m_rows.size());
    beginInsertRows(QModelIndex(), first, first + int(newRows.size()) - 1);
    for (const Row &row : newRows) {
        if (m_positions.try_emplace(row.first, m_rows.size()).second)
            m_rows.push_back(row);
        else
            qWarning() << u"Row id: %1 is not unique! Skipping row"_s.arg(QString::fromStdString(row.first));
    }
    endInsertRows();
    Q_EMIT countChanged(getCount());
}

void BaseListModel::rebuildIndex()
{
    m_positions.clear();
    for (size_t i = 0; i < m_rows.size(); ++i)
        m_positions[m_rows[i].first] = i; // the last row of an id that repeats wins
}
