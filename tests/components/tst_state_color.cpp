#include "ComponentTest.h"

#include <TestApplication.h>
#include <WColorSet.h>

#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;

/// The colours that the templates of the controls take from colour sets, as a component's user sees them.
class tst_StateColor : public ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void stateOfTheTarget_data();
    void stateOfTheTarget();
    void targetFollows();
    void targetThatIsGone();
    void themeTypeOfItsOwn();
    void colorSetOfItsOwn();
    void colorOfItsOwn();
    void colorBelongsToThePropertyOfTheItem();
    void signalsOfAThemeChange();
    void destroyedDuringAThemeChange();
    void checkBoxAndFieldExchangeTheirSets_data();
    void checkBoxAndFieldExchangeTheirSets();

protected Q_SLOTS:
    void deleteAllButTheSender();

private:
    static WColorSet colorSet(const QString &name) { return application()->getColorSet(name); }
    QColor color() const { return root()->property("color").value<QColor>(); }
};

namespace {
const QString Token = u"button-secondary-background"_s; // each state has a colour of its own
}

void tst_StateColor::stateOfTheTarget_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("state");
    const auto row = [](const char *target, const char *state) {
        QTest::newRow(target) << QByteArray(target) << QString::fromLatin1(state);
    };
    row("null", "normal");
    row("undefined", "normal");
    row("({})", "normal");
    row("({ enabled: true })", "normal");
    row("({ enabled: false, pressed: true, hovered: true })", "disabled");
    row("({ pressed: true, hovered: true, checked: true })", "pressed");
    row("({ hovered: true, checked: true })", "hovered");
    row("({ checked: true })", "checked");
    row("({ enabled: undefined, hovered: null })", "normal");
}

void tst_StateColor::stateOfTheTarget()
{
    QFETCH(const QByteArray, target);
    QFETCH(const QString, state);
    QVERIFY(show("WText { textColorSetName: '" + Token.toLatin1() + "'; controlsTarget: " + target + " }"));
    QCOMPARE(color(), colorSet(Token).getColor(state));
}

void tst_StateColor::targetFollows()
{
    QVERIFY(show("WText { id: text; textColorSetName: '" + Token.toLatin1()
                 + "'; property var other: QtObject { property bool hovered: false; property bool pressed: false }\n"
                   "controlsTarget: other }"));
    auto *other = root()->property("other").value<QObject *>();
    QCOMPARE(color(), colorSet(Token).normal);
    other->setProperty("hovered", true);
    QCOMPARE(color(), colorSet(Token).hovered);
    other->setProperty("pressed", true);
    QCOMPARE(color(), colorSet(Token).pressed);
    root()->setEnabled(false); // its own state does not count
    QCOMPARE(color(), colorSet(Token).pressed);
    root()->setProperty("controlsTarget", QVariant::fromValue<QObject *>(nullptr));
    QCOMPARE(color(), colorSet(Token).disabled);
    other->setProperty("pressed", false);
    QCOMPARE(color(), colorSet(Token).disabled);
}

void tst_StateColor::targetThatIsGone()
{
    QVERIFY(show("WLabel { textColorSetName: '" + Token.toLatin1() + "' }"));
    auto target = std::make_unique<QQuickItem>();
    target->setEnabled(false);
    root()->setProperty("controlsTarget", QVariant::fromValue<QObject *>(target.get()));
    QCOMPARE(color(), colorSet(Token).disabled);
    target.reset();
    QCOMPARE(color(), colorSet(Token).normal);
    QVERIFY(root()->property("controlsTarget").isNull());
}

void tst_StateColor::themeTypeOfItsOwn()
{
    QVERIFY(show("WText { textColorSetName: 'label-primary-text' }"));
    QCOMPARE(root()->property("themeType").toString(), application()->getThemeMode());
    const QColor light = color();
    root()->setProperty("themeType", u"of its own"_s);
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(root()->property("themeType").toString(), u"of its own"_s);
    QCOMPARE(color(), light);
    root()->setProperty("themeType", u"another"_s); // looks the set up again
    QCOMPARE(color(), colorSet(u"label-primary-text"_s).normal);
    QVERIFY(color() != light);
}

