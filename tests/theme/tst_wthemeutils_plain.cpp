#include <TestCase.h>
#include <WThemeUtils.h>

using namespace Qt::StringLiterals;

/// Without an application object of the library.
class tst_WThemeUtilsPlain : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void noCatalogue();
    void colorSet();
    void loadTheme();
};

void tst_WThemeUtilsPlain::noCatalogue()
{
    const auto &sets = WThemeUtils::getAppWColorSets();
    QVERIFY(sets.empty());
    QCOMPARE(&WThemeUtils::getAppWColorSets(), &sets);
}

void tst_WThemeUtilsPlain::colorSet()
{
    QCOMPARE(WThemeUtils::getColorSet(""), WColorSet());
    LogRecorder log;
    QCOMPARE(WThemeUtils::getColorSet("transparent"), WColorSet());
    QCOMPARE(WThemeUtils::getColorSet("label-primary-text"), WColorSet());
    QCOMPARE(log.lines(),
             (QList<LogRecorder::Line>{{QtWarningMsg, u"ColorSet name does not exist!  \"transparent\""_s},
                                       {QtWarningMsg, u"ColorSet name does not exist!  \"label-primary-text\""_s}}));
}

void tst_WThemeUtilsPlain::loadTheme()
{
    const MemoryResources resources(
        {{u"/Themes/meridian_x.json"_s, R"({"tokens":{"a":{"normal":{"r":1,"g":2,"b":3,"a":1}}}})"},
         {u"/Themes/x.json"_s, R"({"tokens":{"b":{"normal":{"r":4,"g":5,"b":6,"a":1}}}})"}});
    const auto sets = WThemeUtils::loadTheme(u"x"_s);
    QCOMPARE(sets.size(), 4U);
    QCOMPARE(sets.at("a"), WColorSet(u"a"_s, QColor(1, 2, 3)));
    QCOMPARE(sets.at("b"), WColorSet(u"b"_s, QColor(4, 5, 6)));
    QVERIFY(WThemeUtils::getAppWColorSets().empty());
}

LUMAKIT_PLAIN_TEST_MAIN(tst_WThemeUtilsPlain)
#include "tst_wthemeutils_plain.moc"
