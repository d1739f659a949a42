#include <BaseListModel.h>
#include <MetaDescription.h>
#include <TestCase.h>

#include <QAbstractItemModelTester>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRandomGenerator>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Rows = BaseListModel::Rows;
using Row = BaseListModel::Row;

constexpr int Id = 257; // the lowest role there is
constexpr int Value = 300;
constexpr int Note = 301;

// Shows its rows as "a=1 b=2", ids and values of the one role.
class Model : public BaseListModel
{
    Q_OBJECT

public:
    using BaseListModel::BaseListModel;
    using BaseListModel::setData;

    QHash<int, QByteArray> roleNames() const override { return {{Id, "rowId"}, {Value, "value"}, {Note, "note"}}; }
};

template<typename T>
concept SetsData = requires(T &model) { model.setData(QModelIndex(), QVariant(), Value); };

using Operation = std::function<void(Model &)>;

Row row(const QString &id, const QVariant &value)
{
    return {id.toStdString(), {{Id, id}, {Value, value}}};
}

// "a=1 b": rows a with the value "1" and b with its id as its value.
Rows rows(const QString &text)
{
    Rows result;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts))
        result.push_back(row(word.section(u'=', 0, 0), word.section(u'=', -1)));
    return result;
}

// 0 to count - 1.
Rows numbered(int count, int first = 0)
{
    Rows result;
    for (int i = first; i < first + count; ++i)
        result.push_back(row(QString::number(i), i));
    return result;
}

QString text(const Rows &rows)
{
    QStringList words;
    for (const Row &row : rows) {
        const QString id = QString::fromStdString(row.first);
        const QString value = row.second.contains(Value) ? row.second.at(Value).toString() : u"-"_s;
        words.append(value == id ? id : id + u'=' + value);
    }
    return words.join(u' ');
}

QString text(const QModelIndex &index)
{
    return index.isValid() ? QString::number(index.row()) : u"invalid"_s;
}

// Every signal of a model with its arguments, in order: "rowsInserted 2..4".
class Signals : public QObject
{
public:
    explicit Signals(const BaseListModel &model)
    {
        const auto rangeTo = [this](const QString &name) {
            return [this, name](const QModelIndex &parent, int first, int last) {
                add(u"%1 %2..%3"_s.arg(name).arg(first).arg(last)
                    + (parent.isValid() ? u" under %1"_s.arg(text(parent)) : QString()));
            };
        };
        const auto plain = [this](const QString &name) { return [this, name] { add(name); }; };
        connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this, rangeTo(u"rowsAboutToBeInserted"_s));
        connect(&model, &QAbstractItemModel::rowsInserted, this, rangeTo(u"rowsInserted"_s));
        connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, rangeTo(u"rowsAboutToBeRemoved"_s));
        connect(&model, &QAbstractItemModel::rowsRemoved, this, rangeTo(u"rowsRemoved"_s));
        connect(&model, &QAbstractItemModel::rowsMoved, this, plain(u"rowsMoved"_s));
        connect(&model, &QAbstractItemModel::layoutChanged, this, plain(u"layoutChanged"_s));
        connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, plain(u"modelAboutToBeReset"_s));
        connect(&model, &QAbstractItemModel::modelReset, this, plain(u"modelReset"_s));
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &top, const QModelIndex &bottom, const QList<int> &roles) {
                    QString line = u"dataChanged %1..%2"_s.arg(text(top), text(bottom));
                    for (int role : roles)
                        line += u" %1"_s.arg(role);
                    add(line);
                });
        connect(&model, &BaseListModel::countChanged, this,
                [this](int count) { add(u"countChanged %1"_s.arg(count)); });
        connect(&model, &BaseListModel::headerChanged, this, plain(u"headerChanged"_s));
    }

    QStringList lines;

private:
    void add(const QString &line) { lines.append(line); }
};

// What a model must answer when it holds these rows.
void compare(const Model &model, const Rows &expected)
{
    QCOMPARE(text(model.getRows()), text(expected));
    QVERIFY(model.getRows() == expected);
    const int size = int(expected.size());
    QCOMPARE(model.rowCount(QModelIndex()), size);
    QCOMPARE(model.getCount(), size);
    QCOMPARE(model.property("count").toInt(), size);
    for (int i = 0; i < size; ++i) {
        const auto &[id, values] = expected[size_t(i)];
        const auto sameId = [&id](const Row &other) { return other.first == id; };
        const auto last = std::find_if(expected.rbegin(), expected.rend(), sameId);
        QVERIFY(model.hasRow(id));
        QCOMPARE(model.getRowIndex(id), int(expected.rend() - last) - 1);
        QVERIFY(model.getRowById(id) == *std::find_if(expected.begin(), expected.end(), sameId));
        for (const auto &[role, value] : values) {
            if (role > Qt::UserRole)
                QCOMPARE(model.data(model.index(i), role), value);
        }
    }
}

} // namespace

class tst_BaseListModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void operations_data();
    void operations();
    void oddities_data();
    void oddities();
    void limit_data();
    void limit();
    void updatesStayWhereTheRestIsRefused();
    void stateInSignals();
    void data_data();
    void data();
    void dataOfEmptyModel();
    void setData_data();
    void setData();
    void setDataThroughTheBase();
    void setRoleValueForRow_data();
    void setRoleValueForRow();
    void setRoleValueForIndexOutside();
    void appendOrUpdateDropsRoles();
    void replaceComparesIdsAndRoles();
    void lookUps();
    void header();
    void ownCount();
    void ownCountSmaller();
    void ownCountLarger();
    void ownRemoveRows();
    void changedBySlots_data();
    void changedBySlots();
    void copies_data();
    void copies();
    void randomOperations();
    void delegates_data();
    void delegates();
};

