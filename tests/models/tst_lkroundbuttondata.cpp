#include "ButtonTheme.h"
#include "MetaDescription.h"
#include "SignalLog.h"

#include <LKColorData.h>
#include <LKRoundButtonData.h>
#include <TestCase.h>

#include <limits>

using namespace Qt::StringLiterals;

class tst_LKRoundButtonData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void size_data();
    void size();
    void sizeSignals();
    void noSize_data();
    void noSize();
    void width();
    void sizeBringsBorder();
    void refresh();

protected:
    void prepare() override { m_theme.emplace(); }
    void tidy() override { m_theme.reset(); }

private:
    std::optional<ButtonTheme> m_theme;
};

void tst_LKRoundButtonData::metaObject()
{
    const QMetaObject &meta = LKRoundButtonData::staticMetaObject;
    QCOMPARE(MetaDescription::properties(meta), QStringList{u"int width, widthChanged"_s});
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList{u"void widthChanged()"_s});
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList{u"void refresh()"_s});
    QCOMPARE(meta.superClass(), &ILKButtonData::staticMetaObject);
}

void tst_LKRoundButtonData::defaults()
{
    const LKRoundButtonData data;
    QCOMPARE(data.width(), 0);
    QCOMPARE(data.height(), 0);
    QCOMPARE(data.radius(), 0);
    QCOMPARE(data.iconSize(), QSize(0, 0));
    QCOMPARE(data.border(), false);
}

void tst_LKRoundButtonData::size_data()
{
    QTest::addColumn<LKButtonSize::Size>("size");
    QTest::addColumn<int>("edge");
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("radius");
    QTest::newRow("XL") << LKButtonSize::XL << 64 << 32 << 32;
    QTest::newRow("L") << LKButtonSize::L << 52 << 28 << 26;
    QTest::newRow("M") << LKButtonSize::M << 40 << 20 << 20;
    QTest::newRow("S") << LKButtonSize::S << 32 << 16 << 16;
    QTest::newRow("XS") << LKButtonSize::XS << 28 << 16 << 14;
    QTest::newRow("XXS") << LKButtonSize::XXS << 24 << 13 << 12;
    QTest::newRow("XXXS") << LKButtonSize::XXXS << 16 << 8 << 8;
}

void tst_LKRoundButtonData::size()
{
    QFETCH(LKButtonSize::Size, size);
    QFETCH(int, edge);
    QFETCH(int, icon);
    QFETCH(int, radius);
    LKRoundButtonData data;
    data.setSize(size);
    QCOMPARE(data.size(), size);
    QCOMPARE(data.width(), edge);
    QCOMPARE(data.height(), edge);
    QCOMPARE(data.iconSize(), QSize(icon, icon));
    QCOMPARE(data.radius(), radius);
    QCOMPARE(data.border(), true);
}

void tst_LKRoundButtonData::sizeSignals()
{
    LKRoundButtonData data;
    SignalLog log(&data);
    data.setSize(LKButtonSize::XL);
    QStringList names = log.take();
    QCOMPARE(names.first(), u"sizeChanged"_s);
    QCOMPARE(names.last(), u"buttonDataChanged"_s);
    names.sort();
    QCOMPARE(names,
             (QStringList{u"borderChanged"_s, u"buttonDataChanged"_s, u"heightChanged"_s, u"iconSizeChanged"_s,
                          u"radiusChanged"_s, u"sizeChanged"_s, u"widthChanged"_s}));
    data.setSize(LKButtonSize::XL);
    QCOMPARE(log.take(), QStringList());
}

void tst_LKRoundButtonData::noSize_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("None") << int(LKButtonSize::None);
    QTest::newRow("-1") << -1;
    QTest::newRow("8") << 8;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_LKRoundButtonData::noSize()
{
    QFETCH(int, value);
    LKRoundButtonData data;
    data.setSize(LKButtonSize::XL);
    data.setHeight(33);
    data.setBorder(false);
    data.setSize(LKButtonSize::Size(value));
    QCOMPARE(data.width(), 64);
    QCOMPARE(data.height(), 33);
    QCOMPARE(data.iconSize(), QSize(0, 0));
    QCOMPARE(data.radius(), 16);
    QCOMPARE(data.border(), true);
}

void tst_LKRoundButtonData::width()
{
    LKRoundButtonData data;
    SignalLog log(&data);
    data.setWidth(5);
    data.setWidth(5);
    QCOMPARE(log.take(), QStringList{u"widthChanged"_s});
    QCOMPARE(data.width(), 5);
}

// The later of style and size decides on the border; seen only where the style gives it a colour.
void tst_LKRoundButtonData::sizeBringsBorder()
{
    LKRoundButtonData data;
    data.setStyle(LKButtonStyle::Ghost);
    QCOMPARE(data.border(), false);
    data.setSize(LKButtonSize::M);
    QCOMPARE(data.border(), true);
    QCOMPARE(data.borderColorData()->token(), QString());
    data.setStyle(LKButtonStyle::Primary);
    QCOMPARE(data.border(), false);
    data.setSize(LKButtonSize::None);
    QCOMPARE(data.border(), true);
}

void tst_LKRoundButtonData::refresh()
{
    LKRoundButtonData data;
    data.setStyle(LKButtonStyle::Secondary);
    data.setSize(LKButtonSize::XXS);
    SignalLog log(&data);
    data.refresh();
    QCOMPARE(log.take(), QStringList{u"buttonDataChanged"_s});

    data.setWidth(1);
    data.setHeight(2);
    data.setIconSize({3, 4});
    data.setRadius(5);
    data.setBorder(false);
    data.backgroundColorData()->setToken(QString());
    log.take();
    data.refresh();
    QCOMPARE(data.width(), 24);
    QCOMPARE(data.height(), 24);
    QCOMPARE(data.iconSize(), QSize(13, 13));
    QCOMPARE(data.radius(), 12);
    QCOMPARE(data.border(), true);
    QCOMPARE(data.backgroundColorData()->token(), u"button-secondary-background"_s);
    const QStringList names = log.take();
    QCOMPARE(names.count(u"buttonDataChanged"_s), 1);
    QCOMPARE(names.last(), u"buttonDataChanged"_s);
}

LUMAKIT_TEST_MAIN(tst_LKRoundButtonData)
#include "tst_lkroundbuttondata.moc"
