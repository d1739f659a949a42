#pragma once

#include "WColorSet.h"

#include <QColor>
#include <QJsonObject>
#include <QString>

#include <string>
#include <unordered_map>

/// Reads the host's theme files and answers for the colour sets of the running application.
///
/// Nothing throws: a broken file logs a warning and counts as empty.
namespace WThemeUtils {

/// The top-level object of a JSON file; empty, without a message, when the file is missing or holds no object.
LUMAKITQML_EXPORT QJsonObject readJsonObject(const QString &path);

/// The palette of named colours in a file like ":/Themes/colors.json". One bad entry empties the palette.
LUMAKITQML_EXPORT std::unordered_map<std::string, QColor> parseWColorsFromJson(const QString &path);
LUMAKITQML_EXPORT std::unordered_map<std::string, QColor> parseWColorsFromJson(const QJsonObject &json);

/// The colour sets of a token file. With an empty palette colours are read as rgba objects, else as palette names.
/// One token without a usable normal colour empties the result.
LUMAKITQML_EXPORT std::unordered_map<std::string, WColorSet> parseWColorSetsFromJson(
    const QString &path, const std::unordered_map<std::string, QColor> &colors);
LUMAKITQML_EXPORT std::unordered_map<std::string, WColorSet> parseWColorSetsFromJson(
    const QJsonObject &json, const std::unordered_map<std::string, QColor> &colors);

/// All colour sets of a theme mode: ":/Themes/meridian_<mode>.json", then what ":/Themes/<mode>.json" adds, then the
/// built-in "transparent" (also found as "#00000000").
LUMAKITQML_EXPORT std::unordered_map<std::string, WColorSet> loadTheme(const QString &themeName);

/// The running application's colour sets; empty without an IWApplication.
LUMAKITQML_EXPORT const std::unordered_map<std::string, WColorSet> &getAppWColorSets();

/// One of the application's colour sets. An unknown name logs a warning; it and an empty name give an invalid set.
LUMAKITQML_EXPORT WColorSet getColorSet(const std::string &name);
/// The same, by a look-up that needs no other form of the name.
LUMAKITQML_EXPORT WColorSet findColorSet(const QString &name);

/// The name of a colour-set token, 0 to 641 in ASCII order of the names; empty outside.
LUMAKITQML_EXPORT QString colorSetTokenName(int identifier);

/// The identifier of a colour-set token name; -1 for any other name.
LUMAKITQML_EXPORT int colorSetTokenIdentifier(QStringView name);

} // namespace WThemeUtils
