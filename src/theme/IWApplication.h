#pragma once

#include "WColorSet.h"

#include <QApplication>
#include <QHash>
#include <QString>

#include <memory>
#include <string>
#include <unordered_map>

class IWMovieProviderSource;
class WQmlEngine;

/// The application object: theme mode, colour sets, and the one QML engine.
///
/// A host sets the organisation and application names before it constructs its application object, because the
/// stored theme mode is read then. QML knows the object as `App`, through the host's own module.
class LUMAKITQML_EXPORT IWApplication : public QApplication
{
    Q_OBJECT
    /// The file key of the theme: "dark" loads ":/Themes/meridian_dark.json" and ":/Themes/dark.json".
    Q_PROPERTY(QString themeMode READ getThemeMode WRITE setThemeMode NOTIFY themeModeChanged)

public:
    /// Reads the stored theme mode (setting "ThemeMode", else "default") and loads its theme.
    IWApplication(int &argc, char **argv);
    ~IWApplication() override;

    QString getThemeMode() const;
    /// Stores the mode, loads its theme and emits themeModeChanged(). The current mode is only reported to the log.
    void setThemeMode(const QString &mode);

    /// One colour set by token name. An unknown name logs a warning; it and an empty name give an invalid set.
    /// The second argument is accepted and ignored.
    Q_INVOKABLE WColorSet getColorSet(const QString &colorSetName, const QString & = QString()) const;
    /// False: an application without a say of its own animates.
    Q_INVOKABLE bool animationsDisabled();

    const std::unordered_map<std::string, WColorSet> &getColorSets() const;

    /// The QML engine, created on the first call.
    WQmlEngine *getQmlEngine() const;

    /// Where animated images come from; null here.
    virtual IWMovieProviderSource *getMovieProviderSource();

Q_SIGNALS:
    void themeModeChanged();

protected:
    /// Called once with the new engine, before anything is loaded with it. Does nothing here.
    virtual void prepareQmlEngine(WQmlEngine *engine);

private:
    void loadColorSets();

    struct DeleteLater
    {
        void operator()(WQmlEngine *engine) const;
    };

    mutable std::unique_ptr<WQmlEngine, DeleteLater> m_qmlEngine;
    std::unordered_map<std::string, WColorSet> m_colorSets;
    QHash<QString, const WColorSet *> m_colorSetIndex; // into m_colorSets, so that QML looks up without converting
    QString m_themeMode;
};
