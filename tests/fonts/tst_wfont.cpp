#include "../theme/MetaDescription.h"
#include "FontTable.h"

#include <TestCase.h>
#include <WFont.h>

#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

const QStringList WithFallbacks{u"Segoe UI"_s, u"Ebrima"_s, u"Myanmar Text"_s, u"Nirmala UI"_s};

WApplication *application()
{
    return qobject_cast<WApplication *>(QCoreApplication::instance());
}

/// round(factor * size), half away from zero, for a factor in hundredths; in whole numbers.
int scaled(int size, int hundredths)
{
    return (2 * size * hundredths + 100) / 200;
}

} // namespace

class tst_WFont : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaultConstructed();
    void fromFont();
    void fromFamily_data();
    void fromFamily();
    void fromFamilies_data();
    void fromFamilies();
    void copies();
    void tokens_data();
    void tokens();
    void factors_data();
    void factors();
    void roundingOfHalves_data();
    void roundingOfHalves();
    void codeBlocks();
    void unknownToken_data();
    void unknownToken();

protected:
    void tidy() override { application()->setFontScaleFactor(1.0F); }
};

void tst_WFont::metaObject()
{
    const QMetaObject &meta = WFont::staticMetaObject;
    QCOMPARE(meta.propertyCount(), 0);
    QCOMPARE(meta.methodCount(), 0);
    QStringList values;
    for (const TokenRow &row : TokenRows)
        values << QString::fromLatin1(row.name) + u' ' + QString::number(row.token);
    QCOMPARE(MetaDescription::enums(meta), QStringList{u"Token: "_s + values.join(u", "_s)});
    QVERIFY((std::is_base_of_v<QFont, WFont>));
    QVERIFY((std::is_convertible_v<WFont, QFont>));
    QCOMPARE(sizeof(WFont), sizeof(QFont)); // it may be sliced
}

void tst_WFont::defaultConstructed()
{
    QCOMPARE(QFont(WFont()), QFont());
}

void tst_WFont::fromFont()
{
    QFont font(u"Courier New"_s, 17, QFont::Bold, true);
    font.setUnderline(true);
    font.setFamilies({u"A"_s, u"B"_s});
    QCOMPARE(QFont(WFont(font)), font);
    QCOMPARE(WFont(font).families(), (QStringList{u"A"_s, u"B"_s}));
}

void tst_WFont::fromFamily_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<int>("weight");
    QTest::newRow("all given") << u"Ebrima"_s << 11 << 700;
    QTest::newRow("nothing given") << u"Ebrima"_s << -1 << -1;
    QTest::newRow("size only") << u"Ebrima"_s << 9 << -1;
    QTest::newRow("several families") << u"A,B"_s << 9 << 600;
    QTest::newRow("no family") << QString() << 9 << 600;
}

void tst_WFont::fromFamily()
{
    QFETCH(QString, family);
    QFETCH(int, pointSize);
    QFETCH(int, weight);
    const WFont font(family, pointSize, weight);
    QCOMPARE(QFont(font), QFont(family, pointSize, weight, false));
    QVERIFY(!font.italic());
    if (pointSize > 0)
        QCOMPARE(font.pointSize(), pointSize);
    if (weight > 0)
        QCOMPARE(font.weight(), weight);
}

void tst_WFont::fromFamilies_data()
{
    QTest::addColumn<QStringList>("families");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<int>("weight");
    const QStringList families{u"Segoe UI"_s, u"Ebrima"_s};
    QTest::newRow("all given") << families << 11 << 700;
    QTest::newRow("size unset") << families << -1 << 700;
    QTest::newRow("size 0 is unset") << families << 0 << 700;
    QTest::newRow("smallest size is unset") << families << std::numeric_limits<int>::min() << 700;
    QTest::newRow("size 1") << families << 1 << 700;
    QTest::newRow("weight unset") << families << 11 << -1;
    QTest::newRow("smallest weight is unset") << families << 11 << std::numeric_limits<int>::min();
    QTest::newRow("weight 1") << families << 11 << 1;
    QTest::newRow("weight 1000") << families << 11 << 1000;
    QTest::newRow("nothing given") << families << -1 << -1;
    QTest::newRow("one family") << QStringList{u"Consolas"_s} << 11 << 400;
    QTest::newRow("no family") << QStringList() << 11 << 400;
}

void tst_WFont::fromFamilies()
{
    QFETCH(QStringList, families);
    QFETCH(int, pointSize);
    QFETCH(int, weight);
    const WFont font(families, pointSize, weight);
    const QFont plain;
    QCOMPARE(font.families(), families);
    QCOMPARE(font.pointSize(), pointSize > 0 ? pointSize : plain.pointSize());
    QCOMPARE(font.pixelSize(), pointSize > 0 ? -1 : plain.pixelSize());
    QCOMPARE(font.weight(), weight >= 0 ? weight : plain.weight());
    QVERIFY(!font.italic());
    QVERIFY(!font.underline());
}

void tst_WFont::copies()
{
    const WFont font(WFont::HyperlinkPrimary, true);
    const WFont copy(font);
    QCOMPARE(QFont(copy), QFont(font));
    WFont assigned;
    assigned = font;
    QCOMPARE(QFont(assigned), QFont(font));
    assigned.setPixelSize(99);
    QCOMPARE(font.pixelSize(), 16);
}

