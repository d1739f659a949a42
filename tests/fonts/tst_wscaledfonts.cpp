#include "../theme/MetaDescription.h"

#include <FontManagerEnum.h>
#include <TestCase.h>
#include <WScaledFonts.h>

#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

/// In the order of the properties; the sizes at Regular, then Small, Medium and Large; 0 where the factor is not felt.
struct FontRow
{
    const char *name;
    int pixelSize;
    int weight;
    bool underline;
    int small;
    int medium;
    int large;
    bool scales = true; ///< with the application's font scale factor, at Regular
};

constexpr auto FontRows = std::to_array<FontRow>({
    {"Display", 40, 600, false, 0, 0, 0},
    {"H1", 26, 700, false, 20, 32, 40},
    {"BannerTertiary", 26, 700, false, 0, 0, 0},
    {"BannerPrimary", 26, 600, false, 0, 0, 0},
    {"BannerSecondary", 26, 400, false, 0, 0, 0},
    {"H2", 20, 600, false, 16, 26, 32},
    {"Title", 20, 600, false, 0, 0, 0},
    {"HeaderPrimary", 16, 700, false, 0, 0, 0},
    {"HighlightPrimary", 16, 700, false, 14, 20, 26},
    {"H3", 16, 600, false, 14, 20, 26},
    {"SubheaderPrimary", 16, 600, false, 0, 0, 0},
    {"BodyPrimary", 16, 400, false, 14, 20, 26},
    {"HyperlinkPrimary", 16, 400, true, 14, 20, 26},
    {"SubheaderSecondary", 14, 600, false, 0, 0, 0},
    {"HighlightSecondary", 14, 700, false, 12, 16, 20},
    {"HeaderSecondary", 14, 700, false, 0, 0, 0},
    {"BodySecondary", 14, 400, false, 12, 16, 20},
    {"HyperlinkSecondary", 14, 400, true, 12, 16, 20},
    {"HighlightCompact", 12, 700, false, 0, 0, 0},
    {"BodyCompact", 12, 600, false, 0, 0, 0},
    {"LabelCompact", 12, 600, false, 0, 0, 0},
    {"CodeBlocks", 16, 400, false, 14, 20, 26},
    {"Default", 16, 400, false, 0, 0, 0},
    {"H4", 14, 600, false, 12, 16, 20},
    {"H5", 12, 600, false, 10, 14, 16, false},
    {"H6", 10, 600, false, 0, 0, 0, false},
});

struct TokenProperty
{
    const char *token;
    int value;
    const char *property;
};

constexpr auto TokenProperties = std::to_array<TokenProperty>({
    {"Default", 0, "Default"},
    {"Title", 1, "Title"},
    {"Header", 2, "HeaderPrimary"},
    {"SubheaderPrimary", 3, "SubheaderPrimary"},
    {"SubheaderSecondary", 4, "SubheaderSecondary"},
    {"BodyPrimary", 5, "BodyPrimary"},
    {"BodySecondary", 6, "BodySecondary"},
    {"BodyTertiary", 7, "BodyCompact"},
    {"BannerPrimary", 8, "BannerPrimary"},
    {"BannerSecondary", 9, "BannerSecondary"},
    {"BannerTertiary", 10, "BannerTertiary"},
    {"HighlightPrimary", 11, "HighlightPrimary"},
    {"HighlightSecondary", 12, "HighlightSecondary"},
    {"HighlightTertiary", 13, "HighlightCompact"},
    {"HyperlinkPrimary", 14, "HyperlinkPrimary"},
    {"HyperlinkSecondary", 15, "HyperlinkSecondary"},
    {"TagLabelPrimary", 16, "SubheaderSecondary"},
    {"TagLabelSecondary", 17, "LabelCompact"},
    {"CodeBlocks", 18, "CodeBlocks"},
    {"RadioButtonLabelSecondary", 19, "Default"},
    {"Display", 20, "Display"},
    {"-1", -1, "Default"},
    {"21", 21, "Default"},
    {"largest", std::numeric_limits<int>::max(), "Default"},
});

WApplication *application()
{
    return qobject_cast<WApplication *>(QCoreApplication::instance());
}

QString line(const char *name, int pixelSize, int weight, bool underline, const QString &family)
{
    return u"%1: %2 px, %3, %4%5"_s.arg(QString::fromLatin1(name), QString::number(pixelSize), QString::number(weight),
                                        family, underline ? u", underlined"_s : QString());
}