void tst_BaseListModel::metaObject()
{
    const QMetaObject &meta = BaseListModel::staticMetaObject;
    QCOMPARE(meta.superClass(), &QAbstractListModel::staticMetaObject);
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"int count, read-only, countChanged"_s, u"QString header, headerChanged"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta), (QStringList{u"void countChanged(int)"_s, u"void headerChanged()"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    QCOMPARE(MetaDescription::invokables(meta), QStringList());
    static_assert(std::is_abstract_v<BaseListModel>);
    static_assert(std::is_same_v<Row, std::pair<std::string, std::unordered_map<int, QVariant>>>);
    static_assert(std::is_same_v<Rows, std::vector<std::pair<std::string, std::unordered_map<int, QVariant>>>>);
    static_assert(requires {
        static_cast<void (BaseListModel::*)(const QModelIndex &&, const QMap<int, QVariant> &)>(
            &BaseListModel::setRoleValueForRow);
        static_cast<void (BaseListModel::*)(const std::string &, const QMap<int, QVariant> &)>(
            &BaseListModel::setRoleValueForRow);
    });
    static_assert(SetsData<Model> && !SetsData<BaseListModel>); // protected
}

void tst_BaseListModel::defaults()
{
    QObject parent;
    const auto *model = new Model(&parent);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(Model().parent(), nullptr);
    compare(*model, {});
    QCOMPARE(model->header(), QString());
}

void tst_BaseListModel::operations_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    const auto inserted = [](const QString &range, int count) {
        return QStringList{u"rowsAboutToBeInserted "_s + range, u"rowsInserted "_s + range,
                           u"countChanged %1"_s.arg(count)};
    };
    const auto removed = [](const QString &range, int count) {
        return QStringList{u"rowsAboutToBeRemoved "_s + range, u"rowsRemoved "_s + range,
                           u"countChanged %1"_s.arg(count)};
    };
    const auto changed = [](const QStringList &ranges) {
        QStringList lines;
        for (const QString &range : ranges)
            lines.append(u"dataChanged "_s + range);
        return lines;
    };
    const QStringList reset{u"modelAboutToBeReset"_s, u"modelReset"_s, u"countChanged 0"_s};

    const auto append = [](const QString &given) -> Operation {
        return [given](Model &model) { model.appendRows(rows(given)); };
    };
    QTest::newRow("append none") << u"a"_s << append(u""_s) << u"a"_s << none << none;
    QTest::newRow("append to none") << u""_s << append(u"a b"_s) << u"a b"_s << inserted(u"0..1"_s, 2) << none;
    QTest::newRow("append one") << u"a b"_s << append(u"c"_s) << u"a b c"_s << inserted(u"2..2"_s, 3) << none;
    QTest::newRow("append several") << u"a b"_s << append(u"e d c"_s) << u"a b e d c"_s << inserted(u"2..4"_s, 5)
                                    << none;

    const auto insert = [](int position, const QString &given) -> Operation {
        return [position, given](Model &model) { model.insertRows(position, rows(given)); };
    };
    QTest::newRow("insert none") << u"a"_s << insert(0, u""_s) << u"a"_s << none << none;
    QTest::newRow("insert none at a bad place") << u"a"_s << insert(-1, u""_s) << u"a"_s << none << none;
    QTest::newRow("insert none at the end") << u"a"_s << insert(1, u""_s) << u"a"_s << none << none;
    QTest::newRow("insert into none") << u""_s << insert(0, u"a b"_s) << u"a b"_s << inserted(u"0..1"_s, 2) << none;
    QTest::newRow("insert into none, anywhere")
        << u""_s << insert(7, u"a"_s) << u"a"_s << inserted(u"0..0"_s, 1) << none;
    QTest::newRow("insert into none, negative")
        << u""_s << insert(-1, u"a"_s) << u"a"_s << inserted(u"0..0"_s, 1) << none;
    QTest::newRow("insert first") << u"a b"_s << insert(0, u"x y"_s) << u"x y a b"_s << inserted(u"0..1"_s, 4) << none;
    QTest::newRow("insert between") << u"a b c"_s << insert(1, u"x y"_s) << u"a x y b c"_s << inserted(u"1..2"_s, 5)
                                    << none;
    QTest::newRow("insert before the last")
        << u"a b c"_s << insert(2, u"x"_s) << u"a b x c"_s << inserted(u"2..2"_s, 4) << none;
    QTest::newRow("insert at the end") << u"a b"_s << insert(2, u"x"_s) << u"a b x"_s << inserted(u"2..2"_s, 3) << none;
    QTest::newRow("insert past the end") << u"a b"_s << insert(9, u"x"_s) << u"a b x"_s << inserted(u"2..2"_s, 3)
                                         << none;
    QTest::newRow("insert, negative") << u"a b"_s << insert(-1, u"x"_s) << u"a b"_s << none
                                      << QStringList{u"BaseListModel::insertRows - invalid row! row: -1 size: 2"_s};

    const auto remove = [](int position, int count, bool succeeds) -> Operation {
        return [=](Model &model) { QCOMPARE(model.removeRows(position, count, QModelIndex()), succeeds); };
    };
    const auto refused = [](const QString &numbers) {
        return QStringList{u"BaseListModel::removeRows - invalid row! "_s + numbers};
    };
    QTest::newRow("remove first") << u"a b c"_s << remove(0, 1, true) << u"b c"_s << removed(u"0..0"_s, 2) << none;
    QTest::newRow("remove between") << u"a b c d"_s << remove(1, 2, true) << u"a d"_s << removed(u"1..2"_s, 2) << none;
    QTest::newRow("remove last") << u"a b c"_s << remove(2, 1, true) << u"a b"_s << removed(u"2..2"_s, 2) << none;
    QTest::newRow("remove all") << u"a b c"_s << remove(0, 3, true) << u""_s << removed(u"0..2"_s, 0) << none;
    QTest::newRow("remove no rows") << u"a b"_s << remove(0, 0, false) << u"a b"_s << none
                                    << refused(u"row: 0 count: 0 size: 2"_s);
    QTest::newRow("remove, negative row")
        << u"a b"_s << remove(-1, 1, false) << u"a b"_s << none << refused(u"row: -1 count: 1 size: 2"_s);
    QTest::newRow("remove, negative count")
        << u"a b"_s << remove(1, -1, false) << u"a b"_s << none << refused(u"row: 1 count: -1 size: 2"_s);
    QTest::newRow("remove past the end") << u"a b"_s << remove(2, 1, false) << u"a b"_s << none
                                         << refused(u"row: 2 count: 1 size: 2"_s);
    QTest::newRow("remove one too many") << u"a b"_s << remove(1, 2, false) << u"a b"_s << none
                                         << refused(u"row: 1 count: 2 size: 2"_s);
    QTest::newRow("remove, numbers that overflow")
        << u"a b"_s << remove(1, INT_MAX, false) << u"a b"_s << none << refused(u"row: 1 count: 2147483647 size: 2"_s);
    QTest::newRow("remove from none") << u""_s << remove(0, 1, false) << u""_s << none
                                      << refused(u"row: 0 count: 1 size: 0"_s);

    const auto update = [](const QString &given) -> Operation {
        return [given](Model &model) { model.appendOrUpdate(rows(given)); };
    };
    const QString six = u"a b c d e f"_s;
    QTest::newRow("update rows 0 and 1, 1 first")
        << six << update(u"b=1 a=1"_s) << u"a=1 b=1 c d e f"_s << changed({u"0..1"_s, u"0..0"_s}) << none;
    QTest::newRow("update row 1") << six << update(u"b=1"_s) << u"a b=1 c d e f"_s << changed({u"0..1"_s}) << none;
    QTest::newRow("update rows 1 to 3") << six << update(u"b=1 c=1 d=1"_s) << u"a b=1 c=1 d=1 e f"_s
                                        << changed({u"0..3"_s}) << none;
    QTest::newRow("update rows 1, 2 and 4")
        << six << update(u"b=1 c=1 e=1"_s) << u"a b=1 c=1 d e=1 f"_s << changed({u"0..2"_s, u"4..4"_s}) << none;
    QTest::newRow("update row 1, append")
        << u"a b"_s << update(u"x b=1 y"_s) << u"a b=1 x y"_s << changed({u"0..1"_s}) + inserted(u"2..3"_s, 4) << none;

    const auto replace = [](const QString &given) -> Operation {
        return [given](Model &model) { model.replace(rows(given)); };
    };
    QTest::newRow("replace none by none") << u""_s << replace(u""_s) << u""_s << none << none;
    QTest::newRow("replace by none") << u"a b"_s << replace(u""_s) << u""_s << reset << none;
    QTest::newRow("replace none") << u""_s << replace(u"a b"_s) << u"a b"_s << inserted(u"0..1"_s, 2) << none;
    QTest::newRow("replace by the same") << six << replace(six) << six << none << none;
    QTest::newRow("replace rows 2, 3 and 5")
        << six << replace(u"a b c=1 d=1 e f=1"_s) << u"a b c=1 d=1 e f=1"_s << changed({u"2..3"_s, u"5..5"_s}) << none;
    QTest::newRow("replace row 0") << six << replace(u"a=1 b c d e f"_s) << u"a=1 b c d e f"_s << changed({u"0..0"_s})
                                   << none;
    QTest::newRow("replace all rows") << six << replace(u"a=1 b=1 c=1 d=1 e=1 f=1"_s) << u"a=1 b=1 c=1 d=1 e=1 f=1"_s
                                      << changed({u"0..5"_s}) << none;
    QTest::newRow("replace every other row") << six << replace(u"a=1 b c=1 d e=1 f"_s) << u"a=1 b c=1 d e=1 f"_s
                                             << changed({u"0..0"_s, u"2..2"_s, u"4..4"_s}) << none;
    QTest::newRow("replace an id") << u"a=1 b=2 c=3"_s << replace(u"a=1 x=2 c=3"_s) << u"a=1 x=2 c=3"_s
                                   << changed({u"1..1"_s}) << none;
    QTest::newRow("replace an id, then a value")
        << u"a b=2 c"_s << replace(u"x b=1 c"_s) << u"x b=1 c"_s << changed({u"0..1"_s}) << none;
    QTest::newRow("replace in another order")
        << u"a b c d"_s << replace(u"a c b d"_s) << u"a c b d"_s << changed({u"1..2"_s}) << none;
    QTest::newRow("replace, shorter") << u"a b c d"_s << replace(u"a b"_s) << u"a b"_s << removed(u"2..3"_s, 2) << none;
    QTest::newRow("replace, shorter and changed")
        << u"a b c d"_s << replace(u"b d"_s) << u"b d"_s << removed(u"2..3"_s, 2) + changed({u"0..1"_s}) << none;
    QTest::newRow("replace, longer") << u"a b"_s << replace(u"a b c d"_s) << u"a b c d"_s << inserted(u"2..3"_s, 4)
                                     << none;
    QTest::newRow("replace, longer and changed")
        << u"a b"_s << replace(u"a b=1 c"_s) << u"a b=1 c"_s << inserted(u"2..2"_s, 3) + changed({u"1..1"_s}) << none;
    QTest::newRow("replace, a row comes first")
        << u"a b c"_s << replace(u"x a b c"_s) << u"x a b c"_s << inserted(u"3..3"_s, 4) + changed({u"0..2"_s}) << none;

    const Operation clear = [](Model &model) { model.clear(); };
    QTest::newRow("clear") << u"a b"_s << clear << u""_s << reset << none;
    QTest::newRow("clear none") << u""_s << clear << u""_s << none << none;
}

