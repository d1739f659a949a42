#include "Script.h"

#include <TestCase.h>
#include <WColorSet.h>

#include <QQuickItem>

#include <span>

using namespace Qt::StringLiterals;

namespace {

WColorSet colorSet(const QColor &focused)
{
    return {u"set"_s, QColor(1, 2, 3), QColor(11, 0, 0), QColor(12, 0, 0), QColor(13, 0, 0), focused, QColor(15, 0, 0)};
}

const WColorSet OwnFocus = colorSet(QColor(14, 0, 0));
const WColorSet NoFocus = colorSet(QColor(1, 2, 3));
const WColorSet NoName(u""_s, Qt::red);

// A state and the colour that it asks for; the first that holds wins.
struct Rule
{
    const char *property;
    bool holdsWhen;
    QColor WColorSet::*color;
};

constexpr Rule ControlRules[] = {
    {"enabled", false, &WColorSet::disabled}, {"pressed", true, &WColorSet::pressed},
    {"hovered", true, &WColorSet::hovered},   {"activeFocus", true, &WColorSet::focused},
    {"checked", true, &WColorSet::checked},
};

constexpr Rule TextFieldRules[] = {
    {"readOnly", true, &WColorSet::normal}, {"enabled", false, &WColorSet::disabled},
    {"hovered", true, &WColorSet::hovered}, {"activeFocus", true, &WColorSet::focused},
    {"checked", true, &WColorSet::checked},
};

// Every combination of the states that the rules name.
void addStates(std::span<const Rule> rules, const QStringList &ignoredStates)
{
    QTest::addColumn<QVariantMap>("widget");
    QTest::addColumn<WColorSet>("set");
    QTest::addColumn<QColor>("expected");

    for (const WColorSet &set : {OwnFocus, NoFocus}) {
        for (uint states = 0; states < 1u << rules.size(); ++states) {
            QVariantMap widget;
            QStringList name;
            QColor expected = set.normal;
            bool isDecided = false;
            for (size_t i = 0; i < rules.size(); ++i) {
                const Rule &rule = rules[i];
                const bool holds = states & 1u << i;
                widget.insert(QString::fromLatin1(rule.property), holds == rule.holdsWhen);
                if (!holds)
                    continue;
                name << (rule.holdsWhen ? u""_s : u"not "_s) + QLatin1StringView(rule.property);
                const bool counts = rule.color != &WColorSet::focused || set.focused != set.normal;
                if (!isDecided && counts) {
                    expected = set.*rule.color;
                    isDecided = true;
                }
            }
            for (const QString &state : ignoredStates)
                widget.insert(state, true);
            QTest::addRow("%s%s", name.isEmpty() ? "no state" : qPrintable(name.join(u", "_s)),
                          set == NoFocus ? "; focus as normal" : "")
                << widget << set << expected;
        }
    }
}

} // namespace