/// All 26 fonts as text.
QStringList described(const WScaledFonts &fonts)
{
    QStringList lines;
    for (const FontRow &row : FontRows) {
        const QFont font = fonts.property(row.name).value<QFont>();
        lines << line(row.name, font.pixelSize(), font.weight(), font.underline(), font.families().join(u','));
    }
    return lines;
}

/// What they should be: `column` replaces the size where it is not 0; `factor` is the application's at the last reset.
QStringList expected(int FontRow::*column = nullptr, float factor = 1.0F)
{
    QStringList lines;
    for (const FontRow &row : FontRows) {
        int pixelSize = row.scales ? qRound(float(row.pixelSize) * factor) : row.pixelSize;
        if (column && row.*column != 0)
            pixelSize = row.*column;
        lines << line(row.name, pixelSize, row.weight, row.underline,
                      QByteArrayView(row.name) == "CodeBlocks" ? u"Consolas"_s : u"Segoe UI"_s);
    }
    return lines;
}

constexpr auto Unknown = static_cast<FontManagerEnum::FontScalingFactor>(7);

} // namespace

class tst_WScaledFonts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void enumMetaObject();
    void construction();
    void tokens_data();
    void tokens();
    void tokensFollowScaling();
    void scaling_data();
    void scaling();
    void everyStep();
    void scaleFactorOfApplication();
    void unknownFactor_data();
    void unknownFactor();
    void keepsOtherAttributes();

protected:
    void tidy() override { application()->setFontScaleFactor(1.0F); }
};

void tst_WScaledFonts::metaObject()
{
    QStringList properties;
    for (const FontRow &row : FontRows)
        properties << u"QFont %1, read-only, fontTokenChanged"_s.arg(QString::fromLatin1(row.name));
    QCOMPARE(properties.size(), 26);
    const QMetaObject &meta = WScaledFonts::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::properties(meta), properties);
    QCOMPARE(MetaDescription::signalsOf(meta), QStringList{u"void fontTokenChanged()"_s});
    QCOMPARE(MetaDescription::slotsOf(meta), QStringList());
}

void tst_WScaledFonts::enumMetaObject()
{
    const QMetaObject &meta = FontManagerEnum::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(MetaDescription::enums(meta),
             (QStringList{u"FontScalingFactor: Small -1, Regular 0, Medium 1, Large 2"_s,
                          u"FontType: Default 0, MessagingView 1, MeetingView 2"_s}));
    QVERIFY((std::is_convertible_v<FontManagerEnum::FontType, int>)); // unscoped
    QVERIFY((std::is_convertible_v<FontManagerEnum::FontScalingFactor, int>));
    QVERIFY(std::is_default_constructible_v<FontManagerEnum>);
    const FontManagerEnum object;
    QCOMPARE(object.metaObject()->methodOffset(), object.metaObject()->methodCount());
    QCOMPARE(object.metaObject()->propertyOffset(), object.metaObject()->propertyCount());
}

void tst_WScaledFonts::construction()
{
    QObject parent;
    const auto *fonts = new WScaledFonts(&parent);
    QCOMPARE(fonts->parent(), &parent);
    QCOMPARE(described(*fonts), expected());
}

void tst_WScaledFonts::tokens_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("property");
    for (const TokenProperty &row : TokenProperties)
        QTest::newRow(row.token) << row.value << QByteArray(row.property);
}

void tst_WScaledFonts::tokens()
{
    QFETCH(int, value);
    QFETCH(QByteArray, property);
    WScaledFonts fonts(nullptr);
    QCOMPARE(fonts.getFont(static_cast<WFont::Token>(value)), fonts.property(property.constData()).value<QFont>());
}

// Roles that share a size at Regular part ways at Large, so that each token shows which role it is served from.
void tst_WScaledFonts::tokensFollowScaling()
{
    WScaledFonts fonts(nullptr);
    fonts.setScalingFactor(FontManagerEnum::Large);
    for (const TokenProperty &row : TokenProperties)
        QCOMPARE(fonts.getFont(static_cast<WFont::Token>(row.value)), fonts.property(row.property).value<QFont>());
    QCOMPARE(fonts.getFont(WFont::Title).pixelSize(), 20);
    QCOMPARE(fonts.getFont(WFont::BannerTertiary).pixelSize(), 26);
    QCOMPARE(fonts.getFont(WFont::BodyPrimary).pixelSize(), 26);
    QCOMPARE(fonts.getFont(WFont::TagLabelPrimary).pixelSize(), 14);
    QCOMPARE(fonts.getFont(WFont::RadioButtonLabelSecondary).pixelSize(), 16);
}

