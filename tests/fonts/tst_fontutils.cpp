#include "FontTable.h"

#include <FontUtils.h>
#include <TestCase.h>

#include <QTextDocument>

#include <limits>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(FontUtils::SupportedFontFamily)

namespace {

struct FamilyRow
{
    const char *name;
    int value;
    QStringList families;
};

const QList<FamilyRow> &familyRows()
{
    static const QList<FamilyRow> rows{
        {"Brand", 0, {u"TarvoSansTT"_s}},
        {"Monospace", 1, {u"Consolas"_s, u"Courier New"_s, u"monospace"_s}},
        {"Segoe UI with emoji", 2, {u"Segoe UI"_s, u"Segoe UI Emoji"_s}},
        {"Emoji", 3, {u"Segoe UI Emoji"_s}},
        {"Segoe UI", 4, {u"Segoe UI"_s}},
        {"Ebrima", 5, {u"Ebrima"_s}},
        {"6 is none", 6, {u"Segoe UI"_s}},
        {"127 is none", 127, {u"Segoe UI"_s}},
        {"255 is none", 255, {u"Segoe UI"_s}},
    };
    return rows;
}

WApplication *application()
{
    return qobject_cast<WApplication *>(QCoreApplication::instance());
}

} // namespace

class tst_FontUtils : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void enumerators();
    void metrics();
    void byPixelSize_data();
    void byPixelSize();
    void byPixelSizeRefused_data();
    void byPixelSizeRefused();
    void monospace_data();
    void monospace();
    void pointSize_data();
    void pointSize();
    void html_data();
    void html();
    void htmlIsPlainText();

protected:
    void tidy() override { application()->setFontScaleFactor(1.0F); }
};

void tst_FontUtils::enumerators()
{
    QCOMPARE(sizeof(FontUtils::SupportedFontFamily), 1U);
    QCOMPARE(int(FontUtils::Brand), 0);
    QCOMPARE(int(FontUtils::Monospace), 1);
    QCOMPARE(int(FontUtils::SegoeUIWithEmoji), 2);
    QCOMPARE(int(FontUtils::Emoji), 3);
    QCOMPARE(int(FontUtils::SegoeUI), 4);
    QCOMPARE(int(FontUtils::Ebrima), 5);
}

void tst_FontUtils::metrics()
{
    for (const float factor : {1.0F, 1.5F}) {
        application()->setFontScaleFactor(factor);
        for (const TokenRow &row : TokenRows) {
            const QFontMetrics metrics = FontUtils::fontMetrics(token(row.token));
            const QFontMetrics expected(WFont(token(row.token), false));
            QCOMPARE(metrics.height(), expected.height());
            QCOMPARE(metrics.ascent(), expected.ascent());
            QCOMPARE(metrics.horizontalAdvance(u"Example"_s), expected.horizontalAdvance(u"Example"_s));
        }
    }
    const int high = FontUtils::fontMetrics(WFont::Title).height();
    application()->setFontScaleFactor(0.5F);
    QCOMPARE_LT(FontUtils::fontMetrics(WFont::Title).height(), high);
    LogRecorder log;
    FontUtils::fontMetrics(token(21));
    QCOMPARE(log.texts(), QStringList{u"Invalid font token! This should never happen!"_s});
}

void tst_FontUtils::byPixelSize_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<FontUtils::SupportedFontFamily>("family");
    QTest::addColumn<QStringList>("families");
    for (const FamilyRow &row : familyRows())
        QTest::newRow(row.name) << 14 << FontUtils::SupportedFontFamily(row.value) << row.families;
    QTest::newRow("1 px") << 1 << FontUtils::Brand << QStringList{u"TarvoSansTT"_s};
    QTest::newRow("1000 px") << 1000 << FontUtils::Brand << QStringList{u"TarvoSansTT"_s};
}

void tst_FontUtils::byPixelSize()
{
    QFETCH(int, pixelSize);
    QFETCH(FontUtils::SupportedFontFamily, family);
    QFETCH(QStringList, families);
    application()->setFontScaleFactor(1.5F); // does not count here
    const WFont font = FontUtils::getFontByPixelSize(pixelSize, family);
    QCOMPARE(font.pixelSize(), pixelSize);
    QCOMPARE(font.pointSize(), -1);
    QCOMPARE(font.families(), families);
    QCOMPARE(font.weight(), QFont().weight());
    QVERIFY(!font.underline());
    QVERIFY(!font.italic());
}

void tst_FontUtils::byPixelSizeRefused_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_FontUtils::byPixelSizeRefused()
{
    QFETCH(int, pixelSize);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^QFont::setPixelSize: Pixel size <= 0"_s)); // Qt's own
    const WFont font = FontUtils::getFontByPixelSize(pixelSize, FontUtils::Ebrima);
    QCOMPARE(font.pixelSize(), QFont().pixelSize());
    QCOMPARE(font.families(), QStringList{u"Ebrima"_s});
}

