#include "Measurement.h"

#include <BaseListModel.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickView>

#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowCount = 10000;

class ContactModel : public BaseListModel
{
    Q_OBJECT

public:
    enum Role {
        Name = 257,
        Status,
        Avatar,
        Unread,
        Time,
        Pinned,
    };

    QHash<int, QByteArray> roleNames() const override
    {
        return {{Name, "name"},     {Status, "status"}, {Avatar, "avatar"},
                {Unread, "unread"}, {Time, "time"},     {Pinned, "pinned"}};
    }
};

// Six roles each; every hundredth row, from the first on, says the text.
BaseListModel::Rows contacts(const QString &text)
{
    BaseListModel::Rows rows;
    for (int i = 0; i < RowCount; ++i) {
        rows.push_back({"contact-" + std::to_string(i),
                        {{ContactModel::Name, u"Contact %1"_s.arg(i)},
                         {ContactModel::Status, i % 100 == 0 ? text : u"there"_s},
                         {ContactModel::Avatar, u"avatar-%1"_s.arg(i % 50)},
                         {ContactModel::Unread, i % 7},
                         {ContactModel::Time, 1700000000.0 + i},
                         {ContactModel::Pinned, i % 9 == 0}}});
    }
    return rows;
}

// What the loops count has to be right, or nothing was measured.
void expect(bool condition)
{
    if (!condition)
        qFatal("the benchmark did not do its work");
}

// A model with a list that shows it, and two states of its rows to go to and fro between.
class Scene
{
public:
    explicit Scene(const std::array<BaseListModel::Rows, 2> &states)
        : m_states(states)
        , m_component(m_view.engine())
    {
        m_component.setData("import QtQuick\n"
                            "ListView {\n"
                            "    property int made: 0\n"
                            "    cacheBuffer: 0\n"
                            "    width: 400; height: 800\n"
                            "    delegate: Column {\n"
                            "        required property string name\n"
                            "        required property string status\n"
                            "        required property int unread\n"
                            "        height: 40\n"
                            "        Text { text: parent.name; textFormat: Text.PlainText }\n"
                            "        Text { text: parent.status + parent.unread; textFormat: Text.PlainText }\n"
                            "        Component.onCompleted: ++ListView.view.made\n"
                            "    }\n"
                            "}\n",
                            QUrl());
        m_model.appendRows(m_states[0]);
        m_list = qobject_cast<QQuickItem *>(
            m_component.createWithInitialProperties({{u"model"_s, QVariant::fromValue<QObject *>(&m_model)}}));
        if (!m_list)
            qFatal("%s", qPrintable(m_component.errorString()));
        m_view.setContent(QUrl(), &m_component, m_list);
        m_view.show();
        layOut();
        expect(made() > 20);
    }

    // The view takes the changes in at once, as it would before its next frame.
    void replace()
    {
        m_model.replace(next());
        layOut();
    }
    void clearAndAppend()
    {
        m_model.clear();
        m_model.appendRows(next());
        layOut();
    }

    int made() const { return m_list->property("made").toInt(); }
    QString firstStatus() const { return m_model.data(m_model.index(0), ContactModel::Status).toString(); }

private:
    const BaseListModel::Rows &next()
    {
        m_second = !m_second;
        return m_states[m_second ? 1 : 0];
    }
    void layOut()
    {
        QMetaObject::invokeMethod(m_list, "forceLayout");
        expect(m_list->property("count").toInt() == RowCount);
    }

    const std::array<BaseListModel::Rows, 2> &m_states;
    ContactModel m_model;
    QQuickView m_view;
    QQmlComponent m_component;
    QQuickItem *m_list = nullptr;
    bool m_second = false;
};

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    const std::array<BaseListModel::Rows, 2> states{contacts(u"here"_s), contacts(u"away"_s)};
    const auto toAndFro = [&states](bool &second) -> const BaseListModel::Rows & {
        second = !second;
        return states[second ? 1 : 0];
    };
    Measurement::printHead(u"Models, 10,000 rows of six roles"_s);

    // First of all, while neither lies scattered in memory: where rows lie is most of what their copy takes.
    ContactModel model;
    model.appendRows(states[0]);
    const BaseListModel::Rows rows = states[0];
    Measurement::compare(u"getRows"_s, {u"getRows"_s, [&] { expect(model.getRows().size() == RowCount); }},
                         {u"copy of the same std::vector"_s,
                          [&] {
                              const BaseListModel::Rows copy = rows;
                              expect(copy.size() == RowCount);
                          }},
                         1.1);

    Scene replaced(states);
    Scene appended(states);
    const int made = replaced.made();
    Measurement::compare(u"replace, 1 % changed, list shown"_s, {u"replace"_s, [&] { replaced.replace(); }},
                         {u"clear and appendRows of the same rows"_s, [&] { appended.clearAndAppend(); }}, 0.35);
    expect(replaced.made() == made); // no delegate is made again
    expect(appended.made() > made);
    expect(replaced.firstStatus() == appended.firstStatus());

    // Both look each row up by its id and copy its values.
    std::unordered_map<std::string, BaseListModel::RoleValues> peer(states[0].begin(), states[0].end());
    bool second = false;
    bool peerSecond = false;
    Measurement::compare(u"appendOrUpdate, all present"_s,
                         {u"appendOrUpdate"_s, [&] { model.appendOrUpdate(toAndFro(second)); }},
                         {u"assignment in a std::unordered_map by id"_s,
                          [&] {
                              for (const auto &[id, values] : toAndFro(peerSecond))
                                  peer[id] = values;
                          }},
                         1.25);
    expect(peer.size() == RowCount);
    for (const auto &[id, values] : model.getRows())
        expect(peer.at(id) == values);
    return EXIT_SUCCESS;
}

#include "bench_models.moc"