void tst_WFont::tokens_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("withFallbackFamilies");
    for (const TokenRow &row : TokenRows) {
        QTest::addRow("%s", row.name) << row.token << false;
        QTest::addRow("%s, fallback families", row.name) << row.token << true;
    }
}

void tst_WFont::tokens()
{
    QFETCH(int, row);
    QFETCH(bool, withFallbackFamilies);
    const TokenRow &expected = TokenRows[size_t(row)];
    const WFont font(token(row), withFallbackFamilies);
    QCOMPARE(font.pixelSize(), expected.pixelSize);
    QCOMPARE(font.weight(), expected.weight);
    QCOMPARE(font.underline(), expected.underline);
    QVERIFY(!font.italic());
    QVERIFY(!font.strikeOut());
    if (withFallbackFamilies) {
        QCOMPARE(font.families(), WithFallbacks);
    } else {
        QCOMPARE(font.families(), QStringList{token(row) == WFont::CodeBlocks ? u"Consolas"_s : u"Segoe UI"_s});
        // Unless it says otherwise, a font without a family of its own follows the application's.
        QCOMPARE(bool(font.resolveMask() & QFont::FamiliesResolved), token(row) == WFont::CodeBlocks);
    }
}

void tst_WFont::factors_data()
{
    QTest::addColumn<int>("hundredths");
    for (const int hundredths : {50, 75, 100, 110, 125, 130, 150})
        QTest::addRow("%d %%", hundredths) << hundredths;
}

void tst_WFont::factors()
{
    QFETCH(int, hundredths);
    application()->setFontScaleFactor(float(hundredths) / 100.0F);
    for (const TokenRow &row : TokenRows) {
        for (const bool withFallbackFamilies : {false, true}) {
            const WFont font(token(row.token), withFallbackFamilies);
            QCOMPARE(font.pixelSize(), scaled(row.pixelSize, hundredths));
            QCOMPARE(font.weight(), row.weight);
            QCOMPARE(font.underline(), row.underline);
        }
    }
}

void tst_WFont::roundingOfHalves_data()
{
    QTest::addColumn<int>("tokenValue");
    QTest::addColumn<float>("factor");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("14 x 1.25 = 17.5") << int(WFont::BodySecondary) << 1.25F << 18;
    QTest::newRow("14 x 0.75 = 10.5") << int(WFont::BodySecondary) << 0.75F << 11;
    QTest::newRow("26 x 1.25 = 32.5") << int(WFont::BannerPrimary) << 1.25F << 33;
    QTest::newRow("26 x 0.75 = 19.5") << int(WFont::BannerPrimary) << 0.75F << 20;
    QTest::newRow("12 x 0.875 = 10.5") << int(WFont::BodyTertiary) << 0.875F << 11;
    QTest::newRow("20 x 1.125 = 22.5") << int(WFont::Title) << 1.125F << 23;
    QTest::newRow("just below 17.5") << int(WFont::BodySecondary) << 1.2499F << 17;
    // 40 x 0.8124999 is 32.499996 in single precision.
    QTest::newRow("just below 32.5") << int(WFont::Display) << 0.8124999F << 32;
    // As a float 1.0875 is 1.08749998, and the product 43.499999; rounded to single precision it is 43.5.
    QTest::newRow("a half in single precision only") << int(WFont::Display) << 1.0875F << 44;
    QTest::newRow("title at 1.5") << int(WFont::Title) << 1.5F << 30;
    QTest::newRow("title at 0.5") << int(WFont::Title) << 0.5F << 10;
}

void tst_WFont::roundingOfHalves()
{
    QFETCH(int, tokenValue);
    QFETCH(float, factor);
    QFETCH(int, pixelSize);
    application()->setFontScaleFactor(factor);
    QCOMPARE(WFont(token(tokenValue), false).pixelSize(), pixelSize);
    QCOMPARE(WFont(token(tokenValue), true).pixelSize(), pixelSize);
}

void tst_WFont::codeBlocks()
{
    QCOMPARE(WFont(WFont::CodeBlocks, false).family(), u"Consolas"_s);
    QCOMPARE(WFont(WFont::CodeBlocks, true).family(), u"Segoe UI"_s);
    QVERIFY(!WFont(WFont::CodeBlocks, true).families().contains(u"Consolas"_s));
}

void tst_WFont::unknownToken_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<float>("factor");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("-1") << -1 << 1.0F << 16;
    QTest::newRow("21") << 21 << 1.0F << 16;
    QTest::newRow("256") << 256 << 1.0F << 16;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 1.0F << 16;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << 1.0F << 16;
    QTest::newRow("21 at 1.5") << 21 << 1.5F << 24;
}

void tst_WFont::unknownToken()
{
    QFETCH(int, value);
    QFETCH(float, factor);
    QFETCH(int, pixelSize);
    application()->setFontScaleFactor(factor);
    for (const bool withFallbackFamilies : {false, true}) {
        LogRecorder log;
        const WFont font(token(value), withFallbackFamilies);
        QCOMPARE(log.lines(),
                 (QList<LogRecorder::Line>{{QtWarningMsg, u"Invalid font token! This should never happen!"_s}}));
        QCOMPARE(font.pixelSize(), pixelSize);
        QCOMPARE(font.weight(), 400);
        QVERIFY(!font.underline());
        QCOMPARE(font.families(), withFallbackFamilies ? WithFallbacks : QStringList{u"Segoe UI"_s});
    }
}

LUMAKIT_TEST_MAIN(tst_WFont)
#include "tst_wfont.moc"