void tst_FontUtils::monospace_data()
{
    QTest::addColumn<QStringList>("families");
    QTest::addColumn<bool>("expected");
    QTest::newRow("Consolas") << QStringList{u"Consolas"_s} << true;
    QTest::newRow("Courier New") << QStringList{u"Courier New"_s} << true;
    QTest::newRow("monospace") << QStringList{u"monospace"_s} << true;
    QTest::newRow("lower case") << QStringList{u"consolas"_s} << false;
    QTest::newRow("upper case") << QStringList{u"Monospace"_s} << false;
    QTest::newRow("Courier") << QStringList{u"Courier"_s} << false;
    QTest::newRow("another fixed font") << QStringList{u"DejaVu Sans Mono"_s} << false;
    QTest::newRow("Segoe UI") << QStringList{u"Segoe UI"_s} << false;
    QTest::newRow("second of two") << QStringList{u"Segoe UI"_s, u"Courier New"_s} << true;
    QTest::newRow("last of three") << QStringList{u"Segoe UI"_s, u"Ebrima"_s, u"monospace"_s} << true;
    QTest::newRow("none of three") << QStringList{u"Segoe UI"_s, u"Ebrima"_s, u"courier new"_s} << false;
    QTest::newRow("in one name") << QStringList{u"Consolas,Courier New"_s} << false;
    QTest::newRow("with a space") << QStringList{u"Consolas "_s} << false;
    QTest::newRow("no family") << QStringList() << false;
}

void tst_FontUtils::monospace()
{
    QFETCH(QStringList, families);
    QFETCH(bool, expected);
    QFont font;
    font.setFamilies(families);
    QCOMPARE(FontUtils::isMonospaceFont(font), expected);
    if (families.size() == 1)
        QCOMPARE(FontUtils::isMonospaceFont(WFont(families, 12, 400)), expected);
    QCOMPARE(FontUtils::isMonospaceFont(WFont(WFont::CodeBlocks, false)), true);
    QCOMPARE(FontUtils::isMonospaceFont(WFont(WFont::CodeBlocks, true)), false);
    QCOMPARE(FontUtils::isMonospaceFont(FontUtils::getFontByPixelSize(12, FontUtils::Monospace)), true);
}

void tst_FontUtils::pointSize_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<double>("pointSize");
    QTest::newRow("16") << 16 << 12.0;
    QTest::newRow("1") << 1 << 0.75;
    QTest::newRow("0") << 0 << 0.0;
    QTest::newRow("-4") << -4 << -3.0;
    QTest::newRow("13") << 13 << 9.75;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 1610612735.25;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << -1610612736.0;
}

void tst_FontUtils::pointSize()
{
    QFETCH(int, pixelSize);
    QFETCH(double, pointSize);
    QCOMPARE(FontUtils::pixelSizeToPointSize(pixelSize), pointSize);
}

void tst_FontUtils::html_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<FontUtils::SupportedFontFamily>("family");
    QTest::addColumn<QString>("families");
    QTest::addColumn<QString>("escaped");
    for (const FamilyRow &row : familyRows())
        QTest::newRow(row.name) << u"text"_s << FontUtils::SupportedFontFamily(row.value) << row.families.join(u","_s)
                                << u"text"_s;
    const QString both = u"Segoe UI,Segoe UI Emoji"_s;
    const auto row = [&both](const char *name, const QString &text, const QString &escaped) {
        QTest::newRow(name) << text << FontUtils::SegoeUIWithEmoji << both << escaped;
    };
    row("less than", u"a<b"_s, u"a&lt;b"_s);
    row("markup", u"<img src=\"x\">&amp;</p>"_s, u"&lt;img src=&quot;x&quot;&gt;&amp;amp;&lt;/p&gt;"_s);
    row("apostrophe", u"it's"_s, u"it's"_s);
    row("place markers", u"%1 %2 %3 %99"_s, u"%1 %2 %3 %99"_s);
    row("white space", u" a\n\tb "_s, u" a\n\tb "_s);
    row("a space", u" "_s, u" "_s);
    row("emoji", u"\U0001f600"_s, u"\U0001f600"_s);
    row("a megabyte", QString(1024 * 1024, u'&'), u"&amp;"_s.repeated(1024 * 1024));
}

void tst_FontUtils::html()
{
    QFETCH(QString, text);
    QFETCH(FontUtils::SupportedFontFamily, family);
    QFETCH(QString, families);
    QFETCH(QString, escaped);
    QCOMPARE(FontUtils::toHtml(text, family, true),
             "<html><head/><body><p style=\"font-family: "_L1 + families + ";\">"_L1 + escaped
                 + "</p></body></html>"_L1);
    QCOMPARE(FontUtils::toHtml(text, family, false),
             "<html><head/><body><p style=\"font-family: "_L1 + families + ";white-space: pre\">"_L1 + escaped
                 + "</p></body></html>"_L1);
    for (const bool wrap : {true, false}) {
        QCOMPARE(FontUtils::toHtml(QString(), family, wrap), QString());
        QCOMPARE(FontUtils::toHtml(u""_s, family, wrap), QString());
    }
}

void tst_FontUtils::htmlIsPlainText()
{
    QTextDocument document;
    const QString text = u"<b>5 < 6 & 7 > \"8\"</b> %1"_s;
    document.setHtml(FontUtils::toHtml(text, FontUtils::SegoeUIWithEmoji, true));
    QCOMPARE(document.toPlainText(), text);
}

LUMAKIT_TEST_MAIN(tst_FontUtils)
#include "tst_fontutils.moc"
