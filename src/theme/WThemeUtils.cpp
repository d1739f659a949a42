#include "WThemeUtils.h"

#include "ColorSetTokens.h"
#include "IWApplication.h"

#include <QDebug>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMutex>
#include <QResource>

#include <cmath>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QColor parseRgba(const QJsonObject &rgba)
{
    // A fractional or missing alpha is judged after truncation, so that -0.001 is 0 and 1.001 is 255.
    const double alpha = std::trunc(rgba.value("a"_L1).toDouble(-1.0) * 255.0);
    if (!(alpha >= 0.0 && alpha <= 255.0))
        return {};
    return QColor(rgba.value("r"_L1).toInt(-1), rgba.value("g"_L1).toInt(-1), rgba.value("b"_L1).toInt(-1), int(alpha));
}

QColor resolveColor(const QJsonValue &value, const std::unordered_map<std::string, QColor> &colors,
                    const QColor &fallback)
{
    if (value.isUndefined())
        return fallback;
    if (colors.empty()) {
        const QColor color = parseRgba(value.toObject());
        return color.isValid() ? color : fallback;
    }
    const auto entry = value.isString() ? colors.find(value.toString().toStdString()) : colors.end();
    return entry != colors.end() ? entry->second : fallback;
}

// A theme as it was read last: going back to one is common, and its files seldom change.
struct ReadTheme
{
    QList<QByteArray> files;
    std::unordered_map<std::string, WColorSet> colorSets;
};

// As they stand in the resources, most likely compressed.
QByteArray storedBytes(const QString &path)
{
    const QResource resource(path);
    return {reinterpret_cast<const char *>(resource.data()), qsizetype(resource.size())};
}

} // namespace

QJsonObject WThemeUtils::readJsonObject(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

std::unordered_map<std::string, QColor> WThemeUtils::parseWColorsFromJson(const QString &path)
{
    return parseWColorsFromJson(readJsonObject(path));
}

std::unordered_map<std::string, QColor> WThemeUtils::parseWColorsFromJson(const QJsonObject &json)
{
    const QJsonArray groups = json.value("colors"_L1).toArray();
    std::unordered_map<std::string, QColor> palette;
    palette.reserve(size_t(groups.size()));
    std::vector<std::pair<std::string, QString>> aliases;

    for (const QJsonValue group : groups) {
        const QJsonArray variations = group.toObject().value("variations"_L1).toArray();
        for (const QJsonValue variation : variations) {
            const QJsonObject entry = variation.toObject();
            const QString name = entry.value("name"_L1).toString();
            if (name.isEmpty())
                return {};
            const QString alias = entry.value("alias"_L1).toString();
            if (!alias.isEmpty()) {
                aliases.emplace_back(name.toStdString(), alias);
                continue;
            }
            const QColor color = parseRgba(entry.value("rgba"_L1).toObject());
            if (!color.isValid()) {
                qWarning() << "Invalid color for: " << name;
                return {};
            }
            palette.emplace(name.toStdString(), color);
        }
    }

    for (auto &[name, alias] : aliases) {
        const auto target = palette.find(alias.toStdString());
        if (target == palette.end()) {
            qWarning() << "Unable to parse colors.json! The color: " << alias << "doesn't exist!";
            return {};
        }
        palette.emplace(std::move(name), QColor(target->second));
    }
    return palette;
}

std::unordered_map<std::string, WColorSet> WThemeUtils::parseWColorSetsFromJson(
    const QString &path, const std::unordered_map<std::string, QColor> &colors)
{
    return parseWColorSetsFromJson(readJsonObject(path), colors);
}

std::unordered_map<std::string, WColorSet> WThemeUtils::parseWColorSetsFromJson(
    const QJsonObject &json, const std::unordered_map<std::string, QColor> &colors)
{
    const QJsonObject tokens = json.value("tokens"_L1).toObject();
    if (tokens.isEmpty()) {
        qWarning() << "Could not find the 'tokens' object in the json file";
        return {};
    }

    std::unordered_map<std::string, WColorSet> colorSets;
    colorSets.reserve(size_t(tokens.size()));
    for (auto token = tokens.begin(); token != tokens.end(); ++token) {
        const QJsonObject states = token.value().toObject();
        const QColor normal = resolveColor(states.value("normal"_L1), colors, QColor());
        const auto stateColor = [&](QLatin1StringView state) {
            return resolveColor(states.value(state), colors, normal);
        };
        WColorSet colorSet(token.key(), normal, stateColor("hovered"_L1), stateColor("pressed"_L1),
                           stateColor("disabled"_L1), stateColor("focused"_L1), stateColor("checked"_L1));
        if (!colorSet.isValid()) {
            qWarning() << "Unable to parse ColorSet:" << token.key();
            return {};
        }
        colorSets.emplace(token.key().toStdString(), std::move(colorSet));
    }
    return colorSets;
}

std::unordered_map<std::string, WColorSet> WThemeUtils::loadTheme(const QString &themeName)
{
    static QMutex mutex;
    static QHash<QString, ReadTheme> readThemes;
    const QMutexLocker lock(&mutex);

    const QString tokensPath = u":/Themes/meridian_%1.json"_s.arg(themeName);
    const QString palettePath = u":/Themes/colors.json"_s;
    const QString ownTokensPath = u":/Themes/%1.json"_s.arg(themeName);
    const QList<QByteArray> files = {storedBytes(tokensPath), storedBytes(palettePath), storedBytes(ownTokensPath)};
    const auto known = readThemes.constFind(themeName);
    if (known != readThemes.cend() && known->files == files)
        return known->colorSets;

    auto colorSets = parseWColorSetsFromJson(tokensPath, {});
    const auto palette = parseWColorsFromJson(palettePath);
    auto ownColorSets = parseWColorSetsFromJson(ownTokensPath, palette);
    const bool isWhole = !colorSets.empty() && !palette.empty() && !ownColorSets.empty();
    colorSets.merge(ownColorSets);

    const WColorSet transparent(u"transparent"_s, QColor(Qt::transparent));
    colorSets.emplace("transparent", transparent);
    colorSets.emplace("#00000000", transparent);
    if (isWhole) // otherwise it has something to report each time
        readThemes.insert(themeName, {files, colorSets});
    return colorSets;
}

const std::unordered_map<std::string, WColorSet> &WThemeUtils::getAppWColorSets()
{
    if (const auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance()))
        return application->getColorSets();
    static const std::unordered_map<std::string, WColorSet> none;
    return none;
}

WColorSet WThemeUtils::getColorSet(const std::string &name)
{
    if (name.empty())
        return {};
    const auto &colorSets = getAppWColorSets();
    const auto entry = colorSets.find(name);
    if (entry == colorSets.end()) {
        qWarning() << "ColorSet name does not exist! " << QString::fromStdString(name);
        return {};
    }
    return entry->second;
}

WColorSet WThemeUtils::findColorSet(const QString &name)
{
    if (const auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance()))
        return application->getColorSet(name);
    return getColorSet(name.toStdString());
}

QString WThemeUtils::colorSetTokenName(int identifier)
{
    if (identifier < 0 || size_t(identifier) >= ColorSetTokens.size())
        return {};
    return ColorSetTokens[size_t(identifier)];
}

int WThemeUtils::colorSetTokenIdentifier(QStringView name)
{
    const auto entry = std::lower_bound(ColorSetTokens.begin(), ColorSetTokens.end(), name);
    return entry != ColorSetTokens.end() && *entry == name ? int(entry - ColorSetTokens.begin()) : -1;
}
