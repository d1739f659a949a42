#include "MetaDescription.h"

#include <TestCase.h>
#include <WColorSet.h>

#include <QJSEngine>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QColor Normal(u"#010101"_s);
const QColor Hovered(u"#020202"_s);
const QColor Pressed(u"#030303"_s);
const QColor Disabled(u"#040404"_s);
const QColor Focused(u"#050505"_s);
const QColor Checked(u"#060606"_s);

WColorSet sixColors(const QString &name = u"six"_s)
{
    return {name, Normal, Hovered, Pressed, Disabled, Focused, Checked};
}

QList<QColor> colorsOf(const WColorSet &set)
{
    return {set.normal, set.hovered, set.pressed, set.disabled, set.focused, set.checked};
}

const QList<QColor> SixColors{Normal, Hovered, Pressed, Disabled, Focused, Checked};

constexpr std::array<QColor WColorSet::*, 6> Members{&WColorSet::normal,   &WColorSet::hovered, &WColorSet::pressed,
                                                     &WColorSet::disabled, &WColorSet::focused, &WColorSet::checked};
constexpr std::array<const char *, 6> MemberNames{"normal", "hovered", "pressed", "disabled", "focused", "checked"};

} // namespace

class tst_WColorSet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void valueType();
    void gadgetProperty_data();
    void gadgetProperty();
    void fromScript();
    void defaultConstructed();
    void oneColor();
    void renamed();
    void copyAndMove();
    void isValid_data();
    void isValid();
    void equality_data();
    void equality();
    void colorByName_data();
    void colorByName();
    void colorByState_data();
    void colorByState();
    void colorByEveryState();
};

void tst_WColorSet::metaObject()
{
    QCOMPARE(
        MetaDescription::properties(WColorSet::staticMetaObject),
        (QStringList{u"QString name"_s, u"QColor normal"_s, u"QColor hovered"_s, u"QColor pressed"_s,
                     u"QColor disabled"_s, u"QColor focused"_s, u"QColor checked"_s, u"bool isValid, read-only"_s}));
    QCOMPARE(WColorSet::staticMetaObject.superClass(), nullptr);
    QCOMPARE(WColorSet::staticMetaObject.methodCount(), 0);
    QCOMPARE(QMetaType::fromType<WColorSet>().metaObject(), &WColorSet::staticMetaObject);
}

void tst_WColorSet::valueType()
{
    QVERIFY(!std::is_polymorphic_v<WColorSet>);
    QVERIFY(std::is_nothrow_move_constructible_v<WColorSet>);
    // The fields lie in the order of the constructor's arguments.
    const WColorSet set;
    const auto address = [](const auto &member) { return reinterpret_cast<const char *>(&member); };
    QList<const char *> addresses{address(set.name)};
    for (const auto member : Members)
        addresses << address(set.*member);
    QVERIFY(std::is_sorted(addresses.begin(), addresses.end()));
}

void tst_WColorSet::gadgetProperty_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < MemberNames.size(); ++i)
        QTest::newRow(MemberNames[i]) << int(i);
}

void tst_WColorSet::gadgetProperty()
{
    QFETCH(int, index);
    const QMetaObject &meta = WColorSet::staticMetaObject;
    const QMetaProperty property = meta.property(meta.indexOfProperty(MemberNames[size_t(index)]));
    WColorSet set = sixColors();
    QCOMPARE(property.readOnGadget(&set).value<QColor>(), SixColors[index]);

    QVERIFY(property.writeOnGadget(&set, SixColors[index]));
    QCOMPARE(set, sixColors());

    const QColor other(u"#80ff0000"_s);
    QVERIFY(property.writeOnGadget(&set, other));
    WColorSet expected = sixColors();
    expected.*Members[size_t(index)] = other;
    QCOMPARE(set, expected);
}

void tst_WColorSet::fromScript()
{
    QJSEngine engine;
    engine.globalObject().setProperty(u"set"_s, engine.toScriptValue(sixColors()));
    engine.globalObject().setProperty(u"none"_s, engine.toScriptValue(WColorSet()));
    QCOMPARE(engine.evaluate(u"set.name"_s).toString(), u"six"_s);
    QCOMPARE(qjsvalue_cast<QColor>(engine.evaluate(u"set.hovered"_s)), Hovered);
    QCOMPARE(qjsvalue_cast<QColor>(engine.evaluate(u"set.checked"_s)), Checked);
    QVERIFY(engine.evaluate(u"set.isValid === true"_s).toBool());
    QVERIFY(engine.evaluate(u"none.isValid === false"_s).toBool());
}

