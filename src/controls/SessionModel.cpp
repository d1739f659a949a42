#include "SessionModel.h"

#include <algorithm>

namespace {

// Above every role of a model.
constexpr int IsSessionRole = 0x7fff0000;
constexpr int SessionNameRole = IsSessionRole + 1;

} // namespace

// A session is the same while its name is, whatever its first row.
bool SessionModel::Entry::isSame(const Entry &other) const
{
    return isSession == other.isSession && (isSession ? session == other.session : sourceRow == other.sourceRow);
}

SessionModel::SessionModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

SessionModel::~SessionModel() = default;

QAbstractItemModel *SessionModel::source() const
{
    return m_source;
}

void SessionModel::setSource(QAbstractItemModel *source)
{
    if (source == m_source)
        return;
    if (m_source)
        m_source->disconnect(this);
    m_source = source;
    if (source) {
        connect(source, &QAbstractItemModel::rowsInserted, this, &SessionModel::onRowsInserted);
        connect(source, &QAbstractItemModel::rowsRemoved, this, &SessionModel::onRowsRemoved);
        connect(source, &QAbstractItemModel::rowsMoved, this, &SessionModel::onRowsMoved);
        connect(source, &QAbstractItemModel::dataChanged, this, &SessionModel::onDataChanged);
        connect(source, &QAbstractItemModel::modelReset, this, &SessionModel::reset);
        connect(source, &QAbstractItemModel::layoutChanged, this, &SessionModel::reset);
        connect(source, &QObject::destroyed, this, [this] {
            reset();
            Q_EMIT sourceChanged();
        });
    }
    reset();
    Q_EMIT sourceChanged();
}

QString SessionModel::sessionRole() const
{
    return m_sessionRole;
}

void SessionModel::setSessionRole(const QString &role)
{
    if (role == m_sessionRole)
        return;
    m_sessionRole = role;
    reset();
    Q_EMIT sessionRoleChanged();
}

bool SessionModel::isMultiCollapsed() const
{
    return m_multiCollapsed;
}

void SessionModel::setMultiCollapsed(bool multiCollapsed)
{
    if (multiCollapsed == m_multiCollapsed)
        return;
    m_multiCollapsed = multiCollapsed;
    updateExpansion();
}

QString SessionModel::expandedSessionName() const
{
    return m_expandedSessionName;
}

void SessionModel::setExpandedSessionName(const QString &name)
{
    if (name == m_expandedSessionName)
        return;
    m_expandedSessionName = name;
    updateExpansion();
}

QVariantMap SessionModel::expandedStatusList() const
{
    return m_expandedStatusList;
}

void SessionModel::setExpandedStatusList(const QVariantMap &list)
{
    if (list == m_expandedStatusList)
        return;
    m_expandedStatusList = list;
    updateExpansion();
}

int SessionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant SessionModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Entry &entry = m_entries[size_t(index.row())];
    if (role == IsSessionRole)
        return entry.isSession;
    if (role == SessionNameRole)
        return entry.session;
    return m_source && entry.sourceRow >= 0 ? m_source->index(entry.sourceRow, 0).data(role) : QVariant();
}

bool SessionModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int row = index.isValid() ? sourceRow(index.row()) : -1;
    return m_source && row >= 0 && m_source->setData(m_source->index(row, 0), value, role);
}

QHash<int, QByteArray> SessionModel::roleNames() const
{
    QHash<int, QByteArray> names = m_source ? m_source->roleNames() : QHash<int, QByteArray>();
    names.insert(IsSessionRole, "isSession");
    names.insert(SessionNameRole, "sessionName");
    return names;
}

QStringList SessionModel::sessions() const
{
    QStringList names;
    for (const Entry &entry : m_entries) {
        if (entry.isSession)
            names << entry.session;
    }
    return names;
}

int SessionModel::sessionRow(int row) const
{
    if (row < 0 || row >= rowCount() || m_entries[size_t(row)].session.isEmpty())
        return -1;
    while (!m_entries[size_t(row)].isSession)
        --row;
    return row;
}

int SessionModel::sourceRow(int row) const
{
    return row < 0 || row >= rowCount() ? -1 : m_entries[size_t(row)].sourceRow;
}

bool SessionModel::isExpanded(const QString &session) const
{
    return m_multiCollapsed ? m_expandedStatusList.value(session, true).toBool() : session == m_expandedSessionName;
}

int SessionModel::sourceRole() const
{
    return m_source->roleNames().key(m_sessionRole.toUtf8(), -1);
}

std::vector<SessionModel::Entry> SessionModel::readSource() const
{
    std::vector<Entry> entries;
    if (!m_source)
        return entries;
    const int role = sourceRole();
    const int count = m_source->rowCount();
    QString session;
    bool expanded = true;
    for (int row = 0; row < count; ++row) {
        const QString name = role < 0 ? QString() : m_source->index(row, 0).data(role).toString();
        if (name != session) {
            session = name;
            expanded = name.isEmpty() || isExpanded(name);
            if (!name.isEmpty())
                entries.push_back({name, row, true});
        }
        if (expanded)
            entries.push_back({name, row, false});
    }
    return entries;
}