void tst_BaseListModel::operations()
{
    QFETCH(QString, before);
    QFETCH(Operation, operation);
    QFETCH(QString, after);

    Model model;
    model.appendRows(rows(before));
    const QAbstractItemModelTester tester(&model);
    const Signals record(model);
    const LogRecorder log;
    operation(model);
    QTEST(record.lines, "emitted");
    QTEST(log.texts(), "warnings");
    QCOMPARE(log.warnings(), log.texts());
    compare(model, rows(after));
    for (const Row &row : rows(before)) {
        if (!after.contains(QString::fromStdString(row.first)))
            QVERIFY(!model.hasRow(row.first));
    }
}

// What is kept although it is odd. No QAbstractItemModelTester: it refuses rows that are announced and do not come,
// changes of rows that do not exist, and removal from under a row.
void tst_BaseListModel::oddities_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    const auto notUnique = [](const QString &id) { return u"\"Row id: %1 is not unique! Skipping row\""_s.arg(id); };

    QTest::newRow("append announces a row that is skipped")
        << u"a b"_s << Operation([](Model &model) { model.appendRows(rows(u"c a=1 d"_s)); }) << u"a b c d"_s
        << QStringList{u"rowsAboutToBeInserted 2..4"_s, u"rowsInserted 2..4"_s, u"countChanged 4"_s}
        << QStringList{notUnique(u"a"_s)};
    QTest::newRow("append announces rows of which none comes")
        << u"a b"_s << Operation([](Model &model) { model.appendRows(rows(u"a=1 b=1"_s)); }) << u"a b"_s
        << QStringList{u"rowsAboutToBeInserted 2..3"_s, u"rowsInserted 2..3"_s, u"countChanged 2"_s}
        << QStringList{notUnique(u"a"_s), notUnique(u"b"_s)};
    QTest::newRow("append skips repetitions in the batch")
        << u""_s << Operation([](Model &model) { model.appendRows(rows(u"a=1 a=2 %1=3"_s)); }) << u"a=1 %1=3"_s
        << QStringList{u"rowsAboutToBeInserted 0..2"_s, u"rowsInserted 0..2"_s, u"countChanged 2"_s}
        << QStringList{notUnique(u"a"_s)};
    QTest::newRow("insert at the end checks ids")
        << u"a b"_s << Operation([](Model &model) { model.insertRows(2, rows(u"a=1 c"_s)); }) << u"a b c"_s
        << QStringList{u"rowsAboutToBeInserted 2..3"_s, u"rowsInserted 2..3"_s, u"countChanged 3"_s}
        << QStringList{notUnique(u"a"_s)};
    QTest::newRow("insert between does not check ids, the last wins")
        << u"a b c"_s << Operation([](Model &model) { model.insertRows(1, rows(u"a=1 c=1"_s)); }) << u"a a=1 c=1 b c"_s
        << QStringList{u"rowsAboutToBeInserted 1..2"_s, u"rowsInserted 1..2"_s, u"countChanged 5"_s} << none;
    QTest::newRow("replace none checks ids")
        << u""_s << Operation([](Model &model) { model.replace(rows(u"a=1 a=2"_s)); }) << u"a=1"_s
        << QStringList{u"rowsAboutToBeInserted 0..1"_s, u"rowsInserted 0..1"_s, u"countChanged 1"_s}
        << QStringList{notUnique(u"a"_s)};
    QTest::newRow("replace does not check ids, the last wins")
        << u"a b"_s << Operation([](Model &model) { model.replace(rows(u"b=1 b=2 a b=3"_s)); }) << u"b=1 b=2 a b=3"_s
        << QStringList{u"rowsAboutToBeInserted 2..3"_s, u"rowsInserted 2..3"_s, u"countChanged 4"_s,
                       u"dataChanged 0..1"_s}
        << none;
    QTest::newRow("update of row 0 is told twice")
        << u"a b"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"a=1"_s)); }) << u"a=1 b"_s
        << QStringList{u"dataChanged 0..0"_s, u"dataChanged 0..0"_s} << none;
    QTest::newRow("update of row 3 tells row 0 first")
        << u"a b c d"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"d=1"_s)); }) << u"a b c d=1"_s
        << QStringList{u"dataChanged 0..0"_s, u"dataChanged 3..3"_s} << none;
    QTest::newRow("update of all rows tells row 0 first")
        << u"a b c"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"a=1 b=1 c=1"_s)); })
        << u"a=1 b=1 c=1"_s << QStringList{u"dataChanged 0..0"_s, u"dataChanged 0..2"_s} << none;
    QTest::newRow("update backwards tells row by row")
        << u"a b c d"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"d=1 c=1"_s)); }) << u"a b c=1 d=1"_s
        << QStringList{u"dataChanged 0..0"_s, u"dataChanged 3..3"_s, u"dataChanged 2..2"_s} << none;
    QTest::newRow("update of one row twice")
        << u"a b c"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"c=1 c=2"_s)); }) << u"a b c=2"_s
        << QStringList{u"dataChanged 0..0"_s, u"dataChanged 2..2"_s, u"dataChanged 2..2"_s} << none;
    QTest::newRow("update by equal rows tells them")
        << u"a b"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"a b"_s)); }) << u"a b"_s
        << QStringList{u"dataChanged 0..0"_s, u"dataChanged 0..1"_s} << none;
    QTest::newRow("update of nothing tells row 0")
        << u"a b"_s << Operation([](Model &model) { model.appendOrUpdate({}); }) << u"a b"_s
        << QStringList{u"dataChanged 0..0"_s} << none;
    QTest::newRow("update of nothing in none tells of no row")
        << u""_s << Operation([](Model &model) { model.appendOrUpdate({}); }) << u""_s
        << QStringList{u"dataChanged invalid..invalid"_s} << none;
    QTest::newRow("update of none tells of no row, then appends")
        << u""_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"a b"_s)); }) << u"a b"_s
        << QStringList{u"dataChanged invalid..invalid"_s, u"rowsAboutToBeInserted 0..1"_s, u"rowsInserted 0..1"_s,
                       u"countChanged 2"_s}
        << none;
    QTest::newRow("update that only appends tells row 0")
        << u"a"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"b"_s)); }) << u"a b"_s
        << QStringList{u"dataChanged 0..0"_s, u"rowsAboutToBeInserted 1..1"_s, u"rowsInserted 1..1"_s,
                       u"countChanged 2"_s}
        << none;
    QTest::newRow("update skips repetitions of new ids")
        << u"a b"_s << Operation([](Model &model) { model.appendOrUpdate(rows(u"x=1 x=2 b=1"_s)); }) << u"a b=1 x=1"_s
        << QStringList{u"dataChanged 0..1"_s, u"rowsAboutToBeInserted 2..3"_s, u"rowsInserted 2..3"_s,
                       u"countChanged 3"_s}
        << QStringList{notUnique(u"x"_s)};
    QTest::newRow("remove passes the parent on")
        << u"a b c"_s << Operation([](Model &model) { QVERIFY(model.removeRows(1, 2, model.index(0))); }) << u"a"_s
        << QStringList{u"rowsAboutToBeRemoved 1..2 under 0"_s, u"rowsRemoved 1..2 under 0"_s, u"countChanged 1"_s}
        << none;
}

