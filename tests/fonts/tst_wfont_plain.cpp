#include "FontTable.h"

#include <FontUtils.h>
#include <TestCase.h>
#include <WFont.h>
#include <WFontManager.h>
#include <WScaledFonts.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList Families{u"Segoe UI"_s, u"Segoe UI Emoji"_s};
const QStringList WithFallbacks{u"Segoe UI"_s, u"Segoe UI Emoji"_s, u"Ebrima"_s, u"Myanmar Text"_s, u"Nirmala UI"_s};

} // namespace

/// Without an application object of the library: no scale factor, other families, no manager.
class tst_WFontPlain : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tokens_data();
    void tokens();
    void unknownToken();
    void metrics();
    void noManager();
    void scaledFonts();
};

void tst_WFontPlain::tokens_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("withFallbackFamilies");
    for (const TokenRow &row : TokenRows) {
        QTest::addRow("%s", row.name) << row.token << false;
        QTest::addRow("%s, fallback families", row.name) << row.token << true;
    }
}

void tst_WFontPlain::tokens()
{
    QFETCH(int, row);
    QFETCH(bool, withFallbackFamilies);
    const TokenRow &expected = TokenRows[size_t(row)];
    const WFont font(token(row), withFallbackFamilies);
    QCOMPARE(font.pixelSize(), expected.pixelSize);
    QCOMPARE(font.weight(), expected.weight);
    QCOMPARE(font.underline(), expected.underline);
    QCOMPARE(font.families(), withFallbackFamilies ? WithFallbacks : Families); // code blocks too
}

void tst_WFontPlain::unknownToken()
{
    for (const int value : {-1, 21}) {
        LogRecorder log;
        const WFont font(token(value), true);
        QCOMPARE(log.lines(),
                 (QList<LogRecorder::Line>{{QtWarningMsg, u"Invalid font token! This should never happen!"_s}}));
        QCOMPARE(font.pixelSize(), 16);
        QCOMPARE(font.weight(), 400);
        QVERIFY(!font.underline());
        QCOMPARE(font.families(), WithFallbacks);
    }
}

void tst_WFontPlain::metrics()
{
    for (const TokenRow &row : TokenRows) {
        const QFontMetrics metrics = FontUtils::fontMetrics(token(row.token));
        const QFontMetrics expected(WFont(token(row.token), false));
        QCOMPARE(metrics.height(), expected.height());
        QCOMPARE(metrics.horizontalAdvance(u"Example"_s), expected.horizontalAdvance(u"Example"_s));
    }
}

void tst_WFontPlain::noManager()
{
    LogRecorder log;
    QCOMPARE(WFontManager::get(), nullptr);
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, u"Unable to find WApplication"_s}}));
}

void tst_WFontPlain::scaledFonts()
{
    const WScaledFonts fonts(nullptr);
    QCOMPARE(fonts.property("CodeBlocks").value<QFont>().families(), Families);
    QCOMPARE(fonts.property("Display").value<QFont>().pixelSize(), 40);
    QCOMPARE(fonts.property("H6").value<QFont>().pixelSize(), 10);
    QCOMPARE(fonts.property("H6").value<QFont>().families(), Families);
}

LUMAKIT_PLAIN_TEST_MAIN(tst_WFontPlain)
#include "tst_wfont_plain.moc"
