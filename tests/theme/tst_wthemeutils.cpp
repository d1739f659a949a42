#include <TestCase.h>
#include <WThemeUtils.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <limits>

using namespace Qt::StringLiterals;

using Palette = QMap<QString, QColor>;
using Files = QMap<QString, QByteArray>;

namespace {

std::unordered_map<std::string, QColor> nativePalette(const Palette &palette)
{
    std::unordered_map<std::string, QColor> result;
    for (const auto &[name, color] : palette.asKeyValueRange())
        result.emplace(name.toStdString(), color);
    return result;
}

Palette sorted(const std::unordered_map<std::string, QColor> &palette)
{
    Palette result;
    for (const auto &[name, color] : palette)
        result.insert(QString::fromStdString(name), color);
    return result;
}

/// A catalogue as text: key -> "name normal hovered pressed disabled focused checked", or one colour for six equal
/// ones; colours as #aarrggbb.
QMap<QString, QString> described(const std::unordered_map<std::string, WColorSet> &colorSets)
{
    QMap<QString, QString> result;
    for (const auto &[key, set] : colorSets) {
        QStringList colors;
        for (const QColor &color : {set.normal, set.hovered, set.pressed, set.disabled, set.focused, set.checked})
            colors << color.name(QColor::HexArgb);
        if (colors.count(colors.first()) == colors.size())
            colors = {colors.first()};
        result.insert(QString::fromStdString(key), set.name + u' ' + colors.join(u' '));
    }
    return result;
}

const QMap<QString, QString> BuiltIn{{u"transparent"_s, u"transparent #00000000"_s},
                                     {u"#00000000"_s, u"transparent #00000000"_s}};

QMap<QString, QString> withBuiltIn(QMap<QString, QString> sets)
{
    for (const auto &[key, set] : BuiltIn.asKeyValueRange()) {
        if (!sets.contains(key))
            sets.insert(key, set);
    }
    return sets;
}

QByteArray nested(qsizetype depth)
{
    return R"({"a":)" + QByteArray(depth, '[') + QByteArray(depth, ']') + '}';
}

const QString NoTokens = u"Could not find the 'tokens' object in the json file"_s;

QString badToken(const QString &name)
{
    return u"Unable to parse ColorSet: \"%1\""_s.arg(name);
}

QString badColor(const QString &name)
{
    return u"Invalid color for:  \"%1\""_s.arg(name);
}

QString badAlias(const QString &name)
{
    return u"Unable to parse colors.json! The color:  \"%1\" doesn't exist!"_s.arg(name);
}

constexpr auto Red = R"({"r":255,"g":0,"b":0,"a":1})";
constexpr auto Green = R"({"r":0,"g":128,"b":0,"a":1})";

/// Replaces $red and $green.
QByteArray json(QByteArray text)
{
    return text.replace("$red", Red).replace("$green", Green);
}

QJsonObject object(const QByteArray &text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json(text), &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("not JSON: %s", text.constData());
    return document.object();
}

} // namespace

class tst_WThemeUtils : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void memoryResources();

    void readJsonObject_data();
    void readJsonObject();
    void readJsonObjectFromDisk();
    void readTruncated();

    void rgba_data();
    void rgba();
    void palette_data();
    void palette();
    void paletteFromFile();
    void tokens_data();
    void tokens();
    void tokensFromFile();
    void everyTokenAndState();

    void loadTheme_data();
    void loadTheme();
    void loadThemeAgain();
    void loadThemeStaysInResources();
    void loadHugeTheme();

    void applicationSets();
    void colorSet_data();
    void colorSet();

    void tokenNames();
    void tokenFamilies();
    void tokenOutside_data();
    void tokenOutside();
    void unknownTokenName_data();
    void unknownTokenName();
};

void tst_WThemeUtils::memoryResources()
{
    {
        MemoryResources resources({{u"/Themes/a.json"_s, "one"}, {u"/Themes/b.json"_s, "two"}, {u"/c"_s, "three"}});
        QFile file(u":/Themes/b.json"_s);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "two");
        QVERIFY(QFile::exists(u":/c"_s));
        QVERIFY(QFile::exists(u":/Themes/a.json"_s));
    }
    QVERIFY(!QFile::exists(u":/c"_s));
}

void tst_WThemeUtils::readJsonObject_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QJsonObject>("expected");
    const QJsonObject one{{u"a"_s, 1}};
    QTest::newRow("object") << QByteArray(R"({"a":1})") << one;
    QTest::newRow("empty object") << QByteArray("{}") << QJsonObject();
    QTest::newRow("space around") << QByteArray(" \n\t{\"a\" : 1 }\r\n ") << one;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf{\"a\":1}") << one;
    QTest::newRow("duplicate key: the last") << QByteArray(R"({"a":2,"a":1})") << one;
    QTest::newRow("empty file") << QByteArray("") << QJsonObject();
    QTest::newRow("spaces only") << QByteArray("  \n") << QJsonObject();
    QTest::newRow("array") << QByteArray(R"([{"a":1}])") << QJsonObject();
    QTest::newRow("string") << QByteArray(R"("a")") << QJsonObject();
    QTest::newRow("number") << QByteArray("1") << QJsonObject();
    QTest::newRow("null") << QByteArray("null") << QJsonObject();
    QTest::newRow("truncated") << QByteArray(R"({"a":1)") << QJsonObject();
    QTest::newRow("something behind") << QByteArray(R"({"a":1}x)") << QJsonObject();
    QTest::newRow("two objects") << QByteArray(R"({"a":1}{"a":1})") << QJsonObject();
    QTest::newRow("trailing comma") << QByteArray(R"({"a":1,})") << QJsonObject();
    QTest::newRow("comment") << QByteArray("/**/{\"a\":1}") << QJsonObject();
    QTest::newRow("single quotes") << QByteArray("{'a':1}") << QJsonObject();
    QTest::newRow("broken UTF-8") << QByteArray("{\"a\":\"\xff\xfe\"}") << QJsonObject();
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe{\0\"\0a\0\"\0:\0001\0}\0", 16) << QJsonObject();
    QTest::newRow("zero bytes") << QByteArray(4096, '\0') << QJsonObject();
    QTest::newRow("not text") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << QJsonObject();
    QTest::newRow("nested too deep") << nested(2000) << QJsonObject();
    QTest::newRow("nested a million times") << nested(1000 * 1000) << QJsonObject();
    QTest::newRow("4 MB of spaces") << QByteArray(4 * 1024 * 1024, ' ') + R"({"a":1})" << one;
    QTest::newRow("4 MB, not closed") << "{\"a\":\"" + QByteArray(4 * 1024 * 1024, 'x') << QJsonObject();
}