void tst_BaseListModel::oddities()
{
    QFETCH(QString, before);
    QFETCH(Operation, operation);
    QFETCH(QString, after);

    Model model;
    model.appendRows(rows(before));
    const Signals record(model);
    const LogRecorder log;
    operation(model);
    QTEST(record.lines, "emitted");
    QTEST(log.texts(), "warnings");
    QCOMPARE(log.warnings(), log.texts());
    compare(model, rows(after));
}

void tst_BaseListModel::limit_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("warns");

    const auto rowsFrom = [](int count) { return numbered(count, 100000); };
    const auto append = [=](int count) -> Operation {
        return [=](Model &model) { model.appendRows(rowsFrom(count)); };
    };
    const auto insert = [=](int position, int count) -> Operation {
        return [=](Model &model) { model.insertRows(position, rowsFrom(count)); };
    };
    const auto replace = [](int count) -> Operation { return [=](Model &model) { model.replace(numbered(count)); }; };

    QTest::newRow("append up to the limit") << 9999 << append(1) << 10000 << false;
    QTest::newRow("append above the limit") << 9999 << append(2) << 9999 << true;
    QTest::newRow("append all at once") << 0 << append(10000) << 10000 << false;
    QTest::newRow("append too many at once") << 0 << append(10001) << 0 << true;
    QTest::newRow("append to a full model") << 10000 << append(1) << 10000 << true;
    QTest::newRow("append none to a full model") << 10000 << append(0) << 10000 << false;
    QTest::newRow("insert up to the limit") << 9999 << insert(5, 1) << 10000 << false;
    QTest::newRow("insert above the limit") << 9999 << insert(5, 2) << 9999 << true;
    QTest::newRow("insert at the end above the limit") << 9999 << insert(9999, 2) << 9999 << true;
    QTest::newRow("insert none into a full model") << 10000 << insert(5, 0) << 10000 << false;
    QTest::newRow("replace has no limit") << 1 << replace(20000) << 20000 << false;
    QTest::newRow("replace none has it") << 0 << replace(10001) << 0 << true;
    QTest::newRow("replace none up to the limit") << 0 << replace(10000) << 10000 << false;
}

void tst_BaseListModel::limit()
{
    QFETCH(int, before);
    QFETCH(Operation, operation);
    QFETCH(int, after);
    QFETCH(bool, warns);

    Model model;
    model.appendRows(numbered(before));
    const Signals record(model);
    const LogRecorder log;
    operation(model);
    QCOMPARE(model.getCount(), after);
    QCOMPARE(log.texts(), warns ? QStringList{u"Too many rows!"_s} : QStringList());
    QCOMPARE(log.warnings(), log.texts());
    QCOMPARE(record.lines.isEmpty(), before == after);
    QCOMPARE(int(model.getRows().size()), after);
    if (warns)
        QVERIFY(model.getRows() == numbered(before));
}

void tst_BaseListModel::updatesStayWhereTheRestIsRefused()
{
    Model model;
    model.appendRows(numbered(10000));
    const Signals record(model);
    const LogRecorder log;
    model.appendOrUpdate({row(u"1"_s, u"new"_s), row(u"x"_s, 0)});
    QCOMPARE(log.warnings(), QStringList{u"Too many rows!"_s});
    QCOMPARE(record.lines, QStringList{u"dataChanged 0..1"_s});
    QCOMPARE(model.data(model.index(1), Value), QVariant(u"new"_s));
    QVERIFY(!model.hasRow("x"));
}

// Whoever listens finds rows and index in step.
void tst_BaseListModel::stateInSignals()
{
    Model model;
    model.appendRows(rows(u"a b c d e"_s));
    int heard = 0;
    const auto check = [&] {
        ++heard;
        compare(model, model.getRows());
    };
    connect(&model, &QAbstractItemModel::rowsInserted, this, check);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, check);
    connect(&model, &QAbstractItemModel::modelReset, this, check);
    connect(&model, &QAbstractItemModel::dataChanged, this, check);
    connect(&model, &BaseListModel::countChanged, this, check);
    model.replace(rows(u"x b y d e"_s)); // two runs
    QCOMPARE(heard, 2);
    model.replace(rows(u"e d z"_s)); // fewer, then one run
    QCOMPARE(heard, 5);
    model.insertRows(1, rows(u"f g"_s));
    QCOMPARE(heard, 7);
    model.appendOrUpdate(rows(u"f=1 d=1 n"_s)); // rows 0 and 1, row 3, one more
    QCOMPARE(heard, 11);
    model.clear();
    QCOMPARE(heard, 13);
}

void tst_BaseListModel::data_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    QTest::newRow("a value") << 1 << Value << QVariant(u"2"_s) << none;
    QTest::newRow("lowest role") << 0 << 257 << QVariant(u"a"_s) << none;
    QTest::newRow("role that the row has not")
        << 1 << Note << QVariant() << QStringList{u"Role is undefined! Row: 1  Role: 301"_s};
    QTest::newRow("Qt::UserRole, though it has a value") << 0 << 256 << QVariant() << none;
    QTest::newRow("Qt::DisplayRole, though it has a value") << 0 << 0 << QVariant() << none;
    QTest::newRow("negative role") << 0 << -1 << QVariant() << none;
    QTest::newRow("largest role") << 0 << INT_MAX << QVariant()
                                  << QStringList{u"Role is undefined! Row: 0  Role: 2147483647"_s};
    QTest::newRow("row past the end") << 2 << Value << QVariant() << none;
    QTest::newRow("negative row") << -1 << Value << QVariant() << none;
}

