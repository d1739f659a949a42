#pragma once

#include <MemoryResources.h>
#include <WApplication.h>
#include <WThemeUtils.h>

#include <QColor>
#include <QJsonDocument>
#include <QJsonObject>

/// Two themes, "light" and "dark", in which every state of every colour set has a colour of its own.
class ButtonTheme
{
public:
    static inline const QStringList States{QStringLiteral("normal"),  QStringLiteral("hovered"),
                                           QStringLiteral("pressed"), QStringLiteral("disabled"),
                                           QStringLiteral("focused"), QStringLiteral("checked")};

    ButtonTheme() { use("light"); }

    static void use(const char *mode) { application()->setThemeMode(QString::fromLatin1(mode)); }

    static QColor color(const char *token, const char *state, const char *mode = "light")
    {
        const int identifier = WThemeUtils::colorSetTokenIdentifier(QString::fromLatin1(token));
        Q_ASSERT(identifier >= 0);
        const qsizetype stateIndex = States.indexOf(QLatin1StringView(state));
        Q_ASSERT(stateIndex >= 0);
        return color(identifier, int(stateIndex), QLatin1StringView(mode) == QLatin1StringView("dark"));
    }

    static WApplication *application() { return qobject_cast<WApplication *>(QCoreApplication::instance()); }

private:
    static QColor color(int identifier, int state, bool dark)
    {
        return QColor(identifier % 256, state * 16 + identifier / 256, dark ? 200 : 100);
    }

    static QByteArray file(bool dark)
    {
        static const std::array files{write(false), write(true)};
        return files[dark];
    }

    static QByteArray write(bool dark)
    {
        QJsonObject tokens;
        for (int identifier = 0; !WThemeUtils::colorSetTokenName(identifier).isEmpty(); ++identifier) {
            QJsonObject states;
            for (int state = 0; state < States.size(); ++state) {
                const QColor value = color(identifier, state, dark);
                states.insert(States[state],
                              QJsonObject{{QStringLiteral("r"), value.red()},
                                          {QStringLiteral("g"), value.green()},
                                          {QStringLiteral("b"), value.blue()},
                                          {QStringLiteral("a"), 1}});
            }
            tokens.insert(WThemeUtils::colorSetTokenName(identifier), states);
        }
        return QJsonDocument(QJsonObject{{QStringLiteral("tokens"), tokens}}).toJson();
    }

    MemoryResources m_files{{{QStringLiteral("/Themes/meridian_light.json"), file(false)},
                             {QStringLiteral("/Themes/light.json"), file(false)},
                             {QStringLiteral("/Themes/meridian_dark.json"), file(true)},
                             {QStringLiteral("/Themes/dark.json"), file(true)}}};
};