void tst_WThemeUtils::readJsonObject()
{
    QFETCH(QByteArray, content);
    QFETCH(QJsonObject, expected);
    const MemoryResources resources({{u"/Themes/x.json"_s, content}});
    QCOMPARE(WThemeUtils::readJsonObject(u":/Themes/x.json"_s), expected);
    // And what is made of it says no more than the messages of an empty object.
    if (expected.isEmpty()) {
        LogRecorder log;
        QVERIFY(WThemeUtils::parseWColorsFromJson(u":/Themes/x.json"_s).empty());
        QVERIFY(WThemeUtils::parseWColorSetsFromJson(u":/Themes/x.json"_s, {}).empty());
        QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, NoTokens}}));
    }
}

void tst_WThemeUtils::readJsonObjectFromDisk()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"theme \u00e4.json"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"a":{"b":[1,2]}})");
    file.close();
    QCOMPARE(WThemeUtils::readJsonObject(path), (QJsonObject{{u"a"_s, QJsonObject{{u"b"_s, QJsonArray{1, 2}}}}}));

    QCOMPARE(WThemeUtils::readJsonObject(folder.filePath(u"missing.json"_s)), QJsonObject());
    QCOMPARE(WThemeUtils::readJsonObject(folder.path()), QJsonObject());
    QCOMPARE(WThemeUtils::readJsonObject(u":/Themes"_s), QJsonObject());
    QCOMPARE(WThemeUtils::readJsonObject(u":/Themes/missing.json"_s), QJsonObject());
    QCOMPARE(WThemeUtils::readJsonObject(u""_s), QJsonObject());
    QCOMPARE(WThemeUtils::readJsonObject(QString()), QJsonObject());
    QCOMPARE(WThemeUtils::readJsonObject(QString(100'000, u'x')), QJsonObject());
}

void tst_WThemeUtils::readTruncated()
{
    const QByteArray whole = json(R"({"tokens":{"a":{"normal":$red,"hovered":$green},"b":{"normal":$green}}})");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const MemoryResources resources({{u"/Themes/x.json"_s, whole.first(length)}});
        LogRecorder log;
        QVERIFY(WThemeUtils::parseWColorSetsFromJson(u":/Themes/x.json"_s, {}).empty());
        QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, NoTokens}}));
    }
}