void SessionModel::reset()
{
    beginResetModel();
    m_entries = readSource();
    endResetModel();
}

void SessionModel::update()
{
    const std::vector<Entry> wanted = readSource();
    removeMissing(wanted);
    insertMissing(wanted);
    for (size_t i = 0; i < wanted.size(); ++i) {
        if (m_entries[i].sourceRow == wanted[i].sourceRow && m_entries[i].session == wanted[i].session)
            continue;
        m_entries[i] = wanted[i];
        Q_EMIT dataChanged(index(int(i)), index(int(i)));
    }
}

// Removes also what is to stand before something that stays: the others are then in the wanted order.
void SessionModel::removeMissing(const std::vector<Entry> &wanted)
{
    std::vector<int> places(m_source ? size_t(m_source->rowCount()) : 0, -1);
    for (size_t i = 0; i < wanted.size(); ++i) {
        if (!wanted[i].isSession)
            places[size_t(wanted[i].sourceRow)] = int(i);
    }
    const auto placeOf = [&](const Entry &entry, int from) {
        if (!entry.isSession)
            return entry.sourceRow < 0 ? -1 : places[size_t(entry.sourceRow)];
        const auto isSame = [&entry](const Entry &other) { return entry.isSame(other); };
        const auto found = std::find_if(wanted.begin() + from, wanted.end(), isSame);
        return found == wanted.end() ? -1 : int(found - wanted.begin());
    };

    std::vector<bool> stays;
    int last = -1;
    for (const Entry &entry : m_entries) {
        const int place = placeOf(entry, last + 1);
        stays.push_back(place > last);
        last = std::max(last, place);
    }
    for (int end = int(stays.size()); end > 0; --end) {
        int first = end;
        while (first > 0 && !stays[size_t(first - 1)])
            --first;
        if (first == end)
            continue;
        beginRemoveRows({}, first, end - 1);
        m_entries.erase(m_entries.begin() + first, m_entries.begin() + end);
        endRemoveRows();
        end = first + 1;
    }
}

void SessionModel::insertMissing(const std::vector<Entry> &wanted)
{
    for (size_t i = 0; i < wanted.size(); ++i) {
        size_t end = i;
        while (end < wanted.size() && (i >= m_entries.size() || !m_entries[i].isSame(wanted[end])))
            ++end;
        if (end == i)
            continue;
        beginInsertRows({}, int(i), int(end) - 1);
        m_entries.insert(m_entries.begin() + std::ptrdiff_t(i), wanted.begin() + std::ptrdiff_t(i),
                         wanted.begin() + std::ptrdiff_t(end));
        endInsertRows();
        i = end;
    }
}

void SessionModel::updateExpansion()
{
    update();
    Q_EMIT expansionChanged();
}

void SessionModel::onRowsInserted(const QModelIndex &parent, int first, int last)
{
    if (parent.isValid())
        return;
    for (Entry &entry : m_entries) {
        if (entry.sourceRow >= first)
            entry.sourceRow += last - first + 1;
    }
    update();
}

void SessionModel::onRowsRemoved(const QModelIndex &parent, int first, int last)
{
    if (parent.isValid())
        return;
    for (Entry &entry : m_entries) {
        if (entry.sourceRow > last)
            entry.sourceRow -= last - first + 1;
        else if (entry.sourceRow >= first)
            entry.sourceRow = -1;
    }
    update();
}

void SessionModel::onRowsMoved(const QModelIndex &parent, int first, int last, const QModelIndex &newParent, int newRow)
{
    if (parent.isValid() || newParent.isValid()) {
        reset();
        return;
    }
    const int count = last - first + 1;
    for (Entry &entry : m_entries) {
        int &row = entry.sourceRow;
        if (row >= first && row <= last)
            row += newRow > last ? newRow - last - 1 : newRow - first;
        else if (row > last && row < newRow)
            row -= count;
        else if (row >= newRow && row < first)
            row += count;
    }
    update();
}

void SessionModel::onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles)
{
    if (topLeft.parent().isValid())
        return;
    if (roles.isEmpty() || roles.contains(sourceRole()))
        update();
    const auto isBefore = [](const Entry &entry, int row) { return entry.sourceRow < row; };
    const auto first = std::lower_bound(m_entries.begin(), m_entries.end(), topLeft.row(), isBefore);
    const auto end = std::lower_bound(first, m_entries.end(), bottomRight.row() + 1, isBefore);
    if (first != end)
        Q_EMIT dataChanged(index(int(first - m_entries.begin())), index(int(end - m_entries.begin()) - 1), roles);
}
