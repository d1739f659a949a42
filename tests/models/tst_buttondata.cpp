#include "MetaDescription.h"

#include <ButtonData.h>
#include <TestCase.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList Properties{u"visible"_s,
                             u"enabled"_s,
                             u"checked"_s,
                             u"hasArrow"_s,
                             u"backgroundColorSetName"_s,
                             u"borderColorSetName"_s,
                             u"iconName"_s,
                             u"iconColorSetName"_s,
                             u"text"_s,
                             u"textColorSetName"_s,
                             u"tooltip"_s,
                             u"accessibleName"_s,
                             u"moreButtonTooltip"_s,
                             u"textVector"_s};

QVariantList valuesOf(const ButtonData &data)
{
    QVariantList values;
    for (const QString &name : Properties)
        values << data.property(name.toLatin1());
    return values;
}

} // namespace

class tst_ButtonData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void roles();
    void emptyRecord();
    void fullRecord();
    void properties_data();
    void properties();
    void settersAndGetters();
    void twoChanges();
    void snapshot();
    void itemMetaObject();
    void itemValue();
};

void tst_ButtonData::metaObject()
{
    const QMetaObject &meta = ButtonData::staticMetaObject;
    QCOMPARE(meta.className(), "ButtonData");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"bool visible, updated"_s, u"bool enabled, updated"_s, u"bool checked, updated"_s,
                          u"bool hasArrow, updated"_s, u"QString backgroundColorSetName, updated"_s,
                          u"QString borderColorSetName, updated"_s, u"QString iconName, updated"_s,
                          u"QString iconColorSetName, updated"_s, u"QString text, updated"_s,
                          u"QString textColorSetName, updated"_s, u"QString tooltip, updated"_s,
                          u"QString accessibleName, updated"_s, u"QString moreButtonTooltip, updated"_s,
                          u"QStringList textVector, updated"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList{u"void updated()"_s});
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
    QCOMPARE(QMetaType::fromType<QStringList>(), QMetaType::fromType<QList<QString>>());
}

void tst_ButtonData::roles()
{
    QCOMPARE(MetaDescription::enums(ButtonData::staticMetaObject),
             QStringList{u"Role: Colour 257, Enabled 258, IconName 259, State 260, Text 261, Tooltip 262, Visible 263, "
                         "Last 263"_s});
    QCOMPARE(ButtonData::Last, ButtonData::Visible);
}

void tst_ButtonData::emptyRecord()
{
    QObject owner;
    const auto *data = new ButtonData(&owner);
    QCOMPARE(data->parent(), &owner);
    const QString none;
    QCOMPARE(
        valuesOf(*data),
        (QVariantList{false, false, false, true, none, none, none, none, none, none, none, none, none, QStringList()}));
    QCOMPARE(ButtonData().parent(), nullptr);
}

void tst_ButtonData::fullRecord()
{
    QObject owner;
    const auto *data = new ButtonData(true, true, true, u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s, &owner);
    QCOMPARE(data->parent(), &owner);
    QCOMPARE(valuesOf(*data),
             (QVariantList{true, true, true, true, u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s, u"g"_s, QString(),
                           QString(), QStringList{QString(), QString()}}));

    const ButtonData plain(true, false, false, {}, {}, {}, {}, {}, {}, {});
    QCOMPARE(plain.parent(), nullptr);
    QCOMPARE(valuesOf(plain).mid(0, 4), (QVariantList{true, false, false, true}));
    QCOMPARE(ButtonData(false, true, false, {}, {}, {}, {}, {}, {}, {}).enabled(), true);
    QCOMPARE(ButtonData(false, false, true, {}, {}, {}, {}, {}, {}, {}).checked(), true);
}

void tst_ButtonData::properties_data()
{
    QTest::addColumn<QVariant>("value");
    for (const QString &name : Properties) {
        QVariant value = u"new"_s;
        if (name == "textVector"_L1)
            value = QStringList{u"one"_s};
        else if (name == "hasArrow"_L1)
            value = false;
        else if (ButtonData().property(name.toLatin1()).typeId() == QMetaType::Bool)
            value = true;
        QTest::newRow(name.toLatin1()) << value;
    }
}