void tst_WThemeUtils::rgba_data()
{
    QTest::addColumn<QByteArray>("rgba");
    QTest::addColumn<QColor>("color");
    const auto row = [](const char *name, const QByteArray &rgba, const QColor &color) {
        QTest::newRow(name) << rgba << color;
    };
    row("red", R"({"r":255,"g":0,"b":0,"a":1})", QColor(255, 0, 0, 255));
    row("each its own", R"({"r":1,"g":2,"b":3,"a":0.5})", QColor(1, 2, 3, 127));
    row("other keys", R"({"r":1,"g":2,"b":3,"a":1,"h":7,"hex":"#fff"})", QColor(1, 2, 3));

    const auto alpha = [&row](const char *value, int expected) {
        row(("alpha " + QByteArray(value)).constData(), "{\"r\":1,\"g\":2,\"b\":3,\"a\":" + QByteArray(value) + '}',
            expected < 0 ? QColor() : QColor(1, 2, 3, expected));
    };
    alpha("0", 0);
    alpha("-0.0", 0);
    alpha("1", 255);
    alpha("1.0", 255);
    alpha("0.5", 127);
    alpha("0.1", 25);
    alpha("0.2", 51);
    alpha("0.3", 76);
    alpha("0.9", 229);
    alpha("0.999", 254);
    alpha("0.99999999", 254); // in single precision it would be 255
    alpha("1e-300", 0);
    alpha("0.0039", 0);
    alpha("0.004", 1);
    alpha("1.0039", 255);
    alpha("1.004", -1);
    alpha("1.1", -1);
    alpha("2", -1);
    alpha("255", -1);
    alpha("-0.0039", 0);
    alpha("-0.004", -1);
    alpha("-1", -1);
    alpha("1e300", -1);
    alpha("-1e300", -1);
    alpha("16843009.5", -1); // times 255 it does not fit a 32-bit integer
    alpha("\"0.5\"", -1);
    alpha("null", -1);
    alpha("true", -1);
    alpha("[1]", -1);
    alpha("{}", -1);
    row("no alpha", R"({"r":1,"g":2,"b":3})", QColor());
    row("alpha under another key", R"({"r":1,"g":2,"b":3,"A":1})", QColor());

    for (const char channel : {'r', 'g', 'b'}) {
        const auto component = [&](const char *value, int expected) {
            QByteArray rgba = R"({"r":10,"g":20,"b":30,"a":1})";
            rgba.replace(QByteArray(1, channel) + "\":"
                             + (channel == 'r'       ? "10"
                                    : channel == 'g' ? "20"
                                                     : "30"),
                         QByteArray(1, channel) + "\":" + value);
            QColor color(10, 20, 30);
            if (expected < 0)
                color = QColor();
            else if (channel == 'r')
                color.setRed(expected);
            else if (channel == 'g')
                color.setGreen(expected);
            else
                color.setBlue(expected);
            row((QByteArray(1, channel) + ' ' + value).constData(), rgba, color);
        };
        component("0", 0);
        component("255", 255);
        component("12.0", 12);
        component("1.2e1", 12);
        component("-0", 0);
        component("256", -1);
        component("-1", -1);
        component("127.5", -1);
        component("0.5", -1);
        component("65536", -1);
        component("2147483648", -1);
        component("4294967301", -1);
        component("-4294967291", -1);
        component("1e300", -1);
        component("-1e300", -1);
        component("\"255\"", -1);
        component("\"0xff\"", -1);
        component("null", -1);
        component("true", -1);
        component("[255]", -1);
    }
    row("no red", R"({"g":2,"b":3,"a":1})", QColor());
    row("no green", R"({"r":1,"b":3,"a":1})", QColor());
    row("no blue", R"({"r":1,"g":2,"a":1})", QColor());
    row("empty", "{}", QColor());
    row("a string", R"("#ff0000")", QColor());
    row("an array", "[255,0,0,1]", QColor());
    row("a number", "4278190080", QColor());
    row("null", "null", QColor());
    row("inside another", R"({"rgba":{"r":1,"g":2,"b":3,"a":1}})", QColor());
}

void tst_WThemeUtils::rgba()
{
    QFETCH(QByteArray, rgba);
    QFETCH(QColor, color);
    const bool valid = color.isValid();
    {
        const auto json = object(R"({"colors":[{"variations":[{"name":"c","rgba":)" + rgba + "}]}]}");
        LogRecorder log;
        QCOMPARE(sorted(WThemeUtils::parseWColorsFromJson(json)), valid ? Palette({{u"c"_s, color}}) : Palette());
        QCOMPARE(log.texts(), valid ? QStringList() : QStringList{badColor(u"c"_s)});
    }
    {
        const auto json = object(R"({"tokens":{"t":{"normal":)" + rgba + "}}}");
        LogRecorder log;
        const auto sets = WThemeUtils::parseWColorSetsFromJson(json, {});
        QCOMPARE(sets.size(), valid ? 1U : 0U);
        if (valid)
            QCOMPARE(sets.at("t"), WColorSet(u"t"_s, color));
        QCOMPARE(log.texts(), valid ? QStringList() : QStringList{badToken(u"t"_s)});
    }
    {
        const auto json = object(R"({"tokens":{"t":{"normal":$green,"checked":)" + rgba + "}}}");
        const auto sets = WThemeUtils::parseWColorSetsFromJson(json, {});
        QCOMPARE(sets.size(), 1U);
        QCOMPARE(sets.at("t").checked, valid ? color : QColor(0, 128, 0));
        QCOMPARE(sets.at("t").focused, QColor(0, 128, 0));
    }
}

void tst_WThemeUtils::palette_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Palette>("expected");
    QTest::addColumn<QStringList>("messages");
    const QColor red(255, 0, 0);
    const QColor green(0, 128, 0);
    const auto row = [](const char *name, const char *text, const Palette &expected, const QStringList &messages = {}) {
        QTest::newRow(name) << QByteArray(text) << expected << messages;
    };
    row("nothing", "{}", {});
    row("no groups", R"({"colors":[]})", {});
    row("colors is an object", R"({"colors":{"variations":[{"name":"a","rgba":$red}]}})", {});
    row("colors is a string", R"({"colors":"red"})", {});
    row("one", R"({"colors":[{"variations":[{"name":"a","rgba":$red}]}]})", {{u"a"_s, red}});
    row("other keys", R"({"x":1,"colors":[{"group":"g","variations":[{"name":"a","rgba":$red,"hex":"#0f0"}]}]})",
        {{u"a"_s, red}});
    row("two groups",
        R"({"colors":[{"variations":[{"name":"a","rgba":$red}]},{"variations":[{"name":"b","rgba":$green}]}]})",
        {{u"a"_s, red}, {u"b"_s, green}});
    row("not ASCII", R"({"colors":[{"variations":[{"name":"gr\u00fcn-\ud83c\udf3f","rgba":$green}]}]})",
        {{u"gr\u00fcn-\U0001f33f"_s, green}});
    row("a name with a zero", R"({"colors":[{"variations":[{"name":"a\u0000b","rgba":$red}]}]})", {{u"a\0b"_s, red}});
    row("group without variations", R"({"colors":[{},{"variations":[{"name":"a","rgba":$red}]}]})", {{u"a"_s, red}});
    row("group that is no object", R"({"colors":[1,"x",null,{"variations":[{"name":"a","rgba":$red}]}]})",
        {{u"a"_s, red}});
    row("variations is an object", R"({"colors":[{"variations":{"name":"a","rgba":$red}}]})", {});
    row("empty name", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"","rgba":$red}]}]})", {});
    row("no name", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"rgba":$red}]}]})", {});
    row("name is a number", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":1,"rgba":$red}]}]})", {});
    row("entry is no object", R"({"colors":[{"variations":[{"name":"a","rgba":$red},7]}]})", {});
    row("empty name of an alias", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"","alias":"a"}]}]})",
        {});
    row("no rgba", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"b"}]}]})", {}, {badColor(u"b"_s)});
    row("only the first bad one is reported",
        R"({"colors":[{"variations":[{"name":"z"},{"name":"a"}]},{"variations":[{"name":""}]}]})", {},
        {badColor(u"z"_s)});
    row("the empty name comes first", R"({"colors":[{"variations":[{"name":""},{"name":"a"}]}]})", {});
    row("duplicate name: the first",
        R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"a","rgba":$green}]}]})", {{u"a"_s, red}});

    row("alias", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"b","alias":"a"}]}]})",
        {{u"a"_s, red}, {u"b"_s, red}});
    row("alias of a later colour", R"({"colors":[{"variations":[{"name":"b","alias":"a"},{"name":"a","rgba":$red}]}]})",
        {{u"a"_s, red}, {u"b"_s, red}});
    row("alias of a colour in a later group",
        R"({"colors":[{"variations":[{"name":"b","alias":"a"}]},{"variations":[{"name":"a","rgba":$red}]}]})",
        {{u"a"_s, red}, {u"b"_s, red}});
    row("alias of an earlier alias",
        R"({"colors":[{"variations":[{"name":"b","alias":"a"},{"name":"c","alias":"b"},{"name":"a","rgba":$red}]}]})",
        {{u"a"_s, red}, {u"b"_s, red}, {u"c"_s, red}});
    row("alias of a later alias",
        R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"c","alias":"b"},{"name":"b","alias":"a"}]}]})",
        {}, {badAlias(u"b"_s)});
    row("alias of itself", R"({"colors":[{"variations":[{"name":"a","alias":"a"}]}]})", {}, {badAlias(u"a"_s)});
    row("two aliases of each other",
        R"({"colors":[{"variations":[{"name":"a","alias":"b"},{"name":"b","alias":"a"}]}]})", {}, {badAlias(u"b"_s)});
    row("alias of nothing", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"b","alias":"x"}]}]})", {},
        {badAlias(u"x"_s)});
    row("alias in another case", R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"b","alias":"A"}]}]})",
        {}, {badAlias(u"A"_s)});
    row("alias with a broken rgba",
        R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"b","alias":"a","rgba":"x"}]}]})",
        {{u"a"_s, red}, {u"b"_s, red}});
    row("alias with another rgba",
        R"({"colors":[{"variations":[{"name":"a","rgba":$red},{"name":"b","alias":"a","rgba":$green}]}]})",
        {{u"a"_s, red}, {u"b"_s, red}});
    row("empty alias", R"({"colors":[{"variations":[{"name":"a","alias":"","rgba":$red}]}]})", {{u"a"_s, red}});
    row("alias is a number", R"({"colors":[{"variations":[{"name":"a","alias":1,"rgba":$red}]}]})", {{u"a"_s, red}});
    row("alias is null, no rgba", R"({"colors":[{"variations":[{"name":"a","alias":null}]}]})", {}, {badColor(u"a"_s)});
    row("bad colour and bad alias", R"({"colors":[{"variations":[{"name":"b","alias":"x"},{"name":"a"}]}]})", {},
        {badColor(u"a"_s)});
    row("alias under the name of a colour",
        R"({"colors":[{"variations":[{"name":"a","alias":"b"},{"name":"a","rgba":$red},{"name":"b","rgba":$green}]}]})",
        {{u"a"_s, red}, {u"b"_s, green}});
}

