#include "ButtonTheme.h"
#include "MetaDescription.h"
#include "SignalLog.h"

#include <LKColorData.h>
#include <LKEventData.h>
#include <LKPillButtonData.h>
#include <TestCase.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct Metrics
{
    WFont font;
    int height = 0;
    int leftPadding = 0;
    int rightPadding = 0;
    int spacing = 0;
    QSize iconSize{0, 0};
    int radius = 0;
    bool operator==(const Metrics &) const = default;
};

Metrics metricsOf(const LKPillButtonData &data)
{
    return {data.font(),    data.height(),   data.leftPadding(), data.rightPadding(),
            data.spacing(), data.iconSize(), data.radius()};
}

} // namespace

class tst_LKPillButtonData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void size_data();
    void size();
    void sizeSignals();
    void mediumAndLargeAreTheSame();
    void sizeNone();
    void sizeUnknown_data();
    void sizeUnknown();
    void values();
    void fontScaleFactor();
    void refresh();
    void refreshWithoutSize();

protected:
    void prepare() override { m_theme.emplace(); }
    void tidy() override
    {
        ButtonTheme::application()->setFontScaleFactor(1.0F);
        m_theme.reset();
    }

private:
    std::optional<ButtonTheme> m_theme;
};

void tst_LKPillButtonData::metaObject()
{
    const QMetaObject &meta = LKPillButtonData::staticMetaObject;
    QCOMPARE(MetaDescription::properties(meta),
             (QStringList{u"QFont font, fontChanged"_s, u"int leftPadding, leftPaddingChanged"_s,
                          u"int rightPadding, rightPaddingChanged"_s, u"int spacing, spacingChanged"_s}));
    QCOMPARE(MetaDescription::signalsOf(meta),
             (QStringList{u"void fontChanged()"_s, u"void leftPaddingChanged()"_s, u"void rightPaddingChanged()"_s,
                          u"void spacingChanged()"_s}));
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList{u"void refresh()"_s});
    QCOMPARE(meta.superClass(), &ILKButtonData::staticMetaObject);
    QVERIFY((std::is_same_v<decltype(LKPillButtonData().font()), WFont>));
}

void tst_LKPillButtonData::defaults()
{
    const LKPillButtonData data;
    QCOMPARE(metricsOf(data), Metrics());
    QCOMPARE(data.font(), WFont());
}

void tst_LKPillButtonData::size_data()
{
    QTest::addColumn<LKButtonSize::Size>("size");
    QTest::addColumn<WFont::Token>("font");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("padding");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("radius");
    QTest::newRow("XL") << LKButtonSize::XL << WFont::SubheaderPrimary << 40 << 16 << 6 << 20 << 20;
    QTest::newRow("L") << LKButtonSize::L << WFont::SubheaderPrimary << 32 << 12 << 6 << 16 << 16;
    QTest::newRow("M") << LKButtonSize::M << WFont::SubheaderPrimary << 32 << 12 << 6 << 16 << 16;
    QTest::newRow("S") << LKButtonSize::S << WFont::SubheaderSecondary << 28 << 10 << 4 << 16 << 14;
    QTest::newRow("XS") << LKButtonSize::XS << WFont::BodyTertiary << 24 << 8 << 4 << 16 << 12;
    QTest::newRow("XXS") << LKButtonSize::XXS << WFont::BodyTertiary << 24 << 8 << 4 << 16 << 12;
    QTest::newRow("XXXS") << LKButtonSize::XXXS << WFont::BodyTertiary << 24 << 8 << 4 << 16 << 12;
}

void tst_LKPillButtonData::size()
{
    QFETCH(LKButtonSize::Size, size);
    QFETCH(WFont::Token, font);
    QFETCH(int, height);
    QFETCH(int, padding);
    QFETCH(int, spacing);
    QFETCH(int, icon);
    QFETCH(int, radius);
    LKPillButtonData data;
    data.setSize(size);
    QCOMPARE(data.size(), size);
    QCOMPARE(data.font(), WFont(font, false));
    QCOMPARE(data.height(), height);
    QCOMPARE(data.leftPadding(), padding);
    QCOMPARE(data.rightPadding(), padding);
    QCOMPARE(data.spacing(), spacing);
    QCOMPARE(data.iconSize(), QSize(icon, icon));
    QCOMPARE(data.radius(), radius);
    QCOMPARE(data.border(), false);
}

void tst_LKPillButtonData::sizeSignals()
{
    LKPillButtonData data;
    SignalLog log(&data);
    data.setSize(LKButtonSize::XL);
    QStringList names = log.take();
    QCOMPARE(names.first(), u"sizeChanged"_s);
    QCOMPARE(names.last(), u"buttonDataChanged"_s);
    QVERIFY(names.indexOf(u"heightChanged"_s) < names.indexOf(u"radiusChanged"_s));
    names.sort();
    QCOMPARE(names,
             (QStringList{u"buttonDataChanged"_s, u"fontChanged"_s, u"heightChanged"_s, u"iconSizeChanged"_s,
                          u"leftPaddingChanged"_s, u"radiusChanged"_s, u"rightPaddingChanged"_s, u"sizeChanged"_s,
                          u"spacingChanged"_s}));
    data.setSize(LKButtonSize::XL);
    QCOMPARE(log.take(), QStringList());

    data.setSize(LKButtonSize::XS);
    log.take();
    data.setSize(LKButtonSize::XXXS); // the same metrics
    QCOMPARE(log.take(), (QStringList{u"sizeChanged"_s, u"buttonDataChanged"_s}));
}