void tst_BaseListModel::data()
{
    QFETCH(int, row);
    QFETCH(int, role);

    Model model;
    Rows given = rows(u"a=1 b=2"_s);
    given[0].second.insert({{256, u"never served"_s}, {0, u"nor this"_s}});
    model.appendRows(given);
    const QAbstractItemModelTester tester(&model);
    const LogRecorder log;
    QTEST(model.data(model.index(row), role), "value");
    QTEST(log.texts(), "warnings");
    QCOMPARE(log.warnings(), log.texts());
}

void tst_BaseListModel::dataOfEmptyModel()
{
    Model model;
    model.appendRows(rows(u"a b"_s));
    const QModelIndex first = model.index(0);
    const QModelIndex second = model.index(1);
    QVERIFY(second.isValid());
    model.removeRows(1, 1, QModelIndex());
    QCOMPARE(model.data(second, Value), QVariant());
    model.clear();
    QCOMPARE(model.data(first, Value), QVariant());
    QCOMPARE(model.rowCount(QModelIndex()), 0);

    model.appendRows(rows(u"a b"_s));
    QCOMPARE(model.rowCount(model.index(0)), 0);
    QCOMPARE(model.rowCount(), 2);
}

void tst_BaseListModel::setData_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("succeeds");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    QTest::newRow("a value") << 1 << Value << QVariant(7) << true << QStringList{u"dataChanged 1..1 300"_s} << none;
    QTest::newRow("the same value") << 1 << Value << QVariant(u"2"_s) << true << QStringList{u"dataChanged 1..1 300"_s}
                                    << none;
    QTest::newRow("a low role that the row has")
        << 0 << 5 << QVariant(7) << true << QStringList{u"dataChanged 0..0 5"_s} << none;
    QTest::newRow("invalid value") << 1 << Value << QVariant() << false << none << none;
    QTest::newRow("role that the row has not")
        << 1 << Note << QVariant(7) << false << none << QStringList{u"Role is undefined! Row: 1  Role: 301"_s};
    QTest::newRow("low role that the row has not")
        << 1 << 5 << QVariant(7) << false << none << QStringList{u"Role is undefined! Row: 1  Role: 5"_s};
    QTest::newRow("row past the end") << 2 << Value << QVariant(7) << false << none << none;
}

void tst_BaseListModel::setData()
{
    QFETCH(int, row);
    QFETCH(int, role);
    QFETCH(QVariant, value);
    QFETCH(bool, succeeds);

    Model model;
    Rows expected = rows(u"a=1 b=2"_s);
    expected[0].second[5] = 1;
    model.appendRows(expected);
    const QAbstractItemModelTester tester(&model);
    const Signals record(model);
    const LogRecorder log;
    QCOMPARE(model.setData(model.index(row), value, role), succeeds);
    QTEST(record.lines, "emitted");
    QTEST(log.texts(), "warnings");
    QCOMPARE(log.warnings(), log.texts());
    if (succeeds)
        expected[size_t(row)].second[role] = value;
    compare(model, expected);
}

void tst_BaseListModel::setDataThroughTheBase()
{
    Model model;
    model.appendRows(rows(u"a=1"_s));
    QAbstractItemModel &base = model;
    QVERIFY(base.setData(model.index(0), 7, Value));
    QCOMPARE(model.data(model.index(0), Value), QVariant(7));
}

void tst_BaseListModel::setRoleValueForRow_data()
{
    using Values = QMap<int, QVariant>;
    QTest::addColumn<Values>("values");
    QTest::addColumn<QMap<int, QVariant>>("stored");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QStringList>("warnings");

    const QStringList none;
    QTest::newRow("nothing") << Values() << Values() << none << none;
    QTest::newRow("a role") << Values{{Value, 7}} << Values{{Value, 7}} << QStringList{u"dataChanged 1..1 300"_s}
                            << none;
    QTest::newRow("the same value") << Values{{Value, u"2"_s}} << Values() << QStringList{u"dataChanged 1..1 300"_s}
                                    << none;
    QTest::newRow("a role that the row has not")
        << Values{{Note, 7}} << Values{{Note, 7}} << QStringList{u"dataChanged 1..1 301"_s} << none;
    QTest::newRow("several roles, ascending")
        << Values{{400, 1}, {Note, 2}, {Value, 3}, {257, 4}} << Values{{400, 1}, {Note, 2}, {Value, 3}, {257, 4}}
        << QStringList{u"dataChanged 1..1 257 300 301 400"_s} << none;
    QTest::newRow("low, valid and invalid")
        << Values{{100, 1}, {300, 2}, {301, QVariant()}} << Values{{300, 2}} << QStringList{u"dataChanged 1..1 300"_s}
        << QStringList{u"Role is less than Qt::UserRole! Role: 100"_s, u"Role value is invalid! Row: 1  Role: 301"_s};
    QTest::newRow("Qt::UserRole itself") << Values{{256, 1}} << Values() << none
                                         << QStringList{u"Role is less than Qt::UserRole! Role: 256"_s};
    QTest::newRow("low and invalid at once")
        << Values{{-1, QVariant()}} << Values() << none << QStringList{u"Role is less than Qt::UserRole! Role: -1"_s};
    QTest::newRow("an invalid value for a role that it has")
        << Values{{Value, QVariant()}} << Values() << none
        << QStringList{u"Role value is invalid! Row: 1  Role: 300"_s};
}

void tst_BaseListModel::setRoleValueForRow()
{
    using Values = QMap<int, QVariant>;
    QFETCH(Values, values);
    QFETCH(Values, stored);

    for (bool byId : {false, true}) {
        Model model;
        Rows expected = rows(u"a=1 b=2 c=3"_s);
        model.appendRows(expected);
        const QAbstractItemModelTester tester(&model);
        const Signals record(model);
        const LogRecorder log;
        if (byId)
            model.setRoleValueForRow("b", values);
        else
            model.setRoleValueForRow(model.index(1), values);
        QTEST(record.lines, "emitted");
        QTEST(log.texts(), "warnings");
        QCOMPARE(log.warnings(), log.texts());
        for (const auto &[role, value] : stored.asKeyValueRange())
            expected[1].second[role] = value;
        compare(model, expected);
    }
}

void tst_BaseListModel::setRoleValueForIndexOutside()
{
    Model model;
    const QMap<int, QVariant> values{{Value, 7}, {100, 7}}; // the low role would warn
    model.setRoleValueForRow(QModelIndex(), values);
    model.setRoleValueForRow("a", values);
    model.appendRows(rows(u"a=1 b=2"_s));
    const QModelIndex first = model.index(0);
    const QModelIndex second = model.index(1);
    model.removeRows(1, 1, QModelIndex());
    const Signals record(model);
    model.setRoleValueForRow(QModelIndex(second), values);
    model.setRoleValueForRow("b", values);
    model.setRoleValueForRow("", values);
    QCOMPARE(record.lines, QStringList());
    compare(model, rows(u"a=1"_s));
    model.clear();
    model.setRoleValueForRow(QModelIndex(first), values);
    compare(model, {});
}

void tst_BaseListModel::appendOrUpdateDropsRoles()
{
    Model model;
    model.appendRows({{"a", {{Value, 1}, {Note, 2}}}, {"b", {{Value, 3}}}});
    const QAbstractItemModelTester tester(&model);
    model.appendOrUpdate({{"a", {{Value, 4}}}, {"b", {{Note, 5}}}});
    compare(model, {{"a", {{Value, 4}}}, {"b", {{Note, 5}}}});
}