void tst_WThemeUtils::palette()
{
    QFETCH(QByteArray, text);
    QFETCH(Palette, expected);
    QFETCH(QStringList, messages);
    LogRecorder log;
    QCOMPARE(sorted(WThemeUtils::parseWColorsFromJson(object(text))), expected);
    QCOMPARE(log.texts(), messages);
    QCOMPARE(log.warnings(), messages);
}

void tst_WThemeUtils::paletteFromFile()
{
    const MemoryResources resources(
        {{u"/p.json"_s, json(R"({"colors":[{"variations":[{"name":"a","rgba":$red}]}]})")}});
    QCOMPARE(sorted(WThemeUtils::parseWColorsFromJson(u":/p.json"_s)), Palette({{u"a"_s, QColor(255, 0, 0)}}));
    QCOMPARE(sorted(WThemeUtils::parseWColorsFromJson(u":/missing.json"_s)), Palette());
}

void tst_WThemeUtils::tokens_data()
{
    using Sets = QMap<QString, QString>;
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Palette>("palette");
    QTest::addColumn<Sets>("expected");
    QTest::addColumn<QStringList>("messages");
    const auto row = [](const char *name, const char *text, const Palette &palette, const Sets &expected,
                        const QStringList &messages = {}) {
        QTest::newRow(name) << QByteArray(text) << palette << expected << messages;
    };
    const Palette palette{{u"red"_s, QColor(255, 0, 0)},    {u"green"_s, QColor(0, 128, 0)},
                          {u"blue"_s, QColor(0, 0, 255)},   {u"grey"_s, QColor(9, 9, 9, 9)},
                          {u"broken"_s, QColor()},          {u""_s, QColor(1, 1, 1)},
                          {u"black"_s, QColor(0, 0, 0, 0)}, {u"white"_s, QColor(255, 255, 255)}};

    row("no tokens", "{}", {}, {}, {NoTokens});
    row("empty tokens", R"({"tokens":{}})", {}, {}, {NoTokens});
    row("tokens is an array", R"({"tokens":[{"a":{"normal":$red}}]})", {}, {}, {NoTokens});
    row("tokens is null", R"({"tokens":null})", {}, {}, {NoTokens});
    row("tokens in another case", R"({"Tokens":{"a":{"normal":$red}}})", {}, {}, {NoTokens});
    row("no tokens, with a palette", "{}", palette, {}, {NoTokens});

    row("rgba: only normal", R"({"tokens":{"a":{"normal":$red}}})", {}, {{u"a"_s, u"a #ffff0000"_s}});
    row("rgba: other states",
        R"({"tokens":{"a":{"normal":$red,"hovered":$green,"focused":{"r":1,"g":2,"b":3,"a":0.5},"other":1}}})", {},
        {{u"a"_s, u"a #ffff0000 #ff008000 #ffff0000 #ffff0000 #7f010203 #ffff0000"_s}});
    row("rgba: all states",
        R"({"tokens":{"a":{"normal":{"r":1,"g":0,"b":0,"a":1},"hovered":{"r":2,"g":0,"b":0,"a":1},
            "pressed":{"r":3,"g":0,"b":0,"a":1},"disabled":{"r":4,"g":0,"b":0,"a":1},
            "focused":{"r":5,"g":0,"b":0,"a":1},"checked":{"r":6,"g":0,"b":0,"a":1}}}})",
        {}, {{u"a"_s, u"a #ff010000 #ff020000 #ff030000 #ff040000 #ff050000 #ff060000"_s}});
    row("rgba: a palette name", R"({"tokens":{"a":{"normal":"red"}}})", {}, {}, {badToken(u"a"_s)});
    row("rgba: a palette name for another state", R"({"tokens":{"a":{"normal":$red,"hovered":"green"}}})", {},
        {{u"a"_s, u"a #ffff0000"_s}});
    row("rgba: no normal", R"({"tokens":{"a":{"hovered":$red}}})", {}, {}, {badToken(u"a"_s)});
    row("rgba: normal is invalid", R"({"tokens":{"a":{"normal":{"r":256,"g":0,"b":0,"a":1},"hovered":$red}}})", {}, {},
        {badToken(u"a"_s)});
    row("rgba: state names are exact", R"({"tokens":{"a":{"normal":$red,"Hovered":$green,"hover":$green}}})", {},
        {{u"a"_s, u"a #ffff0000"_s}});

    row("names: only normal", R"({"tokens":{"a":{"normal":"red"}}})", palette, {{u"a"_s, u"a #ffff0000"_s}});
    row("names: all states",
        R"({"tokens":{"a":{"normal":"red","hovered":"green","pressed":"blue","disabled":"grey","focused":"black",
            "checked":"white"}}})",
        palette, {{u"a"_s, u"a #ffff0000 #ff008000 #ff0000ff #09090909 #00000000 #ffffffff"_s}});
    row("names: unknown state colour", R"({"tokens":{"a":{"normal":"red","hovered":"nope","checked":"green"}}})",
        palette, {{u"a"_s, u"a #ffff0000 #ffff0000 #ffff0000 #ffff0000 #ffff0000 #ff008000"_s}});
    row("names: another case", R"({"tokens":{"a":{"normal":"red","hovered":"Green"}}})", palette,
        {{u"a"_s, u"a #ffff0000"_s}});
    row("names: states that are no strings",
        R"({"tokens":{"a":{"normal":"red","hovered":$green,"pressed":1,"disabled":null,
            "focused":true,"checked":["green"]}}})",
        palette, {{u"a"_s, u"a #ffff0000"_s}});
    row("names: the empty name is a name", R"({"tokens":{"a":{"normal":"red","hovered":""}}})", palette,
        {{u"a"_s, u"a #ffff0000 #ff010101 #ffff0000 #ffff0000 #ffff0000 #ffff0000"_s}});
    row("names: unknown normal", R"({"tokens":{"a":{"normal":"nope","hovered":"red"}}})", palette, {},
        {badToken(u"a"_s)});
    row("names: no normal", R"({"tokens":{"a":{"hovered":"red"}}})", palette, {}, {badToken(u"a"_s)});
    row("names: normal is rgba", R"({"tokens":{"a":{"normal":$red}}})", palette, {}, {badToken(u"a"_s)});
    row("names: invalid known colour, normal", R"({"tokens":{"a":{"normal":"broken"}}})", palette, {},
        {badToken(u"a"_s)});
    row("names: invalid known colour, hovered", R"({"tokens":{"a":{"normal":"red","hovered":"broken"}}})", palette, {},
        {badToken(u"a"_s)});
    row("names: invalid known colour, checked", R"({"tokens":{"a":{"normal":"red","checked":"broken"}}})", palette, {},
        {badToken(u"a"_s)});

    row("two tokens", R"({"tokens":{"b":{"normal":$red},"a":{"normal":$green}}})", {},
        {{u"a"_s, u"a #ff008000"_s}, {u"b"_s, u"b #ffff0000"_s}});
    row("one bad token discards all", R"({"tokens":{"a":{"normal":$red},"b":{},"c":{"normal":$green}}})", {}, {},
        {badToken(u"b"_s)});
    row("the first in sorted order is reported", R"({"tokens":{"z":{},"b":{},"Y":{},"a":{"normal":$red}}})", {}, {},
        {badToken(u"Y"_s)});
    row("empty token name", R"({"tokens":{"":{"normal":$red},"a":{"normal":$red}}})", {}, {}, {badToken(u""_s)});
    row("token is a string", R"({"tokens":{"a":"red"}})", palette, {}, {badToken(u"a"_s)});
    row("token is an array", R"({"tokens":{"a":[$red]}})", {}, {}, {badToken(u"a"_s)});
    row("token is null", R"({"tokens":{"a":null}})", {}, {}, {badToken(u"a"_s)});
    row("duplicate token: the last", R"({"tokens":{"a":{"normal":$red},"a":{"normal":$green}}})", {},
        {{u"a"_s, u"a #ff008000"_s}});
    row("duplicate state: the last", R"({"tokens":{"a":{"normal":$red,"normal":$green}}})", {},
        {{u"a"_s, u"a #ff008000"_s}});
    row("duplicate state, the last is broken", R"({"tokens":{"a":{"normal":$red,"normal":1}}})", {}, {},
        {badToken(u"a"_s)});
    row("token name that is not ASCII", R"({"tokens":{"\u00fc-\ud83c\udf3f":{"normal":$red}}})", {},
        {{u"\u00fc-\U0001f33f"_s, u"\u00fc-\U0001f33f #ffff0000"_s}});
    row("token name like a format", R"({"tokens":{"%1 %s\"":{"normal":$red}}})", {},
        {{u"%1 %s\""_s, u"%1 %s\" #ffff0000"_s}});
    row("other keys beside tokens", R"({"version":2,"tokens":{"a":{"normal":$red}},"colors":[]})", {},
        {{u"a"_s, u"a #ffff0000"_s}});
}

