#pragma once

#include <WColorSet.h>

#include <QFont>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

/// What the gallery's pages show, beside what the application object has.
class GalleryData : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Gallery)
    QML_SINGLETON
    Q_PROPERTY(QStringList themeModes READ themeModes CONSTANT)
    /// The colour-set tokens in the order of their identifiers.
    Q_PROPERTY(QStringList tokens READ tokens CONSTANT)
    /// The icons of the resources, sorted.
    Q_PROPERTY(QStringList icons READ icons CONSTANT)
    /// The names of the font tokens; a token's value is its index.
    Q_PROPERTY(QStringList fontTokens READ fontTokens CONSTANT)
    /// The roles of the fonts that are scaled by view.
    Q_PROPERTY(QStringList fontRoles READ fontRoles CONSTANT)
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)

public:
    using QObject::QObject;

    static QStringList themeModes();
    static bool isDark(const QString &themeMode);
    static bool isHighContrast(const QString &themeMode);

    static QStringList tokens();
    static QStringList icons();
    static QStringList fontTokens();
    static QStringList fontRoles();

    // The second arguments are not used: a binding that names what the result depends on runs again when it changes.
    Q_INVOKABLE WColorSet colorSet(const QString &name, const QString &themeMode) const;
    Q_INVOKABLE QFont font(int token, double fontScaleFactor) const;
    /// "16 px, 400, underlined"
    Q_INVOKABLE QString describe(const QFont &font) const;

    /// The direction of the whole application's layout.
    static bool isMirrored();
    void setMirrored(bool mirrored);

Q_SIGNALS:
    void mirroredChanged();
};
