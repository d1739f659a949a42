#pragma once

#include <QAbstractListModel>
#include <QPointer>
#include <QVariantMap>

#include <vector>

/// The rows of a model in sessions: runs of rows with an equal value of one role. Before each run stands a row for the
/// session, with the values of its first row; the rows of a collapsed session are left out, and cost a view nothing.
/// Rows without a session stand for themselves.
///
/// Adds two roles to those of the model: `isSession` and `sessionName`.
class SessionModel : public QAbstractListModel
{
    Q_OBJECT
    /// Only its top level counts.
    Q_PROPERTY(QAbstractItemModel *source READ source WRITE setSource NOTIFY sourceChanged)
    /// The name of the role that holds a row's session.
    Q_PROPERTY(QString sessionRole READ sessionRole WRITE setSessionRole NOTIFY sessionRoleChanged)
    /// Sessions expand and collapse by themselves; otherwise one at most is expanded.
    Q_PROPERTY(bool isMultiCollapsed READ isMultiCollapsed WRITE setMultiCollapsed NOTIFY expansionChanged)
    /// The one that is expanded, if it is only one.
    Q_PROPERTY(
        QString expandedSessionName READ expandedSessionName WRITE setExpandedSessionName NOTIFY expansionChanged)
    /// By session: whether it is expanded, if each is by itself; one that is not named is.
    Q_PROPERTY(
        QVariantMap expandedStatusList READ expandedStatusList WRITE setExpandedStatusList NOTIFY expansionChanged)

public:
    explicit SessionModel(QObject *parent = nullptr);
    ~SessionModel() override;

    QAbstractItemModel *source() const;
    void setSource(QAbstractItemModel *source);

    QString sessionRole() const;
    void setSessionRole(const QString &role);

    bool isMultiCollapsed() const;
    void setMultiCollapsed(bool multiCollapsed);

    QString expandedSessionName() const;
    void setExpandedSessionName(const QString &name);

    QVariantMap expandedStatusList() const;
    void setExpandedStatusList(const QVariantMap &list);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QHash<int, QByteArray> roleNames() const override;

    /// The names of all sessions, in their order.
    Q_INVOKABLE QStringList sessions() const;
    /// The row of the session that a row belongs to; -1 without.
    Q_INVOKABLE int sessionRow(int row) const;
    /// The row in the source; that of its first row for a session, -1 where there is none.
    Q_INVOKABLE int sourceRow(int row) const;

Q_SIGNALS:
    void sourceChanged();
    void sessionRoleChanged();
    void expansionChanged();

private:
    struct Entry
    {
        QString session;
        int sourceRow = -1;
        bool isSession = false;

        bool isSame(const Entry &other) const;
    };

    bool isExpanded(const QString &session) const;
    int sourceRole() const;
    std::vector<Entry> readSource() const;
    void reset();
    /// Changes the entries to what the source has now, and no more than that.
    void update();
    void removeMissing(const std::vector<Entry> &wanted);
    void insertMissing(const std::vector<Entry> &wanted);
    void updateExpansion();

    void onRowsInserted(const QModelIndex &parent, int first, int last);
    void onRowsRemoved(const QModelIndex &parent, int first, int last);
    void onRowsMoved(const QModelIndex &parent, int first, int last, const QModelIndex &newParent, int newRow);
    void onDataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles);

    QPointer<QAbstractItemModel> m_source;
    QString m_sessionRole;
    bool m_multiCollapsed = true;
    QString m_expandedSessionName;
    QVariantMap m_expandedStatusList;
    std::vector<Entry> m_entries;
};