void tst_WThemeUtils::tokens()
{
    using Sets = QMap<QString, QString>;
    QFETCH(QByteArray, text);
    QFETCH(Palette, palette);
    QFETCH(Sets, expected);
    QFETCH(QStringList, messages);
    LogRecorder log;
    QCOMPARE(described(WThemeUtils::parseWColorSetsFromJson(object(text), nativePalette(palette))), expected);
    QCOMPARE(log.texts(), messages);
    QCOMPARE(log.warnings(), messages);
}

void tst_WThemeUtils::tokensFromFile()
{
    const MemoryResources resources({{u"/t.json"_s, json(R"({"tokens":{"a":{"normal":"red"}}})")}});
    const auto sets = WThemeUtils::parseWColorSetsFromJson(u":/t.json"_s, {{"red", QColor(255, 0, 0)}});
    QCOMPARE(described(sets), (QMap<QString, QString>{{u"a"_s, u"a #ffff0000"_s}}));

    LogRecorder log;
    QVERIFY(WThemeUtils::parseWColorSetsFromJson(u":/missing.json"_s, {}).empty());
    QCOMPARE(log.lines(), (QList<LogRecorder::Line>{{QtWarningMsg, NoTokens}}));
}

// All 642 tokens, six states each, every colour a different one.
void tst_WThemeUtils::everyTokenAndState()
{
    const QStringList states{u"normal"_s, u"hovered"_s, u"pressed"_s, u"disabled"_s, u"focused"_s, u"checked"_s};
    const auto color = [](int token, qsizetype state) { return QColor(token / 256, token % 256, int(state), 255); };
    QJsonObject tokens;
    for (int token = 0; token < 642; ++token) {
        QJsonObject object;
        for (qsizetype state = 0; state < states.size(); ++state) {
            const QColor c = color(token, state);
            object.insert(states[state],
                          QJsonObject{{u"r"_s, c.red()}, {u"g"_s, c.green()}, {u"b"_s, c.blue()}, {u"a"_s, 1}});
        }
        tokens.insert(WThemeUtils::colorSetTokenName(token), object);
    }
    const auto sets = WThemeUtils::parseWColorSetsFromJson(QJsonObject{{u"tokens"_s, tokens}}, {});
    QCOMPARE(sets.size(), 642U);
    for (int token = 0; token < 642; ++token) {
        const QString name = WThemeUtils::colorSetTokenName(token);
        QCOMPARE(sets.at(name.toStdString()),
                 WColorSet(name, color(token, 0), color(token, 1), color(token, 2), color(token, 3), color(token, 4),
                           color(token, 5)));
    }
}

