#include <TestCase.h>
#include <WThemeUtils.h>

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

using Catalogue = QMap<QString, WColorSet>;

namespace {

constexpr int TokenCount = 642;

const QStringList States{u"normal"_s, u"hovered"_s, u"pressed"_s, u"disabled"_s, u"focused"_s, u"checked"_s};

QStringList tokenNames()
{
    QStringList names;
    for (int identifier = 0; identifier < TokenCount; ++identifier)
        names.append(WThemeUtils::colorSetTokenName(identifier));
    return names;
}

Catalogue load(const QString &mode)
{
    Catalogue catalogue;
    for (const auto &[name, colorSet] : WThemeUtils::loadTheme(mode))
        catalogue.insert(QString::fromStdString(name), colorSet);
    return catalogue;
}

QString systemFile(const QString &mode)
{
    return u":/Themes/meridian_%1.json"_s.arg(mode);
}

QString applicationFile(const QString &mode)
{
    return u":/Themes/%1.json"_s.arg(mode);
}

QJsonObject tokensOf(const QString &path)
{
    return WThemeUtils::readJsonObject(path).value("tokens"_L1).toObject();
}

// --- Contrast: which token is laid on which --------------------------------------------------------------------------

enum class Kind { None, Background, Text, Icon, Mark, Border };

struct Name
{
    Kind kind = Kind::None;
    QStringList base;
    QString part;
    QStringList suffix;
};

Kind kindOf(const QString &word)
{
    static const QSet<QString> texts{u"text"_s,       u"textprimary"_s, u"textsecondary"_s, u"textsecondarycompany"_s,
                                     u"textmissed"_s, u"label"_s,       u"name"_s,          u"role"_s,
                                     u"speaker"_s,    u"description"_s};
    static const QSet<QString> icons{u"tint"_s, u"tick"_s};
    static const QSet<QString> marks{u"indicator"_s, u"cursor"_s, u"audioMuted"_s, u"audioUnmuted"_s};
    if (word == "background"_L1 || word.endsWith("Background"_L1))
        return Kind::Background;
    if (texts.contains(word.toLower()))
        return Kind::Text;
    if (word.startsWith("icon"_L1) || word.endsWith("Icon"_L1) || icons.contains(word))
        return Kind::Icon;
    if (marks.contains(word))
        return Kind::Mark;
    return word == "border"_L1 || word == "outline"_L1 ? Kind::Border : Kind::None;
}

/// Divides a name at its last part word; the first word is the family and no part word.
Name parse(const QString &token)
{
    const QStringList words = token.split(u'-');
    for (qsizetype at = words.size() - 1; at > 0; --at) {
        if (const Kind kind = kindOf(words[at]); kind != Kind::None)
            return {kind, words.first(at), words[at], words.sliced(at + 1)};
    }
    return {Kind::None, words, {}, {}};
}

const QStringList Panels{u"panel-primary-background"_s, u"panel-secondary-background"_s,
                         u"panel-tertiary-background"_s};
const QStringList Surfaces = Panels
    + QStringList{u"modal-primary-background"_s,
                  u"modal-secondary-background"_s,
                  u"modal-tertiary-background"_s,
                  u"menulistbackground-primary-background"_s,
                  u"menulistbackground-secondary-background"_s,
                  u"menulistbackground-tertiary-background"_s,
                  u"popover-primary-background"_s,
                  u"globalHeader-container-background"_s};
const QStringList Beside{u"checkbox-checked-text"_s, u"checkbox-unchecked-text"_s, u"radio-checked-text"_s,
                         u"radio-unchecked-text"_s, u"badge-warning-icon"_s};
const QStringList ControlBorders{u"button-cancel-outline-"_s,
                                 u"button-common-secondary-"_s,
                                 u"button-join-outline-"_s,
                                 u"button-layout-"_s,
                                 u"button-secondary-"_s,
                                 u"checkbox-"_s,
                                 u"codeinput-"_s,
                                 u"combobox-"_s,
                                 u"global-focus-"_s,
                                 u"globalHeader-"_s,
                                 u"pickers-dayPicker-"_s,
                                 u"radio-"_s,
                                 u"search-"_s,
                                 u"shortcutinput-"_s,
                                 u"textinput-"_s,
                                 u"toggle-"_s,
                                 u"toggleButton-"_s};
const QString WhiteText = u"label-common-white-text"_s;
const QString BlackText = u"label-common-black-text"_s;

struct Ground
{
    QStringList backgrounds;
    bool ownStates = false; ///< in each state the same state of the background, else its normal colour
};

class Grounds
{
public:
    explicit Grounds(const QStringList &tokens)
    {
        for (const QString &token : tokens) {
            const Name name = parse(token);
            if (name.kind != Kind::Background)
                continue;
            m_backgrounds[name.base].append(token);
            if (name.base.size() > 1 && name.base.last() == "container"_L1)
                m_backgrounds[name.base.first(name.base.size() - 1)].append(token);
        }
    }

