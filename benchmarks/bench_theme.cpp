#include "BenchHost.h"
#include "Measurement.h"
#include "MemoryResources.h"

#include <WQmlEngine.h>
#include <WThemeUtils.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QQmlComponent>

#include <cstdlib>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QLatin1StringView, 6> States{"normal"_L1,   "hovered"_L1, "pressed"_L1,
                                                  "disabled"_L1, "focused"_L1, "checked"_L1};

// A theme as full as one can be: every token in both files with six colours each, and a palette of 200.
QMap<QString, QByteArray> fullTheme()
{
    const auto rgba = [](int i) {
        return QJsonObject{{u"r"_s, i % 256}, {u"g"_s, i * 7 % 256}, {u"b"_s, i * 13 % 256}, {u"a"_s, 0.8}};
    };
    QJsonArray groups;
    for (int group = 0; group < 20; ++group) {
        QJsonArray variations;
        for (int i = group * 10; i < group * 10 + 10; ++i)
            variations.append(QJsonObject{{u"name"_s, u"color-%1"_s.arg(i)}, {u"rgba"_s, rgba(i)}});
        groups.append(QJsonObject{{u"variations"_s, variations}});
    }
    QJsonObject designTokens;
    QJsonObject applicationTokens;
    for (int i = 0; !WThemeUtils::colorSetTokenName(i).isEmpty(); ++i) {
        QJsonObject colors;
        QJsonObject names;
        for (int state = 0; state < int(States.size()); ++state) {
            colors.insert(States[size_t(state)], rgba(i + state));
            names.insert(States[size_t(state)], u"color-%1"_s.arg((i + state) % 200));
        }
        designTokens.insert(WThemeUtils::colorSetTokenName(i), colors);
        applicationTokens.insert(WThemeUtils::colorSetTokenName(i), names);
    }
    const auto bytes = [](const QJsonObject &object) { return QJsonDocument(object).toJson(); };
    return {{u"/Themes/colors.json"_s, bytes({{u"colors"_s, groups}})},
            {u"/Themes/meridian_default.json"_s, bytes({{u"tokens"_s, designTokens}})},
            {u"/Themes/default.json"_s, bytes({{u"tokens"_s, applicationTokens}})}};
}

// What the loops count has to be right, or nothing was measured.
void expect(bool condition)
{
    if (!condition)
        qFatal("the benchmark did not do its work");
}

} // namespace

int main(int argc, char **argv)
{
    QMap<QString, QByteArray> files = fullTheme();
    auto resources = std::make_unique<MemoryResources>(files);
    const BenchSurroundings surroundings;
    BenchHost application(argc, argv);

    Measurement::printHead(u"Theme"_s);

    // What is known of a theme is not read again: in each round its files are others.
    const auto changeFiles = [&files, &resources] {
        files[u"/Themes/default.json"_s] += ' ';
        resources.reset();
        resources = std::make_unique<MemoryResources>(files);
    };
    Measurement::compare(
        u"loadTheme, full"_s,
        {u"loadTheme"_s, [] { expect(WThemeUtils::loadTheme(u"default"_s).size() == 644); }, changeFiles},
        {u"QJsonDocument::fromJson, the same bytes"_s,
         [&files] {
             for (const QByteArray &bytes : files)
                 expect(!QJsonDocument::fromJson(bytes).isEmpty());
         }},
        1.6);

    QHash<QString, WColorSet> peer;
    QStringList names;
    for (int i = 0; !WThemeUtils::colorSetTokenName(i).isEmpty(); ++i) {
        names.append(WThemeUtils::colorSetTokenName(i));
        peer.insert(names.last(), application.getColorSet(names.last()));
    }
    constexpr int Rounds = 200;
    const auto total = int(names.size()) * Rounds;
    const auto lookUpAll = [&](auto lookUp) {
        int valid = 0;
        for (int round = 0; round < Rounds; ++round) {
            for (const QString &name : std::as_const(names))
                valid += lookUp(name).normal.isValid() ? 1 : 0;
        }
        expect(valid == total);
    };
    Measurement::compare(
        u"colour-set look-up, C++"_s,
        {u"getColorSet"_s, [&] { lookUpAll([&](const QString &name) { return application.getColorSet(name); }); }},
        {u"QHash<QString, WColorSet>::value"_s,
         [&] { lookUpAll([&](const QString &name) { return peer.value(name); }); }},
        2.0, total);

    QQmlComponent component(application.getQmlEngine(), QUrl(u"qrc:/Qml/BenchLookUp.qml"_s));
    const std::unique_ptr<QObject> loops(component.create());
    if (!loops)
        qFatal("%s", qPrintable(component.errorString()));
    static constexpr int Calls = 100000;
    const auto run = [&loops](const char *function) {
        QMetaObject::invokeMethod(loops.get(), function, Q_ARG(int, Calls));
    };
    Measurement::compare(u"colour-set look-up, QML"_s, {u"App.getColorSet(name).normal"_s, [&] { run("lookUp"); }},
                         {u"an empty invokable"_s, [&] { run("callNothing"); }}, 2.5, Calls);
    expect(loops->property("sample").value<QColor>() == application.getColorSet(u"button-primary-background"_s).normal);
    expect(!loops->property("flag").toBool());
    return EXIT_SUCCESS;
}