void tst_WColorSet::defaultConstructed()
{
    const WColorSet set;
    QCOMPARE(set.name, QString());
    QCOMPARE(colorsOf(set), QList<QColor>(6, QColor()));
    QVERIFY(!set.isValid());
}

void tst_WColorSet::oneColor()
{
    const WColorSet set(u"x"_s, Qt::red);
    QCOMPARE(set.name, u"x"_s);
    QCOMPARE(colorsOf(set), QList<QColor>(6, QColor(Qt::red)));
    QVERIFY(set.isValid());
}

void tst_WColorSet::renamed()
{
    const WColorSet set(u"other"_s, sixColors());
    QCOMPARE(set.name, u"other"_s);
    QCOMPARE(colorsOf(set), SixColors);
}

void tst_WColorSet::copyAndMove()
{
    WColorSet source = sixColors();
    const WColorSet copied(source);
    QCOMPARE(copied, source);
    QCOMPARE(colorsOf(copied), SixColors);

    WColorSet assigned;
    assigned = source;
    QCOMPARE(assigned, sixColors());

    const WColorSet moved(std::move(source));
    QCOMPARE(moved, sixColors());

    WColorSet moveAssigned(u"old"_s, Qt::red);
    moveAssigned = std::move(assigned);
    QCOMPARE(moveAssigned, sixColors());
}

void tst_WColorSet::isValid_data()
{
    QTest::addColumn<WColorSet>("set");
    QTest::addColumn<bool>("valid");
    QTest::newRow("six colours") << sixColors() << true;
    QTest::newRow("no name") << sixColors(QString()) << false;
    QTest::newRow("empty name") << sixColors(u""_s) << false;
    QTest::newRow("name of a space") << sixColors(u" "_s) << true;
    QTest::newRow("transparent is a colour") << WColorSet(u"x"_s, Qt::transparent) << true;
    QTest::newRow("invalid colour") << WColorSet(u"x"_s, QColor()) << false;
    for (size_t i = 0; i < Members.size(); ++i) {
        WColorSet set = sixColors();
        set.*Members[i] = QColor();
        QTest::addRow("no %s colour", MemberNames[i]) << set << false;
    }
}

void tst_WColorSet::isValid()
{
    QFETCH(WColorSet, set);
    QFETCH(bool, valid);
    QCOMPARE(set.isValid(), valid);
    QCOMPARE(set.staticMetaObject.property(7).readOnGadget(&set).toBool(), valid);
}

void tst_WColorSet::equality_data()
{
    QTest::addColumn<WColorSet>("other");
    QTest::addColumn<bool>("equal");
    QTest::newRow("the same") << sixColors() << true;
    QTest::newRow("another name") << sixColors(u"Six"_s) << false;
    QTest::newRow("default") << WColorSet() << false;
    for (size_t i = 0; i < Members.size(); ++i) {
        WColorSet set = sixColors();
        set.*Members[i] = Qt::red;
        QTest::addRow("another %s colour", MemberNames[i]) << set << false;
        set = sixColors();
        (set.*Members[i]).setAlpha(254);
        QTest::addRow("another alpha of %s", MemberNames[i]) << set << false;
        set = sixColors();
        set.*Members[i] = (set.*Members[i]).toHsv();
        QTest::addRow("%s in another colour space", MemberNames[i]) << set << false;
    }
}

void tst_WColorSet::equality()
{
    QFETCH(WColorSet, other);
    QFETCH(bool, equal);
    QCOMPARE(sixColors() == other, equal);
    QCOMPARE(other == sixColors(), equal);
    QCOMPARE(sixColors() != other, !equal);
}

void tst_WColorSet::colorByName_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("color");
    QTest::newRow("hovered") << u"hovered"_s << Hovered;
    QTest::newRow("pressed") << u"pressed"_s << Pressed;
    QTest::newRow("disabled") << u"disabled"_s << Disabled;
    QTest::newRow("focused") << u"focused"_s << Focused;
    QTest::newRow("checked") << u"checked"_s << Checked;
    QTest::newRow("normal") << u"normal"_s << Normal;
    for (const char *name : {"Hovered", "NORMAL", "hover", "hoveredx", " hovered", "name", "isValid", "selected"})
        QTest::newRow(name) << QString::fromLatin1(name) << QColor();
    QTest::newRow("empty") << u""_s << QColor();
    QTest::newRow("null") << QString() << QColor();
    QTest::newRow("with a line break") << u"normal\n"_s << QColor();
    QTest::newRow("not ASCII") << u"n\u00f6rmal"_s << QColor();
    QTest::newRow("a megabyte") << QString(1024 * 1024, u'n') << QColor();
}