void tst_BaseListModel::replaceComparesIdsAndRoles()
{
    Model model;
    model.appendRows({{"a", {{Value, 1}}}, {"b", {{Value, 1}, {Note, 2}}}, {"c", {{Value, 1}}}, {"d", {}}});
    const QAbstractItemModelTester tester(&model);
    const Signals record(model);
    const Rows given{{"a", {{Value, 1}, {Note, 2}}}, {"b", {{Value, 1}}}, {"c", {{Value, 1}}}, {"d", {{5, 1}}}};
    model.replace(given);
    QCOMPARE(record.lines, (QStringList{u"dataChanged 0..1"_s, u"dataChanged 3..3"_s}));
    compare(model, given);

    Rows otherId = given;
    otherId[2].first = "z"; // the values are those of "c"
    model.replace(otherId);
    QCOMPARE(record.lines.mid(2), QStringList{u"dataChanged 2..2"_s});
    compare(model, otherId);
    QVERIFY(!model.hasRow("c"));

    // Rows that have just come are not compared: a value that equals nothing, itself included, is told once.
    Rows longer = otherId;
    longer.push_back({"e", {{Value, qQNaN()}}});
    model.replace(longer);
    QCOMPARE(record.lines.mid(3),
             (QStringList{u"rowsAboutToBeInserted 4..4"_s, u"rowsInserted 4..4"_s, u"countChanged 5"_s}));
}

void tst_BaseListModel::lookUps()
{
    Model model;
    QVERIFY(!model.hasRow(""));
    QCOMPARE(model.getRowIndex("a"), -1);
    QVERIFY(model.getRowById("a") == Row());

    const std::string accented = "\xc3\xa4 \xff"; // ids are bytes
    const Rows given{{"", {{Value, 1}}}, {accented, {{Value, 2}}}, {std::string("n\0l", 3), {{Value, 3}}}};
    model.appendRows(given);
    const QAbstractItemModelTester tester(&model);
    compare(model, given);
    QVERIFY(!model.hasRow("n"));
    QVERIFY(model.getRowById("n") == Row());
    QCOMPARE(model.getRowIndex("n"), -1);

    Rows copy = model.getRows();
    copy[0].second[Value] = 9;
    Row copied = model.getRowById("");
    copied.second[Value] = 9;
    compare(model, given);
}

void tst_BaseListModel::header()
{
    Model model;
    const Signals record(model);
    model.setHeader(u""_s);
    QCOMPARE(record.lines, QStringList());
    model.setHeader(u"Corvane"_s);
    model.setHeader(u"Corvane"_s);
    QCOMPARE(model.header(), u"Corvane"_s);
    QCOMPARE(record.lines, QStringList{u"headerChanged"_s});
    QVERIFY(model.setProperty("header", u"Other"_s));
    QCOMPARE(model.property("header").toString(), u"Other"_s);
    QCOMPARE(record.lines, (QStringList{u"headerChanged"_s, u"headerChanged"_s}));
    model.appendRows(rows(u"a"_s));
    model.clear();
    QCOMPARE(model.header(), u"Other"_s);
}

namespace {

class CountingModel : public Model
{
public:
    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : count.value_or(Model::rowCount(parent));
    }

    std::optional<int> count;
};

} // namespace

void tst_BaseListModel::ownCount()
{
    CountingModel model;
    model.count = 42;
    QSignalSpy changed(&model, &BaseListModel::countChanged);
    model.appendRows(rows(u"a b"_s));
    QCOMPARE(changed, (QList<QVariantList>{{42}}));
    QCOMPARE(model.getCount(), 42);
    QCOMPARE(model.property("count").toInt(), 42);
}

// Rows that a subclass hides are kept; nobody is told of them.
void tst_BaseListModel::ownCountSmaller()
{
    CountingModel model;
    model.appendRows(rows(u"a b c d e"_s));
    const QModelIndex hidden = model.index(4);
    model.count = 3;
    const Signals record(model);
    const LogRecorder log;
    model.replace(rows(u"a b c=1 d=1 e"_s));
    QCOMPARE(log.warnings(), QStringList{u"BaseListModel::replace() - Invalid index! This should never happen"_s});
    QCOMPARE(record.lines, QStringList{u"dataChanged 2..2"_s});
    model.replace(rows(u"a b c=1 d=1 e=1"_s));
    model.setRoleValueForRow(QModelIndex(hidden), {{Value, 7}});
    model.setRoleValueForRow("e", {{Value, 7}});
    QVERIFY(!model.setData(hidden, 7, Value));
    QCOMPARE(log.texts().size(), 1);
    QCOMPARE(record.lines.size(), 1);
    QVERIFY(model.getRows() == rows(u"a b c=1 d=1 e=1"_s));
    QCOMPARE(model.getRowIndex("e"), 4);
}

// Rows that a subclass adds have no values here.
void tst_BaseListModel::ownCountLarger()
{
    CountingModel model;
    model.appendRows(rows(u"a"_s));
    model.count = 3;
    const Signals record(model);
    const QModelIndex added = model.index(2);
    QVERIFY(added.isValid());
    QCOMPARE(model.data(added, Value), QVariant());
    QVERIFY(!model.setData(added, 7, Value));
    model.setRoleValueForRow(QModelIndex(added), {{Value, 7}});
    QCOMPARE(record.lines, QStringList());
}

void tst_BaseListModel::ownRemoveRows()
{
    class Refusing : public Model
    {
    public:
        bool removeRows(int row, int count, const QModelIndex &parent) override
        {
            asked.append({row, count, parent.row()});
            return false;
        }

        QList<QList<int>> asked;
    };

    Refusing model;
    model.appendRows(rows(u"a b c d"_s));
    const QAbstractItemModelTester tester(&model);
    const Signals record(model);
    model.replace(rows(u"a x"_s));
    QCOMPARE(model.asked, (QList<QList<int>>{{2, 2, -1}}));
    QCOMPARE(record.lines, QStringList{u"dataChanged 1..1"_s});
    compare(model, rows(u"a x c d"_s)); // what was not removed is still there
}

void tst_BaseListModel::changedBySlots_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<Operation>("reaction");

    const Operation clear = [](Model &model) { model.clear(); };
    const Operation removeFirst = [](Model &model) { model.removeRows(0, 1, QModelIndex()); };
    const Operation grow = [](Model &model) { model.appendRows(numbered(200, 1000)); };
    const QList<std::pair<const char *, Operation>> reactions{
        {"clear", clear}, {"remove", removeFirst}, {"grow", grow}};
    const QList<std::pair<const char *, Operation>> operations{
        {"replace by more", [](Model &model) { model.replace(rows(u"a=1 b c=1 d e f"_s)); }},
        {"replace by fewer", [](Model &model) { model.replace(rows(u"a=1 b c=1"_s)); }},
        {"replace", [](Model &model) { model.replace(rows(u"a=1 b c=1 d"_s)); }},
        {"appendOrUpdate", [](Model &model) { model.appendOrUpdate(rows(u"d=1 a=1 c=1 x"_s)); }}};
    for (const auto &[name, operation] : operations) {
        for (const auto &[reactionName, reaction] : reactions)
            QTest::addRow("%s, %s", name, reactionName) << operation << reaction;
    }
}

