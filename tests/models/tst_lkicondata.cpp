#include "MetaDescription.h"
#include "SignalLog.h"

#include <LKEventData.h>
#include <LKIconData.h>
#include <TestCase.h>

using namespace Qt::StringLiterals;

class tst_LKIconData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void icon_data();
    void icon();
    void signalOrder();
    void eventDataDestroyed();
};

void tst_LKIconData::metaObject()
{
    const QMetaObject &meta = LKIconData::staticMetaObject;
    QCOMPARE(MetaDescription::properties(meta), QStringList{u"QString icon, read-only, iconChanged"_s});
    QCOMPARE(MetaDescription::signalsOf(meta), (QStringList{u"void iconChanged()"_s, u"void eventDataChanged()"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList{u"void onEventDataChanged()"_s});
    QVERIFY((std::is_base_of_v<WObject, LKIconData>));
}

void tst_LKIconData::defaults()
{
    const LKIconData data;
    QCOMPARE(data.icon(), QString());
    QCOMPARE(data.eventData(), nullptr);
}

void tst_LKIconData::icon_data()
{
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<QString>("icon");
    QTest::newRow("nothing, at rest") << u""_s << u""_s << false << u""_s;
    QTest::newRow("nothing, checked") << u""_s << u""_s << true << u""_s;
    QTest::newRow("one, at rest") << u"a"_s << u""_s << false << u"a"_s;
    QTest::newRow("one, checked") << u"a"_s << u""_s << true << u"a"_s;
    QTest::newRow("two, at rest") << u"a"_s << u"b"_s << false << u"a"_s;
    QTest::newRow("two, checked") << u"a"_s << u"b"_s << true << u"b"_s;
    QTest::newRow("only the second, at rest") << u""_s << u"b"_s << false << u""_s;
    QTest::newRow("only the second, checked") << u""_s << u"b"_s << true << u"b"_s;
}

void tst_LKIconData::icon()
{
    QFETCH(QString, rest);
    QFETCH(QString, checked);
    QFETCH(bool, isChecked);
    QFETCH(QString, icon);
    LKEventData state;
    state.setChecked(isChecked);
    LKIconData data;
    data.setIcons(rest, checked);
    QCOMPARE(data.icon(), rest); // without event data nothing is checked
    data.setEventData(&state);
    QCOMPARE(data.icon(), icon);

    LKIconData otherOrder;
    otherOrder.setEventData(&state);
    otherOrder.setIcons(rest, checked);
    QCOMPARE(otherOrder.icon(), icon);
}

void tst_LKIconData::signalOrder()
{
    LKEventData state;
    state.setChecked(true);
    LKIconData data;
    SignalLog log(&data);
    data.setIcons(u"a"_s, u"b"_s);
    QCOMPARE(log.take(), QStringList{u"iconChanged"_s});
    data.setIcons(u"a"_s, u"b"_s);
    QCOMPARE(log.take(), QStringList());
    data.setEventData(&state);
    QCOMPARE(log.take(), (QStringList{u"eventDataChanged"_s, u"iconChanged"_s}));
    data.setEventData(&state);
    QCOMPARE(log.take(), QStringList());
    data.setIcons(u"c"_s, u"b"_s);
    QCOMPARE(log.take(), QStringList());
    state.setChecked(false);
    data.onEventDataChanged();
    QCOMPARE(log.take(), QStringList{u"iconChanged"_s});
    QCOMPARE(data.icon(), u"c"_s);
    data.setIcons(u"d"_s);
    QCOMPARE(log.take(), QStringList{u"iconChanged"_s});
    data.setEventData(nullptr);
    QCOMPARE(log.take(), QStringList{u"eventDataChanged"_s});
}

void tst_LKIconData::eventDataDestroyed()
{
    auto state = std::make_unique<LKEventData>();
    state->setChecked(true);
    LKIconData data;
    data.setIcons(u"a"_s, u"b"_s);
    data.setEventData(state.get());
    state.reset();
    QCOMPARE(data.eventData(), nullptr);
    data.onEventDataChanged();
    QCOMPARE(data.icon(), u"a"_s);
}

LUMAKIT_TEST_MAIN(tst_LKIconData)
#include "tst_lkicondata.moc"