void tst_WThemeUtils::loadTheme_data()
{
    using Sets = QMap<QString, QString>;
    QTest::addColumn<QString>("theme");
    QTest::addColumn<Files>("files");
    QTest::addColumn<Sets>("expected");
    QTest::addColumn<QStringList>("messages");
    const auto row = [](const char *name, const QString &theme, Files files, const Sets &expected,
                        const QStringList &messages = {}) {
        for (QByteArray &content : files)
            content = json(content);
        QTest::newRow(name) << theme << files << expected << messages;
    };
    const QString design = u"/Themes/meridian_dark.json"_s;
    const QString own = u"/Themes/dark.json"_s;
    const QString colors = u"/Themes/colors.json"_s;
    const QByteArray designTokens = R"({"tokens":{"a":{"normal":$red},"b":{"normal":$red}}})";
    const QByteArray ownTokens = R"({"tokens":{"b":{"normal":"p"},"c":{"normal":"p"}}})";
    const QByteArray palette = R"({"colors":[{"variations":[{"name":"p","rgba":$green}]}]})";
    const Sets designSets{{u"a"_s, u"a #ffff0000"_s}, {u"b"_s, u"b #ffff0000"_s}};
    const Sets ownSets{{u"b"_s, u"b #ff008000"_s}, {u"c"_s, u"c #ff008000"_s}};
    const Sets allSets{{u"a"_s, u"a #ffff0000"_s}, {u"b"_s, u"b #ffff0000"_s}, {u"c"_s, u"c #ff008000"_s}};
    const QString dark = u"dark"_s;

    row("no files", dark, {}, withBuiltIn({}), {NoTokens, NoTokens});
    row("all files", dark, {{design, designTokens}, {colors, palette}, {own, ownTokens}}, withBuiltIn(allSets));
    row("only the design system's", dark, {{design, designTokens}}, withBuiltIn(designSets), {NoTokens});
    row("only the application's, with a palette", dark, {{colors, palette}, {own, ownTokens}}, withBuiltIn(ownSets),
        {NoTokens});
    row("the application's without a palette", dark, {{design, designTokens}, {own, ownTokens}},
        withBuiltIn(designSets), {badToken(u"b"_s)});
    row("the application's without a palette, rgba", dark,
        {{design, designTokens}, {own, R"({"tokens":{"c":{"normal":$green}}})"}}, withBuiltIn(allSets));
    row("broken palette", dark,
        {{design, designTokens}, {colors, R"({"colors":[{"variations":[{"name":"p"}]}]})"}, {own, ownTokens}},
        withBuiltIn(designSets), {badColor(u"p"_s), badToken(u"b"_s)});
    row("broken palette, rgba", dark,
        {{design, designTokens},
         {colors, R"({"colors":[{"variations":[{"name":"p","alias":"x"}]}]})"},
         {own, R"({"tokens":{"c":{"normal":$green}}})"}},
        withBuiltIn(allSets), {badAlias(u"x"_s)});
    row("the design system's file is never read by names", dark,
        {{design, ownTokens}, {colors, palette}, {own, ownTokens}}, withBuiltIn(ownSets), {badToken(u"b"_s)});
    row("broken design system", dark, {{design, "{"}, {colors, palette}, {own, ownTokens}}, withBuiltIn(ownSets),
        {NoTokens});
    row("broken application file", dark,
        {{design, designTokens}, {colors, palette}, {own, R"({"tokens":{"c":{"normal":"p"},"d":{}}})"}},
        withBuiltIn(designSets), {badToken(u"d"_s)});
    row("everything broken", dark, {{design, "x"}, {colors, "x"}, {own, "x"}}, withBuiltIn({}), {NoTokens, NoTokens});
    row("the theme's own transparent", dark,
        {{design, R"({"tokens":{"transparent":{"normal":$red}}})"}, {colors, palette}, {own, ownTokens}},
        withBuiltIn(
            {{u"transparent"_s, u"transparent #ffff0000"_s}, {u"b"_s, u"b #ff008000"_s}, {u"c"_s, u"c #ff008000"_s}}));
    row("the application's own #00000000", dark,
        {{design, designTokens}, {own, R"({"tokens":{"#00000000":{"normal":$green}}})"}},
        withBuiltIn(
            {{u"#00000000"_s, u"#00000000 #ff008000"_s}, {u"a"_s, u"a #ffff0000"_s}, {u"b"_s, u"b #ffff0000"_s}}));

    row("another theme's files", u"light"_s, {{design, designTokens}, {colors, palette}, {own, ownTokens}},
        withBuiltIn({}), {NoTokens, NoTokens});
    row("another case", u"Dark"_s, {{design, designTokens}, {own, ownTokens}}, withBuiltIn({}), {NoTokens, NoTokens});
    row("empty theme", u""_s, {{u"/Themes/meridian_.json"_s, designTokens}}, withBuiltIn(designSets), {NoTokens});
    row("theme %1", u"%1"_s, {{u"/Themes/meridian_%1.json"_s, designTokens}}, withBuiltIn(designSets), {NoTokens});
    row("theme of several words", u"high contrast \u00e4"_s,
        {{u"/Themes/meridian_high contrast \u00e4.json"_s, designTokens}}, withBuiltIn(designSets), {NoTokens});
    row("theme in a folder", u"a/b"_s, {{u"/Themes/meridian_a/b.json"_s, designTokens}}, withBuiltIn(designSets),
        {NoTokens});
    row("theme with the extension", u"dark.json"_s, {{design, designTokens}}, withBuiltIn({}), {NoTokens, NoTokens});
    row("theme named like the palette", u"colors"_s, {{colors, palette}}, withBuiltIn({}), {NoTokens, NoTokens});
    row("theme with a zero", u"dark\0"_s, {{design, designTokens}}, withBuiltIn({}), {NoTokens, NoTokens});
    row("an absolute path", u"/etc/hostname"_s, {}, withBuiltIn({}), {NoTokens, NoTokens});
    row("a very long theme", QString(100'000, u'x'), {}, withBuiltIn({}), {NoTokens, NoTokens});
}

void tst_WThemeUtils::loadTheme()
{
    using Sets = QMap<QString, QString>;
    QFETCH(QString, theme);
    QFETCH(Files, files);
    QFETCH(Sets, expected);
    QFETCH(QStringList, messages);
    const MemoryResources resources(files);
    LogRecorder log;
    QCOMPARE(described(WThemeUtils::loadTheme(theme)), expected);
    QCOMPARE(log.texts(), messages);
    QCOMPARE(log.warnings(), messages);
}

// What is kept of a theme counts for the same files only.
void tst_WThemeUtils::loadThemeAgain()
{
    const Files whole{{u"/Themes/meridian_dark.json"_s, json(R"({"tokens":{"a":{"normal":$red}}})")},
                      {u"/Themes/colors.json"_s, json(R"({"colors":[{"variations":[{"name":"p","rgba":$green}]}]})")},
                      {u"/Themes/dark.json"_s, json(R"({"tokens":{"b":{"normal":"p"}}})")}};
    const Files others{{u"/Themes/meridian_dark.json"_s, json(R"({"tokens":{"a":{"normal":$green}}})")},
                       {u"/Themes/colors.json"_s, json(R"({"colors":[{"variations":[{"name":"p","rgba":$red}]}]})")},
                       {u"/Themes/dark.json"_s, json(R"({"tokens":{"c":{"normal":"p"}}})")}};
    const auto load = [](const Files &files) {
        const MemoryResources resources(files);
        LogRecorder log;
        const auto sets = described(WThemeUtils::loadTheme(u"dark"_s));
        return std::pair(sets, log.texts());
    };
    const auto first = load(whole);
    QCOMPARE(first.second, QStringList());
    QCOMPARE(load(whole), first);

    for (auto file = whole.begin(); file != whole.end(); ++file) {
        Files changed = whole;
        changed[file.key()] = others[file.key()];
        QVERIFY2(load(changed).first != first.first, qPrintable(file.key()));
        QCOMPARE(load(whole), first);

        Files missing = whole;
        missing.remove(file.key());
        const auto faulty = load(missing);
        QVERIFY(faulty.first != first.first);
        QCOMPARE(load(missing), faulty); // with the same messages again
        QCOMPARE(load(whole), first);
    }
}

void tst_WThemeUtils::loadThemeStaysInResources()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"secret.json"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(json(R"({"tokens":{"secret":{"normal":$red}}})"));
    file.close();
    const QString secret = folder.filePath(u"secret"_s);
    QCOMPARE(WThemeUtils::readJsonObject(file.fileName()).size(), 1); // it could be read by its path

    const MemoryResources resources({{u"/Themes/dark.json"_s, "{}"}});
    for (const QString &theme : {secret, u"/.."_s + secret, u".."_s + secret, u"../../../../../.."_s + secret,
                                 u"x/../.."_s + secret, u"../file:"_s + secret, u"dark.json/../../.."_s + secret}) {
        LogRecorder log;
        QCOMPARE(described(WThemeUtils::loadTheme(theme)), withBuiltIn({}));
        QCOMPARE(log.texts(), (QStringList{NoTokens, NoTokens}));
    }
}

void tst_WThemeUtils::loadHugeTheme()
{
    constexpr int Count = 20'000;
    QJsonObject tokens;
    QJsonArray variations;
    for (int i = 0; i < Count; ++i) {
        const QString name = QString::number(i);
        tokens.insert(u"token-with-a-name-that-is-not-short-"_s + name, QJsonObject{{u"normal"_s, name}});
        variations.append(
            QJsonObject{{u"name"_s, name},
                        {u"rgba"_s, QJsonObject{{u"r"_s, i % 256}, {u"g"_s, i / 256}, {u"b"_s, 7}, {u"a"_s, 1}}}});
    }
    const QByteArray own = QJsonDocument(QJsonObject{{u"tokens"_s, tokens}}).toJson();
    const QByteArray palette =
        QJsonDocument(QJsonObject{{u"colors"_s, QJsonArray{QJsonObject{{u"variations"_s, variations}}}}}).toJson();
    QCOMPARE_GT(own.size() + palette.size(), 4'000'000);
    const MemoryResources resources({{u"/Themes/huge.json"_s, own}, {u"/Themes/colors.json"_s, palette}});

    LogRecorder log;
    const auto sets = WThemeUtils::loadTheme(u"huge"_s);
    QCOMPARE(log.texts(), QStringList{NoTokens}); // there is no design system's file
    QCOMPARE(sets.size(), size_t(Count) + 2);
    QCOMPARE(sets.at("token-with-a-name-that-is-not-short-777").pressed, QColor(777 % 256, 777 / 256, 7));
    QCOMPARE(sets.at("token-with-a-name-that-is-not-short-19999").checked, QColor(19999 % 256, 19999 / 256, 7));
}

void tst_WThemeUtils::applicationSets()
{
    auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance());
    QCOMPARE(&WThemeUtils::getAppWColorSets(), &application->getColorSets());

    const MemoryResources resources({{u"/Themes/meridian_sets.json"_s, json(R"({"tokens":{"a":{"normal":$red}}})")},
                                     {u"/Themes/sets.json"_s, json(R"({"tokens":{"b":{"normal":$green}}})")}});
    {
        const LogRecorder log;
        application->setThemeMode(u"sets"_s);
    }
    QCOMPARE(&WThemeUtils::getAppWColorSets(), &application->getColorSets());
    QCOMPARE(described(WThemeUtils::getAppWColorSets()),
             withBuiltIn({{u"a"_s, u"a #ffff0000"_s}, {u"b"_s, u"b #ff008000"_s}}));
    {
        const LogRecorder log;
        application->setThemeMode(u"none"_s);
    }
    QCOMPARE(described(WThemeUtils::getAppWColorSets()), withBuiltIn({}));
}

void tst_WThemeUtils::colorSet_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<WColorSet>("expected");
    QTest::addColumn<QStringList>("messages");
    const WColorSet transparent(u"transparent"_s, Qt::transparent);
    const auto unknown = [](const char *name) {
        return QStringList{u"ColorSet name does not exist!  "_s + QString::fromUtf8(name)};
    };
    QTest::newRow("token") << QByteArray("a") << WColorSet(u"a"_s, QColor(255, 0, 0)) << QStringList();
    QTest::newRow("UTF-8") << QByteArray("\xc3\xbc") << WColorSet(u"\u00fc"_s, QColor(0, 128, 0)) << QStringList();
    QTest::newRow("transparent") << QByteArray("transparent") << transparent << QStringList();
    QTest::newRow("#00000000") << QByteArray("#00000000") << transparent << QStringList();
    QTest::newRow("empty") << QByteArray("") << WColorSet() << QStringList();
    QTest::newRow("unknown") << QByteArray("nope") << WColorSet() << unknown("\"nope\"");
    QTest::newRow("another case") << QByteArray("A") << WColorSet() << unknown("\"A\"");
    QTest::newRow("a space") << QByteArray(" ") << WColorSet() << unknown("\" \"");
    QTest::newRow("prefix with a zero") << QByteArray("a\0b", 3) << WColorSet() << unknown("\"a\\u0000b\"");
    QTest::newRow("like a format") << QByteArray("%1%s%n") << WColorSet() << unknown("\"%1%s%n\"");
    QTest::newRow("broken UTF-8") << QByteArray("\xff") << WColorSet() << unknown("\"\xef\xbf\xbd\"");
}

void tst_WThemeUtils::colorSet()
{
    QFETCH(QByteArray, name);
    QFETCH(WColorSet, expected);
    QFETCH(QStringList, messages);
    auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance());
    const MemoryResources resources(
        {{u"/Themes/meridian_one.json"_s, json(R"({"tokens":{"a":{"normal":$red},"\u00fc":{"normal":$green}}})")}});
    {
        const LogRecorder log;
        application->setThemeMode(u"one"_s);
    }
    {
        LogRecorder log;
        WColorSet set = WThemeUtils::getColorSet(name.toStdString());
        QCOMPARE(set, expected);
        QCOMPARE(log.texts(), messages);
        QCOMPARE(log.warnings(), messages);
        set.normal = Qt::white; // a copy
    }
    if (expected.isValid())
        QCOMPARE(WThemeUtils::getColorSet(name.toStdString()), expected);
    const LogRecorder log;
    application->setThemeMode(u"none"_s);
}