void tst_ButtonData::properties()
{
    QFETCH(QVariant, value);
    const char *name = QTest::currentDataTag();
    ButtonData data;
    QSignalSpy updated(&data, &ButtonData::updated);
    QVariantList expected = valuesOf(data);

    QVERIFY(data.setProperty(name, data.property(name)));
    QCOMPARE(updated.count(), 0);

    QVERIFY(data.setProperty(name, value));
    QCOMPARE(updated.count(), 1);
    expected[Properties.indexOf(QLatin1StringView(name))] = value;
    QCOMPARE(valuesOf(data), expected);

    QVERIFY(data.setProperty(name, value));
    QCOMPARE(updated.count(), 1);
}

template<typename Value, typename Argument>
void test(Value (ButtonData::*getter)() const, void (ButtonData::*setter)(Argument))
{
    Value value{};
    if constexpr (std::is_same_v<Value, bool>)
        value = !(ButtonData().*getter)();
    else
        value = Value(3, {});
    ButtonData data;
    QSignalSpy updated(&data, &ButtonData::updated);
    (data.*setter)(value);
    QCOMPARE((data.*getter)(), value);
    (data.*setter)(value);
    QCOMPARE(updated.count(), 1);
}

void tst_ButtonData::settersAndGetters()
{
    test(&ButtonData::visible, &ButtonData::setVisible);
    test(&ButtonData::enabled, &ButtonData::setEnabled);
    test(&ButtonData::checked, &ButtonData::setChecked);
    test(&ButtonData::hasArrow, &ButtonData::setHasArrow);
    test(&ButtonData::backgroundColorSetName, &ButtonData::setBackgroundColorSetName);
    test(&ButtonData::borderColorSetName, &ButtonData::setBorderColorSetName);
    test(&ButtonData::iconName, &ButtonData::setIconName);
    test(&ButtonData::iconColorSetName, &ButtonData::setIconColorSetName);
    test(&ButtonData::text, &ButtonData::setText);
    test(&ButtonData::textColorSetName, &ButtonData::setTextColorSetName);
    test(&ButtonData::tooltip, &ButtonData::setTooltip);
    test(&ButtonData::accessibleName, &ButtonData::setAccessibleName);
    test(&ButtonData::moreButtonTooltip, &ButtonData::setMoreButtonTooltip);
    test(&ButtonData::textVector, &ButtonData::setTextVector);
}

void tst_ButtonData::twoChanges()
{
    ButtonData data;
    QSignalSpy updated(&data, &ButtonData::updated);
    data.setText(u"text"_s);
    data.setVisible(true);
    QCOMPARE(updated.count(), 2);
    data.setTextVector({u"a"_s, u"b"_s});
    data.setTextVector({u"a"_s, u"B"_s});
    data.setTextVector({u"a"_s});
    QCOMPARE(updated.count(), 5);
}

void tst_ButtonData::snapshot()
{
    ButtonData data(true, false, true, u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"text"_s, u"f"_s, u"tooltip"_s);
    const ButtonDataItem item = data.item();
    QCOMPARE(item.visible, true);
    QCOMPARE(item.enabled, false);
    QCOMPARE(item.text, u"text"_s);
    QCOMPARE(item.tooltip, u"tooltip"_s);
    data.setText(u"later"_s);
    QCOMPARE(item.text, u"text"_s);
    data.setVisible(false);
    data.setEnabled(true);
    QVERIFY(data.item() == ButtonDataItem(false, true, u"later"_s, u"tooltip"_s));
}

void tst_ButtonData::itemMetaObject()
{
    const QMetaObject &meta = ButtonDataItem::staticMetaObject;
    QCOMPARE(meta.className(), "ButtonDataItem");
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"bool visible"_s, u"bool enabled"_s, u"QString text"_s, u"QString tooltip"_s}));
    QCOMPARE(QMetaType::fromType<ButtonDataItem>().metaObject(), &meta);
}

void tst_ButtonData::itemValue()
{
    const ButtonDataItem none;
    QVERIFY(none == ButtonDataItem(false, false, QString(), QString()));
    const ButtonDataItem item(true, true, u"text"_s, u"tooltip"_s);
    for (int i = 0; i < ButtonDataItem::staticMetaObject.propertyCount(); ++i) {
        const QMetaProperty property = ButtonDataItem::staticMetaObject.property(i);
        ButtonDataItem other = item;
        QVERIFY(property.writeOnGadget(&other, property.readOnGadget(&none)));
        QVERIFY(other != item);
        QCOMPARE(property.readOnGadget(&other), property.readOnGadget(&none));
        QVERIFY(property.writeOnGadget(&other, property.readOnGadget(&item)));
        QVERIFY(other == item);
    }
}

LUMAKIT_TEST_MAIN(tst_ButtonData)
#include "tst_buttondata.moc"