void tst_WScaledFonts::scaling_data()
{
    QTest::addColumn<int>("factor");
    QTest::newRow("small") << int(FontManagerEnum::Small);
    QTest::newRow("regular") << int(FontManagerEnum::Regular);
    QTest::newRow("medium") << int(FontManagerEnum::Medium);
    QTest::newRow("large") << int(FontManagerEnum::Large);
}

static QStringList expectedAt(int factor)
{
    switch (factor) {
    case FontManagerEnum::Small:
        return expected(&FontRow::small);
    case FontManagerEnum::Medium:
        return expected(&FontRow::medium);
    case FontManagerEnum::Large:
        return expected(&FontRow::large);
    default:
        return expected();
    }
}

void tst_WScaledFonts::scaling()
{
    QFETCH(int, factor);
    WScaledFonts fonts(nullptr);
    QSignalSpy spy(&fonts, &WScaledFonts::fontTokenChanged);
    QStringList atSignal;
    connect(&fonts, &WScaledFonts::fontTokenChanged, this, [&] { atSignal = described(fonts); });
    fonts.setScalingFactor(FontManagerEnum::FontScalingFactor(factor));
    QCOMPARE(described(fonts), expectedAt(factor));
    QCOMPARE(atSignal, expectedAt(factor));
    QCOMPARE(spy.count(), 1);
    fonts.setScalingFactor(FontManagerEnum::FontScalingFactor(factor));
    QCOMPARE(described(fonts), expectedAt(factor));
    QCOMPARE(spy.count(), 2); // even though nothing changed
}

// No factor is remembered: every step from any other gives the same.
void tst_WScaledFonts::everyStep()
{
    WScaledFonts fonts(nullptr);
    for (int from = -1; from <= 2; ++from) {
        for (int to = -1; to <= 2; ++to) {
            fonts.setScalingFactor(FontManagerEnum::FontScalingFactor(from));
            fonts.setScalingFactor(FontManagerEnum::FontScalingFactor(to));
            QCOMPARE(described(fonts), expectedAt(to));
        }
    }
}

void tst_WScaledFonts::scaleFactorOfApplication()
{
    WScaledFonts fonts(nullptr);
    application()->setFontScaleFactor(1.25F);
    QCOMPARE(described(fonts), expected()); // only the next reset feels it
    fonts.setScalingFactor(FontManagerEnum::Small);
    QCOMPARE(described(fonts), expected(&FontRow::small));
    fonts.setScalingFactor(Unknown);
    QCOMPARE(described(fonts), expected(&FontRow::small));
    fonts.setScalingFactor(FontManagerEnum::Regular);
    QCOMPARE(described(fonts), expected(nullptr, 1.25F));
    fonts.setScalingFactor(FontManagerEnum::Large);
    QCOMPARE(described(fonts), expected(&FontRow::large, 1.25F));

    const WScaledFonts later(nullptr);
    QCOMPARE(described(later), expected(nullptr, 1.25F));

    application()->setFontScaleFactor(0.5F);
    fonts.setScalingFactor(FontManagerEnum::Regular);
    QCOMPARE(described(fonts), expected(nullptr, 0.5F));
}

void tst_WScaledFonts::unknownFactor_data()
{
    QTest::addColumn<int>("factor");
    QTest::newRow("7") << 7;
    QTest::newRow("3") << 3;
    QTest::newRow("-2") << -2;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_WScaledFonts::unknownFactor()
{
    QFETCH(int, factor);
    WScaledFonts fonts(nullptr);
    fonts.setScalingFactor(FontManagerEnum::Medium);
    QSignalSpy spy(&fonts, &WScaledFonts::fontTokenChanged);
    fonts.setScalingFactor(static_cast<FontManagerEnum::FontScalingFactor>(factor));
    QCOMPARE(described(fonts), expected(&FontRow::medium));
    QCOMPARE(spy.count(), 1);
}

void tst_WScaledFonts::keepsOtherAttributes()
{
    WScaledFonts fonts(nullptr);
    QList<QFont> regular;
    for (const FontRow &row : FontRows)
        regular << fonts.property(row.name).value<QFont>();
    fonts.setScalingFactor(FontManagerEnum::Large);
    for (size_t i = 0; i < FontRows.size(); ++i) {
        QFont font = regular[qsizetype(i)];
        if (FontRows[i].large != 0)
            font.setPixelSize(FontRows[i].large);
        QCOMPARE(fonts.property(FontRows[i].name).value<QFont>(), font);
    }
}

LUMAKIT_TEST_MAIN(tst_WScaledFonts)
#include "tst_wscaledfonts.moc"