void tst_WColorSet::colorByName()
{
    QFETCH(QString, state);
    QFETCH(QColor, color);
    const WColorSet set = sixColors();
    LogRecorder log;
    QCOMPARE(set.getColor(state), color);
    QList<LogRecorder::Line> lines;
    if (!color.isValid()) {
        QString quoted;
        QDebug(&quoted).nospace() << state;
        lines = {{QtWarningMsg, u"WColorSet: color state is invalid! "_s + quoted}};
    }
    QCOMPARE(log.lines(), lines);
    QCOMPARE(set, sixColors());
}

void tst_WColorSet::colorByState_data()
{
    using S = QStyle;
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("colorWithoutFocusColor");
    const auto row = [](const char *name, QStyle::State state, const QColor &color, const QColor &withoutFocus) {
        QTest::newRow(name) << state << color << withoutFocus;
    };
    row("nothing", S::State_None, Disabled, Disabled);
    row("enabled", S::State_Enabled, Normal, Normal);
    row("sunken, not enabled", S::State_Sunken, Disabled, Disabled);
    row("everything but enabled", ~S::State(S::State_Enabled), Disabled, Disabled);
    row("sunken", S::State_Enabled | S::State_Sunken, Pressed, Pressed);
    row("sunken under the mouse", S::State_Enabled | S::State_Sunken | S::State_MouseOver, Pressed, Pressed);
    row("mouse over", S::State_Enabled | S::State_MouseOver, Hovered, Hovered);
    row("mouse over, focus", S::State_Enabled | S::State_MouseOver | S::State_HasFocus, Hovered, Hovered);
    row("mouse over, on", S::State_Enabled | S::State_MouseOver | S::State_On, Hovered, Hovered);
    row("focus", S::State_Enabled | S::State_HasFocus, Focused, Normal);
    row("focus, on", S::State_Enabled | S::State_HasFocus | S::State_On, Focused, Checked);
    row("focus, selected", S::State_Enabled | S::State_HasFocus | S::State_Selected, Focused, Checked);
    row("selected", S::State_Enabled | S::State_Selected, Checked, Checked);
    row("on", S::State_Enabled | S::State_On, Checked, Checked);
    row("off", S::State_Enabled | S::State_Off, Normal, Normal);
    row("keyboard focus change", S::State_Enabled | S::State_KeyboardFocusChange, Normal, Normal);
    row("active, open, raised", S::State_Enabled | S::State_Active | S::State_Open | S::State_Raised, Normal, Normal);
}

void tst_WColorSet::colorByState()
{
    QFETCH(QStyle::State, state);
    QFETCH(QColor, color);
    QFETCH(QColor, colorWithoutFocusColor);
    QCOMPARE(sixColors().getColor(state), color);

    WColorSet withoutFocusColor = sixColors();
    withoutFocusColor.focused = withoutFocusColor.normal;
    QCOMPARE(withoutFocusColor.getColor(state), colorWithoutFocusColor);
}

void tst_WColorSet::colorByEveryState()
{
    WColorSet withoutFocusColor = sixColors();
    withoutFocusColor.focused = withoutFocusColor.normal;
    for (const WColorSet &set : {sixColors(), withoutFocusColor}) {
        for (uint word = 0; word < 0x10000; ++word) {
            QColor expected = Normal;
            if (word & (0x8000 | 0x20))
                expected = Checked;
            if ((word & 0x100) && set.focused != set.normal)
                expected = Focused;
            if (word & 0x2000)
                expected = Hovered;
            if (word & 0x4)
                expected = Pressed;
            if (!(word & 0x1))
                expected = Disabled;
            if (set.getColor(QStyle::State::fromInt(int(word))) != expected)
                QFAIL(qPrintable(u"state word 0x%1"_s.arg(word, 0, 16)));
        }
    }
}

LUMAKIT_TEST_MAIN(tst_WColorSet)
#include "tst_wcolorset.moc"