// A slot that changes the model in the middle of an operation leaves rows and index in step. No tester: what is
// announced after such a change may be gone.
void tst_BaseListModel::changedBySlots()
{
    QFETCH(Operation, operation);
    QFETCH(Operation, reaction);

    Model model;
    model.appendRows(rows(u"a b c d"_s));
    bool reacted = false;
    const auto reactOnce = [&] {
        if (!std::exchange(reacted, true))
            reaction(model);
    };
    connect(&model, &QAbstractItemModel::dataChanged, this, reactOnce);
    connect(&model, &BaseListModel::countChanged, this, reactOnce);
    operation(model);
    QVERIFY(reacted);
    compare(model, model.getRows());
}

namespace {

// A value that counts its copies. Small enough for QVariant to hold it in place, so each copy of a row makes one.
class Counted
{
public:
    Counted() = default;
    explicit Counted(int number)
        : m_number(number)
    {
    }
    Counted(const Counted &other) noexcept
        : m_number(other.m_number)
    {
        ++copies;
    }
    Counted(Counted &&other) noexcept = default;
    Counted &operator=(const Counted &other) noexcept
    {
        m_number = other.m_number;
        ++copies;
        return *this;
    }
    Counted &operator=(Counted &&other) noexcept = default;
    ~Counted() = default;
    bool operator==(const Counted &other) const { return m_number == other.m_number; }

    static inline int copies = 0;

private:
    int m_number = 0;
};

} // namespace

Q_DECLARE_TYPEINFO(Counted, Q_RELOCATABLE_TYPE);

namespace {

Rows counted(int first, int count, int offset = 0)
{
    Rows result;
    for (int i = first; i < first + count; ++i)
        result.push_back({std::to_string(i), {{Value, QVariant::fromValue(Counted(i + offset))}}});
    return result;
}

} // namespace

void tst_BaseListModel::copies_data()
{
    QTest::addColumn<std::function<Operation()>>("prepared");
    QTest::addColumn<int>("copies");
    QTest::addColumn<QStringList>("warnings");

    using Prepared = std::function<Operation()>; // makes the rows before copies are counted
    const QStringList none;
    const auto given = [](const Rows &rows, void (BaseListModel::*operation)(const Rows &)) -> Prepared {
        return [rows, operation] { return [rows, operation](Model &model) { (model.*operation)(rows); }; };
    };
    const auto insert = [](int position, const Rows &rows) -> Prepared {
        return [position, rows] { return [position, rows](Model &model) { model.insertRows(position, rows); }; };
    };
    const auto call = [](const Operation &operation) -> Prepared { return [operation] { return operation; }; };
    Rows twoChanged = counted(0, 20);
    twoChanged[3] = counted(3, 1, 100)[0];
    twoChanged[9] = counted(9, 1, 100)[0];
    Rows longer = twoChanged;
    longer.push_back(counted(50, 1)[0]);
    Rows mixed = counted(5, 2, 100);
    mixed.push_back(counted(60, 1)[0]);

    QTest::newRow("append") << given(counted(20, 5), &BaseListModel::appendRows) << 5 << none;
    QTest::newRow("append beyond the reserve") << given(counted(20, 500), &BaseListModel::appendRows) << 500 << none;
    QTest::newRow("append too many") << given(counted(20, 10000), &BaseListModel::appendRows) << 0
                                     << QStringList{u"Too many rows!"_s};
    QTest::newRow("append one again") << given(counted(19, 1), &BaseListModel::appendRows) << 0
                                      << QStringList{u"\"Row id: 19 is not unique! Skipping row\""_s};
    QTest::newRow("insert") << insert(1, counted(20, 5)) << 5 << none;
    QTest::newRow("insert beyond the reserve") << insert(1, counted(20, 500)) << 500 << none;
    QTest::newRow("append or update") << given(mixed, &BaseListModel::appendOrUpdate) << 3 << none;
    QTest::newRow("update, append too many")
        << given(counted(19, 10000), &BaseListModel::appendOrUpdate) << 1 << QStringList{u"Too many rows!"_s};
    QTest::newRow("replace by the same") << given(counted(0, 20), &BaseListModel::replace) << 0 << none;
    QTest::newRow("replace two") << given(twoChanged, &BaseListModel::replace) << 2 << none;
    QTest::newRow("replace two, longer") << given(longer, &BaseListModel::replace) << 3 << none;
    QTest::newRow("replace, shorter") << given(counted(0, 7), &BaseListModel::replace) << 0 << none;
    QTest::newRow("remove") << call([](Model &model) { model.removeRows(2, 3, QModelIndex()); }) << 0 << none;
    QTest::newRow("clear") << call([](Model &model) { model.clear(); }) << 0 << none;
    QTest::newRow("getRowById") << call([](Model &model) { QCOMPARE(model.getRowById("7").first, "7"); }) << 1 << none;
    QTest::newRow("getRows") << call([](Model &model) { QCOMPARE(model.getRows().size(), 20u); }) << 20 << none;
    QTest::newRow("data") << call([](Model &model) { QVERIFY(model.data(model.index(3), Value).isValid()); }) << 1
                          << none;
}

void tst_BaseListModel::copies()
{
    QFETCH(std::function<Operation()>, prepared);

    Model model;
    model.appendRows(counted(0, 20));
    const Operation operation = prepared();
    const LogRecorder log;
    Counted::copies = 0;
    operation(model);
    QTEST(Counted::copies, "copies");
    QTEST(log.texts(), "warnings");
}

namespace {

// Keeps a copy of a model by its signals alone.
class Mirror : public QObject
{
public:
    explicit Mirror(const Model &model)
        : m_model(model)
    {
        connect(&model, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex &, int first, int last) {
            rows.insert(rows.begin() + first, size_t(last - first + 1), Row());
            read(first, last);
        });
        connect(&model, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex &, int first, int last) {
            rows.erase(rows.begin() + first, rows.begin() + last + 1);
        });
        connect(&model, &QAbstractItemModel::modelReset, this, [this] {
            rows.assign(size_t(m_model.rowCount()), Row());
            read(0, m_model.rowCount() - 1);
        });
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &top, const QModelIndex &bottom) {
                    if (top.isValid())
                        read(top.row(), bottom.row());
                });
        connect(&model, &BaseListModel::countChanged, this, [this](int newCount) { count = newCount; });
    }

    Rows rows;
    int count = 0;

private:
    void read(int first, int last)
    {
        for (int i = first; i <= last; ++i) {
            const QString id = m_model.data(m_model.index(i), Id).toString();
            rows[size_t(i)] = row(id, m_model.data(m_model.index(i), Value));
        }
    }

    const Model &m_model;
};

// The operations as plain list work.
class Reference
{
public:
    void append(const Rows &given) { rows.insert(rows.end(), given.begin(), given.end()); }
    void insert(int position, const Rows &given)
    {
        rows.insert(rows.begin() + std::min(position, int(rows.size())), given.begin(), given.end());
    }
    void remove(int position, int count) { rows.erase(rows.begin() + position, rows.begin() + position + count); }
    void appendOrUpdate(const Rows &given)
    {
        Rows unknown;
        for (const Row &row : given) {
            const auto known =
                std::find_if(rows.rbegin(), rows.rend(), [&row](const Row &other) { return other.first == row.first; });
            if (known == rows.rend())
                unknown.push_back(row);
            else
                *known = row;
        }
        append(unknown);
    }
    void set(int position, const QVariant &value) { rows[size_t(position)].second[Value] = value; }

    Rows rows;
};

} // namespace