    std::optional<Ground> of(const QString &token) const
    {
        const Name name = parse(token);
        if (name.kind == Kind::None || name.kind == Kind::Background || token.split(u'-').contains("disabled"_L1))
            return {};
        if (token == WhiteText || token == BlackText)
            return Ground{{token == WhiteText ? BlackText : WhiteText}};
        if (name.kind == Kind::Border) {
            const bool bounds = std::any_of(ControlBorders.begin(), ControlBorders.end(),
                                            [&](const QString &prefix) { return token.startsWith(prefix); });
            return bounds ? std::optional(Ground{Panels}) : std::nullopt;
        }
        if (name.kind == Kind::Mark || Beside.contains(token))
            return Ground{Surfaces};
        const QStringList own = ownBackgrounds(name);
        return own.isEmpty() ? Ground{Surfaces} : Ground{own, true};
    }

private:
    QStringList ownBackgrounds(const Name &name) const
    {
        QList<QStringList> bases{name.base + QStringList{name.part}};
        for (QStringList base = name.base; !base.isEmpty(); base.removeLast())
            bases.append(base);
        for (const QStringList &base : std::as_const(bases)) {
            const QStringList backgrounds = m_backgrounds.value(base);
            for (const QString &background : backgrounds) {
                if (!name.suffix.isEmpty() && parse(background).suffix == name.suffix)
                    return {background};
            }
            if (!backgrounds.isEmpty())
                return backgrounds;
        }
        return {};
    }