void tst_StateColor::colorSetOfItsOwn()
{
    QVERIFY(
        show("WText { textColorSetName: 'label-primary-text'; textColorSet: App.getColorSet('label-error-text') }"));
    QCOMPARE(color(), colorSet(u"label-error-text"_s).normal);
    root()->setProperty("textColorSetName", u"label-success-text"_s);
    QCOMPARE(color(), colorSet(u"label-error-text"_s).normal);
    root()->setProperty("textColorSet", QVariant::fromValue(WColorSet()));
    QCOMPARE(color(), QColor(Qt::transparent));
}

void tst_StateColor::colorOfItsOwn()
{
    QVERIFY(show("WButton { colour: '#102030'; property color seen: background.color }"));
    QCOMPARE(root()->property("seen").value<QColor>(), QColor(u"#102030"_s));
    root()->setEnabled(false);
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(root()->property("seen").value<QColor>(), QColor(u"#102030"_s));
}

void tst_StateColor::colorBelongsToThePropertyOfTheItem()
{
    QVERIFY(show("WLabel { color: '#102030' }"));
    application()->setThemeMode(u"dark"_s);
    root()->setEnabled(false);
    QCOMPARE(color(), QColor(u"#102030"_s));
}

void tst_StateColor::signalsOfAThemeChange()
{
    QVERIFY(show("WText { textColorSetName: 'label-primary-text' }"));
    QSignalSpy themeTypes(root(), SIGNAL(themeTypeChanged()));
    QSignalSpy colors(root(), SIGNAL(colorChanged()));
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(themeTypes.count(), 1);
    QCOMPARE(colors.count(), 1);
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(colors.count(), 1);
}

void tst_StateColor::destroyedDuringAThemeChange()
{
    QVERIFY(show("Item { Component { id: text; WText { textColorSetName: 'label-primary-text' } }\n"
                 "Component.onCompleted: { for (let i = 0; i < 5; ++i) text.createObject(this) } }"));
    const auto texts = root()->childItems();
    QCOMPARE(texts.size(), 5);
    connect(texts[2], SIGNAL(colorChanged()), this, SLOT(deleteAllButTheSender()));
    application()->setThemeMode(u"dark"_s);
    QCOMPARE(root()->childItems(), QList<QQuickItem *>{texts[2]});
    QCOMPARE(texts[2]->property("color").value<QColor>(), colorSet(u"label-primary-text"_s).normal);
}

void tst_StateColor::deleteAllButTheSender()
{
    const auto items = root()->childItems();
    for (QQuickItem *item : items) {
        if (item != sender())
            delete item;
    }
}

void tst_StateColor::checkBoxAndFieldExchangeTheirSets_data()
{
    QTest::addColumn<QByteArray>("qml");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("usual");
    QTest::addColumn<QString>("other");
    QTest::newRow("check box") << QByteArray(
        "WCheckBox { property bool other: checked; onOtherChanged: checked = other }")
                               << u"indicatorColorSetName"_s << u"checkbox-unchecked-background"_s
                               << u"checkbox-checked-background"_s;
    QTest::newRow("check box with a set of its own")
        << QByteArray("WCheckBox { property bool other: checked; onOtherChanged: checked = other;"
                      "indicatorColorSetName: 'panel-primary-background' }")
        << u"indicatorColorSetName"_s << u"panel-primary-background"_s << u"panel-primary-background"_s;
    QTest::newRow("field") << QByteArray("WTextField { property alias other: field.showErrorState; id: field }")
                           << u"borderColorSetName"_s << u"textinput-border"_s << u"textinput-error-border"_s;
    QTest::newRow("field with a set of its own")
        << QByteArray("WTextField { property alias other: field.showErrorState; id: field;"
                      "borderColorSetName: 'panel-primary-background' }")
        << u"borderColorSetName"_s << u"panel-primary-background"_s << u"panel-primary-background"_s;
}

void tst_StateColor::checkBoxAndFieldExchangeTheirSets()
{
    QFETCH(const QByteArray, qml);
    QFETCH(const QString, name);
    QFETCH(const QString, usual);
    QFETCH(const QString, other);
    QVERIFY(show(qml));
    for (const bool isOther : {false, true, false}) {
        root()->setProperty("other", isOther);
        QCOMPARE(root()->property(name.toLatin1()).toString(), isOther ? other : usual);
    }
}

LUMAKIT_TEST_MAIN(tst_StateColor)
#include "tst_state_color.moc"