void tst_LKPillButtonData::mediumAndLargeAreTheSame()
{
    LKPillButtonData large;
    large.setSize(LKButtonSize::L);
    LKPillButtonData medium;
    medium.setSize(LKButtonSize::M);
    QVERIFY(metricsOf(large) == metricsOf(medium));
}

void tst_LKPillButtonData::sizeNone()
{
    LKPillButtonData data;
    data.setSize(LKButtonSize::XL);
    data.setHeight(100);
    data.setRadius(3);
    const Metrics before = metricsOf(data);
    SignalLog log(&data);
    data.setSize(LKButtonSize::None);
    QVERIFY(metricsOf(data) == before);
    QCOMPARE(log.take(), (QStringList{u"sizeChanged"_s, u"buttonDataChanged"_s}));
}

void tst_LKPillButtonData::sizeUnknown_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("-1") << -1;
    QTest::newRow("8") << 8;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_LKPillButtonData::sizeUnknown()
{
    QFETCH(int, value);
    LKPillButtonData data;
    data.setSize(LKButtonSize::XL);
    data.setHeight(101);
    Metrics expected = metricsOf(data);
    expected.radius = 50;
    data.setSize(LKButtonSize::Size(value));
    QVERIFY(metricsOf(data) == expected);
}

void tst_LKPillButtonData::values()
{
    LKPillButtonData data;
    SignalLog log(&data);
    const WFont font(WFont::Title, false);
    for (int i = 0; i < 2; ++i) { // the second time nothing differs
        data.setFont(font);
        data.setLeftPadding(1);
        data.setRightPadding(2);
        data.setSpacing(3);
        QCOMPARE(log.take(),
                 i == 0 ? (QStringList{u"fontChanged"_s, u"leftPaddingChanged"_s, u"rightPaddingChanged"_s,
                                       u"spacingChanged"_s})
                        : QStringList());
    }
    QCOMPARE(data.font(), font);
    QCOMPARE(data.leftPadding(), 1);
    QCOMPARE(data.rightPadding(), 2);
    QCOMPARE(data.spacing(), 3);
    QCOMPARE(data.property("font").value<QFont>(), QFont(font));
    QVERIFY(data.setProperty("font", QFont(WFont(WFont::Display, false))));
    QCOMPARE(data.font(), WFont(WFont::Display, false));
    QCOMPARE(data.property("font").value<WFont>(), WFont(WFont::Display, false));
    QVERIFY(data.setProperty("font", QVariant::fromValue(font)));
    QCOMPARE(data.font(), font);
}

void tst_LKPillButtonData::fontScaleFactor()
{
    LKPillButtonData data;
    data.setSize(LKButtonSize::XL);
    QCOMPARE(data.font().pixelSize(), 16);
    SignalLog log(&data);

    ButtonTheme::application()->setFontScaleFactor(1.5F);
    QCOMPARE(data.font().pixelSize(), 24);
    QCOMPARE(data.font(), WFont(WFont::SubheaderPrimary, false));
    QCOMPARE(data.height(), 40);
    QCOMPARE(log.take(), (QStringList{u"fontChanged"_s, u"buttonDataChanged"_s}));

    LKPillButtonData later;
    later.setSize(LKButtonSize::S);
    QCOMPARE(later.font().pixelSize(), 21);

    auto gone = std::make_unique<LKPillButtonData>();
    gone->setSize(LKButtonSize::S);
    gone.reset();
    ButtonTheme::application()->setFontScaleFactor(1.0F);
    QCOMPARE(data.font().pixelSize(), 16);
    QCOMPARE(later.font().pixelSize(), 14);
}

void tst_LKPillButtonData::refresh()
{
    LKEventData state;
    state.setEnabled(true);
    LKPillButtonData data;
    data.setEventData(&state);
    data.setStyle(LKButtonStyle::Secondary);
    data.setSize(LKButtonSize::S);
    const Metrics before = metricsOf(data);
    SignalLog log(&data);
    data.refresh();
    QCOMPARE(log.take(), QStringList{u"buttonDataChanged"_s});

    data.setHeight(1);
    data.setRadius(2);
    data.setLeftPadding(3);
    data.setRightPadding(4);
    data.setSpacing(5);
    data.setIconSize({6, 7});
    data.setFont(WFont(WFont::Display, false));
    data.setBorder(false);
    data.textColorData()->setToken(u"button-primary-text"_s);
    ButtonTheme::use("dark");
    data.refresh();
    QVERIFY(metricsOf(data) == before);
    QCOMPARE(data.border(), true);
    QCOMPARE(data.textColorData()->token(), u"button-secondary-text"_s);
    QCOMPARE(data.textColorData()->color(), ButtonTheme::color("button-secondary-text", "normal", "dark"));
    QCOMPARE(data.backgroundColorData()->color(), ButtonTheme::color("button-secondary-background", "normal", "dark"));
}

void tst_LKPillButtonData::refreshWithoutSize()
{
    LKPillButtonData data;
    data.setHeight(50);
    data.setBorder(true);
    const Metrics before = metricsOf(data);
    data.refresh();
    QVERIFY(metricsOf(data) == before);
    QCOMPARE(data.border(), true);
}

LUMAKIT_TEST_MAIN(tst_LKPillButtonData)
#include "tst_lkpillbuttondata.moc"
