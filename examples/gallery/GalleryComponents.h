#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>
#include <QVariant>

/// The library's components for the gallery's pages: their families, and the properties of a live one.
class GalleryComponents : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(Components)
    QML_SINGLETON
    /// "Buttons", "Frames" ...: the folders of the components, sorted.
    Q_PROPERTY(QStringList families READ families CONSTANT)

public:
    using QObject::QObject;

    static QStringList families();
    /// The components of a family that have a sample and whose name contains the text, sorted; one with a sample of all
    /// its states has that behind it, as <Name>States.
    Q_INVOKABLE QStringList components(const QString &family, const QString &containing) const;

    /// What the component itself declares, with what its bases of the library declare: maps of name, type, value (as
    /// text) and isWritable, in the order of declaration.
    Q_INVOKABLE QVariantList properties(QObject *component) const;
    /// Sets a property from its text. False where the text is no value of the property's type.
    Q_INVOKABLE bool write(QObject *component, const QString &property, const QString &text) const;
};
