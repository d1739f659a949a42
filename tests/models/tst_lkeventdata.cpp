#include "MetaDescription.h"
#include "SignalLog.h"

#include <LKEventData.h>
#include <TestCase.h>

using namespace Qt::StringLiterals;

class tst_LKEventData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void flags_data();
    void flags();
    void parent();
};

void tst_LKEventData::metaObject()
{
    const QMetaObject &meta = LKEventData::staticMetaObject;
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"bool enabled, enabledChanged"_s, u"bool hovered, hoveredChanged"_s,
                          u"bool activeFocus, activeFocusChanged"_s, u"bool checked, checkedChanged"_s,
                          u"bool pressed, pressedChanged"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta),
             (QStringList{u"void enabledChanged()"_s, u"void hoveredChanged()"_s, u"void activeFocusChanged()"_s,
                          u"void checkedChanged()"_s, u"void pressedChanged()"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    QCOMPARE(MetaDescription::invokables(meta), QStringList());
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QVERIFY((std::is_base_of_v<WObject, LKEventData>));
}

void tst_LKEventData::defaults()
{
    const LKEventData data;
    QVERIFY(!data.enabled());
    QVERIFY(!data.hovered());
    QVERIFY(!data.activeFocus());
    QVERIFY(!data.checked());
    QVERIFY(!data.pressed());
}

using Getter = bool (LKEventData::*)() const;
using Setter = void (LKEventData::*)(bool);

void tst_LKEventData::flags_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<Setter>("setter");
    QTest::newRow("enabled") << &LKEventData::enabled << &LKEventData::setEnabled;
    QTest::newRow("hovered") << &LKEventData::hovered << &LKEventData::setHovered;
    QTest::newRow("activeFocus") << &LKEventData::activeFocus << &LKEventData::setActiveFocus;
    QTest::newRow("checked") << &LKEventData::checked << &LKEventData::setChecked;
    QTest::newRow("pressed") << &LKEventData::pressed << &LKEventData::setPressed;
}

void tst_LKEventData::flags()
{
    QFETCH(Getter, getter);
    QFETCH(Setter, setter);
    const char *name = QTest::currentDataTag();
    const QStringList changed{QLatin1StringView(name) + "Changed"_L1};
    const QList<QByteArray> names{"enabled", "hovered", "activeFocus", "checked", "pressed"};
    LKEventData data;
    SignalLog log(&data);

    (data.*setter)(false);
    QCOMPARE(log.take(), QStringList());
    (data.*setter)(true);
    QCOMPARE(log.take(), changed);
    QVERIFY((data.*getter)());
    for (const QByteArray &other : names)
        QCOMPARE(data.property(other).toBool(), other == name);
    (data.*setter)(true);
    QCOMPARE(log.take(), QStringList());

    QVERIFY(data.setProperty(name, false));
    QCOMPARE(log.take(), changed);
    QVERIFY(!(data.*getter)());
}

void tst_LKEventData::parent()
{
    QObject owner;
    const QPointer<LKEventData> data = new LKEventData(&owner);
    QCOMPARE(data->parent(), &owner);
}

LUMAKIT_TEST_MAIN(tst_LKEventData)
#include "tst_lkeventdata.moc"