    QMap<QStringList, QStringList> m_backgrounds;
};

// --- Contrast: how well it is read -----------------------------------------------------------------------------------

struct Rgb
{
    double red;
    double green;
    double blue;
};

Rgb laidOver(const QColor &front, const Rgb &back)
{
    const double opacity = front.alpha() / 255.0;
    const auto mixed = [opacity](int over, double under) { return over * opacity + under * (1.0 - opacity); };
    return {mixed(front.red(), back.red), mixed(front.green(), back.green), mixed(front.blue(), back.blue)};
}

double luminance(const Rgb &color)
{
    const auto linear = [](double channel) {
        channel /= 255.0;
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double contrast(const Rgb &one, const Rgb &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

struct Findings
{
    int pairs = 0;
    QMap<Kind, int> tokens; ///< how many were looked at
    QStringList failures; ///< "token on background, state: ratio, needs ratio"
};

Findings readability(const Catalogue &catalogue, double neededForText)
{
    const QStringList tokens = tokenNames();
    const Grounds grounds(tokens);
    const QColor panelColor = catalogue.value(Panels.first()).normal;
    const Rgb panel = laidOver(panelColor, {0, 0, 0});
    Findings findings;
    for (const QString &token : tokens) {
        const std::optional<Ground> ground = grounds.of(token);
        if (!ground)
            continue;
        const Kind kind = parse(token).kind;
        ++findings.tokens[kind];
        const double needed = kind == Kind::Text ? neededForText : 3.0;
        for (const QString &background : ground->backgrounds) {
            for (const QString &state : States) {
                const QColor front = catalogue.value(token).getColor(state);
                if (state == "disabled"_L1 || (kind == Kind::Border && front.alpha() == 0))
                    continue;
                const Rgb back =
                    laidOver(catalogue.value(background).getColor(ground->ownStates ? state : u"normal"_s), panel);
                const double reached = contrast(laidOver(front, back), back);
                ++findings.pairs;
                if (reached < needed)
                    findings.failures.append(u"%1 on %2, %3: %4, needs %5"_s.arg(token, background, state)
                                                 .arg(reached, 0, 'f', 2)
                                                 .arg(needed));
            }
        }
    }
    return findings;
}

void addModes()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<double>("neededForText");
    QTest::newRow("default") << u"default"_s << 4.5;
    QTest::newRow("dark") << u"dark"_s << 4.5;
    QTest::newRow("highcontrast") << u"highcontrast"_s << 7.0;
}

} // namespace

class tst_Themes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void files();
    void palette();
    void loads_data() { addModes(); }
    void loads();
    void switchesTo_data() { addModes(); }
    void switchesTo();
    void tokens_data() { addModes(); }
    void tokens();
    void tokenFilesAreApart_data() { addModes(); }
    void tokenFilesAreApart();
    void everyStateIsRead_data() { addModes(); }
    void everyStateIsRead();
    void modesDiffer();
    void primaryButtonStates_data() { addModes(); }
    void primaryButtonStates();
    void ground_data();
    void ground();
    void contrastRatio_data();
    void contrastRatio();
    void isReadable_data() { addModes(); }
    void isReadable();
    void unreadableIsFound_data();
    void unreadableIsFound();
};

void tst_Themes::files()
{
    const QStringList expected{u"colors.json"_s,
                               u"dark.json"_s,
                               u"default.json"_s,
                               u"highcontrast.json"_s,
                               u"meridian_dark.json"_s,
                               u"meridian_default.json"_s,
                               u"meridian_highcontrast.json"_s};
    QCOMPARE(QDir(u":/Themes"_s).entryList(QDir::Files, QDir::Name), expected);
}

void tst_Themes::palette()
{
    LogRecorder recorder;
    const auto palette = WThemeUtils::parseWColorsFromJson(u":/Themes/colors.json"_s);
    QCOMPARE(recorder.lines(), QList<LogRecorder::Line>());

    QStringList names;
    for (const QJsonValue group : WThemeUtils::readJsonObject(u":/Themes/colors.json"_s).value("colors"_L1).toArray()) {
        for (const QJsonValue variation : group.toObject().value("variations"_L1).toArray())
            names.append(variation.toObject().value("name"_L1).toString());
    }
    QCOMPARE_GT(names.size(), 100);
    QStringList repeated;
    for (const QString &name : std::as_const(names)) {
        if (names.count(name) > 1 && !repeated.contains(name))
            repeated.append(name);
    }
    QCOMPARE(repeated, QStringList());
    QCOMPARE(qsizetype(palette.size()), names.size());
}

void tst_Themes::loads()
{
    QFETCH(const QString, mode);
    LogRecorder recorder;
    const Catalogue catalogue = load(mode);
    QCOMPARE(recorder.lines(), QList<LogRecorder::Line>());
    QCOMPARE(catalogue.size(), TokenCount + 2);
}

void tst_Themes::switchesTo()
{
    QFETCH(const QString, mode);
    auto *application = qobject_cast<TestApplication *>(qApp);
    {
        LogRecorder other;
        application->setThemeMode(mode == "default"_L1 ? u"dark"_s : u"default"_s);
    }
    QSignalSpy changed(application, &IWApplication::themeModeChanged);
    LogRecorder recorder;
    application->setThemeMode(mode);
    QCOMPARE(recorder.lines(), (QList<LogRecorder::Line>{{QtDebugMsg, u"setThemeMode:  \"%1\""_s.arg(mode)}}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(application->getColorSet(u"button-primary-background"_s),
             load(mode).value(u"button-primary-background"_s));
}

void tst_Themes::tokens()
{
    QFETCH(const QString, mode);
    const Catalogue catalogue = load(mode);
    QStringList missing;
    QStringList invalid;
    const QStringList names = tokenNames();
    QCOMPARE(names.count(QString()), 0);
    for (const QString &name : names) {
        if (!catalogue.contains(name))
            missing.append(name);
        else if (!catalogue[name].isValid() || catalogue[name].name != name)
            invalid.append(name);
    }
    QCOMPARE(missing, QStringList());
    QCOMPARE(invalid, QStringList());

    QStringList others;
    for (const QString &name : catalogue.keys()) {
        if (!names.contains(name))
            others.append(name);
    }
    QCOMPARE(others, QStringList({u"#00000000"_s, u"transparent"_s}));
    const WColorSet transparent(u"transparent"_s, QColor(Qt::transparent));
    QCOMPARE(catalogue[u"transparent"_s], transparent);
    QCOMPARE(catalogue[u"#00000000"_s], transparent);
}

void tst_Themes::tokenFilesAreApart()
{
    QFETCH(const QString, mode);
    const QStringList system = tokensOf(systemFile(mode)).keys();
    const QStringList application = tokensOf(applicationFile(mode)).keys();
    QStringList both;
    for (const QString &name : application) {
        if (system.contains(name))
            both.append(name);
    }
    QCOMPARE(both, QStringList());
    QCOMPARE(system.size() + application.size(), TokenCount);
    QCOMPARE_GT(system.size(), 0);
    QCOMPARE_GT(application.size(), 0);
}

// A state that cannot be read silently takes the colour of normal.
void tst_Themes::everyStateIsRead()
{
    QFETCH(const QString, mode);
    const auto palette = WThemeUtils::parseWColorsFromJson(u":/Themes/colors.json"_s);
    QStringList problems;
    int states = 0;
    const auto check = [&](const QString &path, const auto &isColor) {
        const QJsonObject tokens = tokensOf(path);
        for (const QString &token : tokens.keys()) {
            const QJsonObject values = tokens[token].toObject();
            for (const QString &state : values.keys()) {
                ++states;
                if (!States.contains(state) || !isColor(values[state]))
                    problems.append(u"%1: %2, %3"_s.arg(path, token, state));
            }
        }
    };
    check(systemFile(mode), [](const QJsonValue &value) {
        const QJsonObject rgba = value.toObject();
        const double alpha = rgba["a"_L1].toDouble(-1);
        const auto isChannel = [&](QLatin1StringView name) {
            const int channel = rgba[name].toInt(-1);
            return channel >= 0 && channel <= 255;
        };
        return rgba.size() == 4 && isChannel("r"_L1) && isChannel("g"_L1) && isChannel("b"_L1) && alpha >= 0
            && alpha <= 1;
    });
    check(applicationFile(mode),
          [&](const QJsonValue &value) { return palette.contains(value.toString().toStdString()); });
    QCOMPARE(problems, QStringList());
    QCOMPARE_GT(states, TokenCount);
}

void tst_Themes::modesDiffer()
{
    const QStringList names = tokenNames();
    const QList<Catalogue> modes{load(u"default"_s), load(u"dark"_s), load(u"highcontrast"_s)};
    for (const auto &[one, other] : {std::pair(0, 1), std::pair(0, 2), std::pair(1, 2)}) {
        const auto differing = std::count_if(names.begin(), names.end(), [&](const QString &name) {
            return modes[one].value(name) != modes[other].value(name);
        });
        QCOMPARE_GT(differing, TokenCount / 2);
    }
}

void tst_Themes::primaryButtonStates()
{
    QFETCH(const QString, mode);
    const WColorSet colors = load(mode).value(u"button-primary-background"_s);
    QStringList same;
    for (qsizetype one = 0; one < States.size(); ++one) {
        for (qsizetype other = one + 1; other < States.size(); ++other) {
            if (colors.getColor(States[one]) == colors.getColor(States[other]))
                same.append(States[one] + u" and "_s + States[other]);
        }
    }
    QCOMPARE(same, QStringList());
}

void tst_Themes::ground_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QStringList>("backgrounds");
    QTest::addColumn<bool>("ownStates");
    const auto own = [](const char *row, const QString &token, const QStringList &backgrounds) {
        QTest::newRow(row) << token << backgrounds << true;
    };
    const auto fixed = [](const char *row, const QString &token, const QStringList &backgrounds) {
        QTest::newRow(row) << token << backgrounds << false;
    };
    const QStringList none;
    own("beside its background", u"button-primary-text"_s, {u"button-primary-background"_s});
    own("background of a container", u"interactiveicon-primary-filled-icon-inactive"_s,
        {u"interactiveicon-container-background"_s});
    own("one word dropped", u"attachment-file-default-sent-label-primary"_s,
        {u"attachment-file-default-sent-background"_s});
    own("on what bears its own part word", u"avatar-presence-icon-busy"_s, {u"avatar-presence-icon-background"_s});
    fixed("no background of its own", u"label-primary-text"_s, Surfaces);
    fixed("mark", u"badge-error-indicator"_s, Surfaces);
    fixed("beside its indicator", u"checkbox-checked-text"_s, Surfaces);
    fixed("black on white", BlackText, {WhiteText});
    fixed("white on black", WhiteText, {BlackText});
    fixed("control border", u"button-secondary-border"_s, Panels);
    fixed("focus outline", u"global-focus-outline"_s, Panels);
    fixed("decorative border", u"avatar-chat-bubble-border"_s, none);
    fixed("background", u"button-primary-background"_s, none);
    fixed("disabled", u"attachment-file-error-sent-label-disabled"_s, none);
    fixed("no part word", u"tab-violet"_s, none);
}

void tst_Themes::ground()
{
    QFETCH(const QString, token);
    QFETCH(const QStringList, backgrounds);
    QFETCH(const bool, ownStates);
    QVERIFY(tokenNames().contains(token));
    const std::optional<Ground> ground = Grounds(tokenNames()).of(token);
    QCOMPARE(ground ? ground->backgrounds : QStringList(), backgrounds);
    QCOMPARE(ground && ground->ownStates, ownStates);
}

void tst_Themes::contrastRatio_data()
{
    QTest::addColumn<QColor>("front");
    QTest::addColumn<QColor>("back");
    QTest::addColumn<double>("expected");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black) << 21.0;
    QTest::newRow("same") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
    QTest::newRow("invisible") << QColor(Qt::transparent) << QColor(Qt::white) << 1.0;
    QTest::newRow("grey 119") << QColor(119, 119, 119) << QColor(Qt::white) << 4.478;
    QTest::newRow("grey 118") << QColor(118, 118, 118) << QColor(Qt::white) << 4.542;
    QTest::newRow("blue") << QColor(Qt::blue) << QColor(Qt::white) << 8.592;
    QTest::newRow("black at 137 of 255, which is grey 118") << QColor(0, 0, 0, 137) << QColor(Qt::white) << 4.542;
}

void tst_Themes::contrastRatio()
{
    QFETCH(const QColor, front);
    QFETCH(const QColor, back);
    QFETCH(const double, expected);
    const Rgb ground = laidOver(back, {0, 0, 0});
    QCOMPARE_LT(std::abs(contrast(laidOver(front, ground), ground) - expected), 0.001);
}

void tst_Themes::isReadable()
{
    QFETCH(const QString, mode);
    QFETCH(const double, neededForText);
    const Findings findings = readability(load(mode), neededForText);
    QVERIFY2(findings.failures.isEmpty(), qPrintable(findings.failures.join(u'\n')));
    QCOMPARE_GT(findings.pairs, 4000);
    QCOMPARE_GT(findings.tokens[Kind::Text], 150);
    QCOMPARE_GT(findings.tokens[Kind::Icon], 50);
    QCOMPARE_GT(findings.tokens[Kind::Mark], 5);
    QCOMPARE_GT(findings.tokens[Kind::Border], 20);
}

void tst_Themes::unreadableIsFound_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("background");
    QTest::newRow("text") << u"button-primary-text"_s << u"button-primary-background"_s;
    QTest::newRow("icon") << u"touchbar-call-icon"_s << u"touchbar-call-background"_s;
}

void tst_Themes::unreadableIsFound()
{
    QFETCH(const QString, token);
    QFETCH(const QString, background);
    Catalogue catalogue = load(u"dark"_s);
    catalogue[token] = WColorSet(token, catalogue.value(background));
    const QString needed = token.endsWith("text"_L1) ? u"4.5"_s : u"3"_s;
    QStringList expected;
    for (const QString &state : States) {
        if (state != "disabled"_L1)
            expected.append(u"%1 on %2, %3: 1.00, needs %4"_s.arg(token, background, state, needed));
    }
    QCOMPARE(readability(catalogue, 4.5).failures, expected);
}

LUMAKIT_TEST_MAIN(tst_Themes)
#include "tst_themes.moc"
