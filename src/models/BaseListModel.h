#pragma once

#include <LumakitQmlExport.h>

#include <QAbstractListModel>
#include <QMap>
#include <QString>
#include <QVariant>

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

/// A list model of rows that are known by an id and hold a value for each of their roles. A subclass names the roles.
///
/// Operations tell views what changed as narrowly as they can, so that delegates live on. What is refused changes
/// nothing. countChanged() follows each change of the number of rows.
class LUMAKITQML_EXPORT BaseListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ getCount NOTIFY countChanged)
    Q_PROPERTY(QString header READ header WRITE setHeader NOTIFY headerChanged)

public:
    /// Roles are greater than Qt::UserRole; a row need not have them all.
    using RoleValues = std::unordered_map<int, QVariant>;
    /// The id, unique in the model, and the values.
    using Row = std::pair<std::string, RoleValues>;
    using Rows = std::vector<Row>;

    explicit BaseListModel(QObject *parent = nullptr);
    ~BaseListModel() override;

    int rowCount(const QModelIndex &parent = {}) const override;
    /// Invalid where there is no such row, for roles up to Qt::UserRole and, with a warning, for a role the row has
    /// not.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// The names under which QML sees the roles.
    QHash<int, QByteArray> roleNames() const override = 0;
    /// The rows must all exist. The parent is not looked at, only passed on to views.
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;

    /// Free text, such as a caption of the list.
    QString header() const;
    void setHeader(const QString &header);
    int getCount() const;

    /// Appends rows with new ids. Refused as a whole above 10,000 rows in the model. Ids must not repeat: views are
    /// told of those rows too, although they are skipped with a warning.
    void appendRows(const Rows &newRows);
    /// Inserts rows before `row`, or appends them where there is no such row. Refused as a whole above 10,000 rows in
    /// the model and for a negative `row`. Ids must be new; this is not checked unless the rows are appended.
    void insertRows(int row, const Rows &newRows);
    using QAbstractListModel::insertRows; // of rows without ids, which are never inserted
    /// Rows with known ids take the place of the old ones, all roles included; appendRows() gets the others. Emits
    /// dataChanged() at least once, without any change too.
    void appendOrUpdate(const Rows &newRows);
    /// Makes the rows equal to the given ones, place by place. Ids must not repeat. There is no limit to their number,
    /// unless the model is empty: then they are appended.
    void replace(const Rows &newRows);
    /// Sets values of one row, which need not have had those roles. Roles up to Qt::UserRole and invalid values are
    /// skipped with a warning each; an index that is not in the model is ignored.
    void setRoleValueForRow(const QModelIndex &&index, const QMap<int, QVariant> &values);
    /// The same by id; an unknown one is ignored.
    void setRoleValueForRow(const std::string &rowId, const QMap<int, QVariant> &values);

    /// An empty row for an unknown id. The time it takes grows with the number of rows.
    Row getRowById(const std::string &rowId) const;
    /// -1 for an unknown id.
    int getRowIndex(const std::string &rowId) const;
    Rows getRows() const;
    bool hasRow(const std::string &rowId) const;
    void clear();

Q_SIGNALS:
    void countChanged(int count);
    void headerChanged();

protected:
    /// Changes a role that the row has; false for any other and for an invalid value.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

private:
    bool holds(const QModelIndex &index) const;
    bool hasRoomFor(size_t additional) const;
    template<typename Range> void append(const Range &newRows);
    void rebuildIndex();

    Rows m_rows;
    std::unordered_map<std::string, quint64> m_positions;
    QString m_header;
};