// Ids repeat only where that is allowed, in the middle and through replace: elsewhere views are told of rows that do
// not come. LUMAKIT_SEED repeats a run.
void tst_BaseListModel::randomOperations()
{
    bool given = false;
    const uint environmentSeed = qEnvironmentVariable("LUMAKIT_SEED").toUInt(&given);
    const uint seed = given ? environmentSeed : QRandomGenerator::global()->generate();
    qInfo("LUMAKIT_SEED=%u", seed);
    QRandomGenerator random(seed);

    Model model;
    const QAbstractItemModelTester tester(&model);
    const Mirror mirror(model);
    Reference reference;
    int value = 0;
    int newId = 0;

    // Some rows: of the model with a chance, as they are or changed, else new.
    const auto someRows = [&](int knownInTen, bool unique) {
        Rows result;
        const int count = int(random.bounded(1, 8));
        for (int i = 0; i < count; ++i) {
            Row next = row(u"n%1"_s.arg(++newId), ++value);
            if (!reference.rows.empty() && int(random.bounded(10)) < knownInTen) {
                next = reference.rows[random.bounded(quint32(reference.rows.size()))];
                if (random.bounded(2) == 0)
                    next.second[Value] = ++value;
            }
            const bool repeats = std::ranges::find(result, next.first, &Row::first) != result.end();
            if (!unique || !repeats)
                result.push_back(next);
        }
        return result;
    };
    const auto place = [&] { return int(random.bounded(quint32(reference.rows.size()))); };

    for (int step = 0; step < 3000; ++step) {
        const QByteArray context = "LUMAKIT_SEED=" + QByteArray::number(seed) + ", step " + QByteArray::number(step);
        const bool empty = reference.rows.empty();
        const int size = int(reference.rows.size());
        switch (size > 60 ? 3 : int(random.bounded(12))) {
        case 0: {
            const Rows added = someRows(0, true);
            model.appendRows(added);
            reference.append(added);
            break;
        }
        case 1: {
            const int position = int(random.bounded(size + 2));
            const Rows added = someRows(position < size ? 1 : 0, position >= size);
            model.insertRows(position, added);
            reference.insert(position, added);
            break;
        }
        case 2: {
            if (empty) // changes of rows that do not exist are told then, which the tester refuses
                break;
            const Rows updated = someRows(7, true);
            model.appendOrUpdate(updated);
            reference.appendOrUpdate(updated);
            break;
        }
        case 3: {
            if (empty)
                break;
            const int position = place();
            const int count = 1 + int(random.bounded(size - position));
            QVERIFY2(model.removeRows(position, count, QModelIndex()), context);
            reference.remove(position, count);
            break;
        }
        case 4:
            if (random.bounded(10) == 0) {
                model.clear();
                reference.rows.clear();
            }
            break;
        case 5: {
            if (empty)
                break;
            const int position = place();
            QVERIFY2(model.setData(model.index(position), ++value, Value), context);
            reference.set(position, value);
            break;
        }
        case 6: {
            if (empty)
                break;
            const int position = place();
            model.setRoleValueForRow(model.index(position), {{Value, ++value}});
            reference.set(position, value);
            break;
        }
        case 7: { // the same list with a few changes
            Rows next = reference.rows;
            for (Row &row : next) {
                if (random.bounded(4) == 0)
                    row.second[Value] = ++value;
            }
            model.replace(next);
            reference.rows = next;
            break;
        }
        case 8: { // a row less at the front, so that all move
            Rows next(reference.rows.begin() + (empty ? 0 : 1), reference.rows.end());
            model.replace(next);
            reference.rows = next;
            break;
        }
        case 9: { // in the reverse order, longer
            Rows next(reference.rows.rbegin(), reference.rows.rend());
            const Rows more = someRows(empty ? 0 : 1, empty);
            next.insert(next.end(), more.begin(), more.end());
            model.replace(next);
            reference.rows = next;
            break;
        }
        default: {
            const Rows next = someRows(empty ? 0 : 5, empty);
            model.replace(next);
            reference.rows = next;
        }
        }
        QVERIFY2(mirror.rows == reference.rows,
                 context + ": " + text(mirror.rows).toUtf8() + " is not " + text(reference.rows).toUtf8());
        QVERIFY2(mirror.count == int(reference.rows.size()), context);
        compare(model, reference.rows);
        if (QTest::currentTestFailed())
            QFAIL(context);
    }
}

void tst_BaseListModel::delegates_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("kept");
    QTest::addColumn<int>("made");

    QTest::newRow("the same") << u"a b c d"_s << u"a b c d"_s << 4 << 0;
    QTest::newRow("a value") << u"a b c d"_s << u"a b=1 c d"_s << 4 << 0;
    QTest::newRow("all values") << u"a b c d"_s << u"a=1 b=2 c=3 d=4"_s << 4 << 0;
    QTest::newRow("another order") << u"a b c d"_s << u"d c b a"_s << 4 << 0;
    QTest::newRow("longer") << u"a b"_s << u"a b=1 c d"_s << 2 << 2;
    QTest::newRow("shorter") << u"a b c d"_s << u"a b=1"_s << 2 << 0;
    QTest::newRow("from none") << u""_s << u"a b"_s << 0 << 2;
    QTest::newRow("to none") << u"a b"_s << u""_s << 0 << 0;
}

void tst_BaseListModel::delegates()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, kept);

    Model model;
    model.appendRows(rows(before));
    const QAbstractItemModelTester tester(&model);
    QQuickView view;
    QQmlComponent component(view.engine());
    component.setData("import QtQuick\n"
                      "ListView {\n"
                      "    property int made: 0\n"
                      "    width: 100; height: 400\n"
                      "    delegate: Item {\n"
                      "        required property string rowId\n"
                      "        required property string value\n"
                      "        property string shown: rowId + '=' + value\n"
                      "        height: 20\n"
                      "        Component.onCompleted: ++ListView.view.made\n"
                      "    }\n"
                      "}\n",
                      QUrl());
    auto *list = qobject_cast<QQuickItem *>(
        component.createWithInitialProperties({{u"model"_s, QVariant::fromValue<QObject *>(&model)}}));
    QVERIFY2(list, qPrintable(component.errorString()));
    view.setContent(QUrl(), &component, list);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));

    const auto delegates = [list] {
        QList<QQuickItem *> items;
        for (int i = 0; i < list->property("count").toInt(); ++i) {
            QQuickItem *item = nullptr;
            QMetaObject::invokeMethod(list, "itemAtIndex", qReturnArg(item), i);
            items.append(item);
        }
        return items;
    };
    const Rows expected = rows(after);
    QMetaObject::invokeMethod(list, "forceLayout");
    const QList<QQuickItem *> first = delegates();
    QCOMPARE(first.size(), qsizetype(rows(before).size()));
    QVERIFY(!first.contains(nullptr));
    QCOMPARE(list->property("made").toInt(), int(first.size()));

    model.replace(expected);
    QMetaObject::invokeMethod(list, "forceLayout");
    const QList<QQuickItem *> second = delegates();
    QCOMPARE(second.size(), qsizetype(expected.size()));
    QCOMPARE(second.first(kept), first.first(kept));
    QTEST(list->property("made").toInt() - int(first.size()), "made");
    for (qsizetype i = 0; i < second.size(); ++i) {
        QCOMPARE(second[i]->property("shown").toString(),
                 model.data(model.index(int(i)), Id).toString() + u'='
                     + model.data(model.index(int(i)), Value).toString());
    }
}

LUMAKIT_TEST_MAIN(tst_BaseListModel)
#include "tst_baselistmodel.moc"