class tst_ThemeUtils_Script : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isLibrary() { QVERIFY(m_script.isLibrary(u"getColor"_s)); }

    void control_data() { addStates(ControlRules, {u"readOnly"_s}); }

    void control()
    {
        QFETCH(const QVariantMap, widget);
        QFETCH(const WColorSet, set);
        QFETCH(const QColor, expected);
        const LogRecorder log;
        QCOMPARE(getColor(widget, set).value<QColor>(), expected);
        QCOMPARE(log.lines(), QList<LogRecorder::Line>());
    }

    void textField_data() { addStates(TextFieldRules, {u"pressed"_s}); }

    void textField()
    {
        QFETCH(const QVariantMap, widget);
        QFETCH(const WColorSet, set);
        QFETCH(const QColor, expected);
        const LogRecorder log;
        QCOMPARE(getTextFieldColor(widget, set).value<QColor>(), expected);
        QCOMPARE(log.lines(), QList<LogRecorder::Line>());
    }

    // An item without a state of that name is not in that state.
    void item()
    {
        QQuickItem item;
        const auto widget = QVariant::fromValue(&item);
        QCOMPARE(getColor(widget, OwnFocus).value<QColor>(), OwnFocus.normal);
        QCOMPARE(getTextFieldColor(widget, OwnFocus).value<QColor>(), OwnFocus.normal);
        item.setEnabled(false);
        QCOMPARE(getColor(widget, OwnFocus).value<QColor>(), OwnFocus.disabled);
        QCOMPARE(getTextFieldColor(widget, OwnFocus).value<QColor>(), OwnFocus.disabled);
    }

    void invalidSet_data()
    {
        QTest::addColumn<WColorSet>("set");
        QTest::addColumn<QVariantMap>("widget");
        WColorSet noHover = OwnFocus;
        noHover.hovered = QColor();
        for (const auto &[name, set] : {std::pair("empty", WColorSet()), {"no name", NoName}, {"no hover", noHover}}) {
            QTest::addRow("%s", name) << set << QVariantMap();
            QTest::addRow("%s, disabled", name) << set << QVariantMap{{u"enabled"_s, false}};
            QTest::addRow("%s, read-only", name) << set << QVariantMap{{u"readOnly"_s, true}};
        }
    }

    void invalidSet()
    {
        QFETCH(const WColorSet, set);
        QFETCH(const QVariantMap, widget);
        const LogRecorder log;
        QCOMPARE(getColor(widget, set), QVariant(u"transparent"_s));
        QCOMPARE(log.lines(), QList<LogRecorder::Line>());
        QCOMPARE(getTextFieldColor(widget, set), QVariant(u"transparent"_s));
        QCOMPARE(log.lines().size(), 2);
    }

    // An item that is about to go has no set for a moment.
    void nothingToColor()
    {
        const LogRecorder log;
        QCOMPARE(m_script.evaluate(u"ThemeUtils.getColor({}, null)"_s), QVariant(u"transparent"_s));
        QCOMPARE(m_script.evaluate(u"ThemeUtils.getColor(null, null)"_s), QVariant(u"transparent"_s));
        QCOMPARE(m_script.evaluate(u"ThemeUtils.getColor(null, set)"_s, values({}, OwnFocus)).value<QColor>(),
                 OwnFocus.normal);
        QCOMPARE(log.lines(), QList<LogRecorder::Line>());
    }

    void reports_data()
    {
        QTest::addColumn<QString>("widget");
        QTest::addColumn<QString>("set");
        QTest::addColumn<QVariant>("color");
        QTest::addColumn<QStringList>("lines");

        const QString field = u"{ toString: () => 'field' }"_s;
        const QString valid = u"{ isValid: true, name: 'set', normal: 'red' }"_s;
        const QString invalid = u"{ isValid: false, name: 'set', normal: 'red' }"_s;
        QTest::newRow("nothing") << field << valid << QVariant(u"red"_s) << QStringList();
        QTest::newRow("null widget") << u"null"_s << valid << QVariant(u"red"_s)
                                     << QStringList(u"getTextFieldColor : null widget when getting color for "
                                                    "colorSet: set"_s);
        QTest::newRow("invalid set") << field << invalid << QVariant(u"transparent"_s)
                                     << QStringList{u"getTextFieldColor : invalid colorset: set for widget: field"_s,
                                                    u"getTextFieldColor unexpected color: transparent colorSet.name: "
                                                    "set for widget: field"_s};
        QTest::newRow("null set") << field << u"null"_s << QVariant(u"transparent"_s)
                                  << QStringList{u"getTextFieldColor : null colorset for widget: field"_s,
                                                 u"getTextFieldColor unexpected color: transparent colorSet.name: "
                                                 "undefined for widget: field"_s};
        QTest::newRow("null widget, invalid set")
            << u"null"_s << invalid << QVariant(u"transparent"_s)
            << QStringList{u"getTextFieldColor : null widget when getting color for colorSet: set"_s,
                           u"getTextFieldColor : invalid colorset: set for widget: null"_s,
                           u"getTextFieldColor unexpected color: transparent colorSet.name: set for widget: null"_s};
        QTest::newRow("null widget, null set")
            << u"null"_s << u"null"_s << QVariant(u"transparent"_s)
            << QStringList{u"getTextFieldColor : null widget when getting color for colorSet: undefined"_s,
                           u"getTextFieldColor : null colorset for widget: null"_s,
                           u"getTextFieldColor unexpected color: transparent colorSet.name: undefined for widget: "
                           "null"_s};
        QTest::newRow("empty color") << field << u"{ isValid: true, name: 'set', normal: '' }"_s << QVariant(u""_s)
                                     << QStringList(u"getTextFieldColor unexpected color:  colorSet.name: set for "
                                                    "widget: field"_s);
        QTest::newRow("null color") << field << u"{ isValid: true, name: 'set', normal: null }"_s
                                    << QVariant::fromValue(nullptr)
                                    << QStringList(u"getTextFieldColor unexpected color: null colorSet.name: set for "
                                                   "widget: field"_s);
    }

    // What is told of an editable text whose colour cannot be right.
    void reports()
    {
        QFETCH(const QString, widget);
        QFETCH(const QString, set);
        QFETCH(const QVariant, color);
        QFETCH(const QStringList, lines);
        QList<LogRecorder::Line> expected;
        for (const QString &line : lines)
            expected << LogRecorder::Line{QtCriticalMsg, line};
        const LogRecorder log;
        QCOMPARE(m_script.evaluate(u"ThemeUtils.getTextFieldColor(%1, %2)"_s.arg(widget, set)), color);
        QCOMPARE(log.lines(), expected);
    }

private:
    static QVariantMap values(const QVariant &widget, const WColorSet &set)
    {
        return {{u"widget"_s, widget}, {u"set"_s, QVariant::fromValue(set)}};
    }
    QVariant getColor(const QVariant &widget, const WColorSet &set)
    {
        return m_script.evaluate(u"ThemeUtils.getColor(widget, set)"_s, values(widget, set));
    }
    QVariant getTextFieldColor(const QVariant &widget, const WColorSet &set)
    {
        return m_script.evaluate(u"ThemeUtils.getTextFieldColor(widget, set)"_s, values(widget, set));
    }

    Script m_script{u"ThemeUtils"_s};
};

LUMAKIT_TEST_MAIN(tst_ThemeUtils_Script)
#include "tst_themeutils_script.moc"