void tst_WThemeUtils::tokenNames()
{
    QFile file(QFINDTESTDATA("colorsettokens.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList names = QString::fromLatin1(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(names.size(), 642);
    for (int identifier = 0; identifier < 642; ++identifier) {
        QCOMPARE(WThemeUtils::colorSetTokenName(identifier), names[identifier]);
        QCOMPARE(WThemeUtils::colorSetTokenIdentifier(names[identifier]), identifier);
        if (identifier > 0)
            QCOMPARE_LT(names[identifier - 1].toLatin1(), names[identifier].toLatin1());
    }
}

void tst_WThemeUtils::tokenFamilies()
{
    const QMap<QString, int> expected{{u"alertbadge"_s, 10},
                                      {u"attachment"_s, 31},
                                      {u"avatar"_s, 33},
                                      {u"badge"_s, 12},
                                      {u"banner"_s, 10},
                                      {u"button"_s, 62},
                                      {u"cancelicon"_s, 1},
                                      {u"card"_s, 6},
                                      {u"chat"_s, 3},
                                      {u"checkbox"_s, 7},
                                      {u"chips"_s, 13},
                                      {u"closedcaption"_s, 12},
                                      {u"coachmarkteaching"_s, 10},
                                      {u"codeinput"_s, 6},
                                      {u"combobox"_s, 5},
                                      {u"compose"_s, 8},
                                      {u"content"_s, 13},
                                      {u"dualbutton"_s, 8},
                                      {u"global"_s, 1},
                                      {u"globalHeader"_s, 25},
                                      {u"hyperlink"_s, 3},
                                      {u"interactiveicon"_s, 10},
                                      {u"label"_s, 12},
                                      {u"list"_s, 2},
                                      {u"listitem"_s, 8},
                                      {u"meetingCardListItem"_s, 4},
                                      {u"meetingRecording"_s, 2},
                                      {u"meetingmarker"_s, 3},
                                      {u"menulistbackground"_s, 6},
                                      {u"message"_s, 12},
                                      {u"modal"_s, 6},
                                      {u"multilineChip"_s, 16},
                                      {u"navigation"_s, 2},
                                      {u"navigationtab"_s, 2},
                                      {u"notificationToast"_s, 3},
                                      {u"overlayFade"_s, 2},
                                      {u"panel"_s, 3},
                                      {u"participantListItem"_s, 2},
                                      {u"pickers"_s, 11},
                                      {u"popover"_s, 1},
                                      {u"radio"_s, 8},
                                      {u"reaction"_s, 4},
                                      {u"scheduledmeetingItem"_s, 1},
                                      {u"scrollbar"_s, 4},
                                      {u"search"_s, 4},
                                      {u"separator"_s, 2},
                                      {u"sharewindow"_s, 21},
                                      {u"shortcutinput"_s, 24},
                                      {u"spinner"_s, 6},
                                      {u"tab"_s, 15},
                                      {u"tag"_s, 36},
                                      {u"tags"_s, 36},
                                      {u"teamMarker"_s, 12},
                                      {u"textToast"_s, 3},
                                      {u"textinput"_s, 7},
                                      {u"theme"_s, 4},
                                      {u"toggle"_s, 6},
                                      {u"toggleButton"_s, 6},
                                      {u"toggleButtonAccent"_s, 4},
                                      {u"toggleButtonOverlay"_s, 6},
                                      {u"touchbar"_s, 24},
                                      {u"videoSupport"_s, 23}};
    QMap<QString, int> families;
    for (int identifier = 0; identifier < 642; ++identifier)
        ++families[WThemeUtils::colorSetTokenName(identifier).section(u'-', 0, 0)];
    QCOMPARE(families, expected);
}

void tst_WThemeUtils::tokenOutside_data()
{
    QTest::addColumn<int>("identifier");
    QTest::newRow("-1") << -1;
    QTest::newRow("642") << 642;
    QTest::newRow("65536 (0 in 16 bits)") << 65536;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_WThemeUtils::tokenOutside()
{
    QFETCH(int, identifier);
    QCOMPARE(WThemeUtils::colorSetTokenName(identifier), QString());
}

void tst_WThemeUtils::unknownTokenName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("before the first") << u"a"_s;
    QTest::newRow("behind the last") << u"zzz"_s;
    QTest::newRow("a prefix") << u"button-primary"_s;
    QTest::newRow("a name and more") << u"button-primary-text-x"_s;
    QTest::newRow("another case") << u"Button-primary-text"_s;
    QTest::newRow("not ASCII") << u"button-primary-t\u00e9xt"_s;
    QTest::newRow("built in, not a token") << u"transparent"_s;
}

void tst_WThemeUtils::unknownTokenName()
{
    QFETCH(QString, name);
    QCOMPARE(WThemeUtils::colorSetTokenIdentifier(name), -1);
}

LUMAKIT_TEST_MAIN(tst_WThemeUtils)
#include "tst_wthemeutils.moc"
