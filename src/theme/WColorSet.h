#pragma once

#include <LumakitQmlExport.h>

#include <QColor>
#include <QObject>
#include <QString>
#include <QStyle>

/// A named set of colours, one for each interaction state: the unit of theming.
struct LUMAKITQML_EXPORT WColorSet
{
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor normal MEMBER normal)
    Q_PROPERTY(QColor hovered MEMBER hovered)
    Q_PROPERTY(QColor pressed MEMBER pressed)
    Q_PROPERTY(QColor disabled MEMBER disabled)
    Q_PROPERTY(QColor focused MEMBER focused)
    Q_PROPERTY(QColor checked MEMBER checked)
    Q_PROPERTY(bool isValid READ isValid)

public:
    /// An invalid set: no name, six invalid colours.
    WColorSet() = default;
    /// The one colour in all six states.
    WColorSet(const QString &name, const QColor &color);
    WColorSet(const QString &name, const QColor &normal, const QColor &hovered, const QColor &pressed,
              const QColor &disabled, const QColor &focused, const QColor &checked);
    /// The colours of `other` under a new name.
    WColorSet(const QString &name, const WColorSet &other);

    /// Name and all six colours are equal.
    bool operator==(const WColorSet &other) const = default;

    /// The name is not empty and all six colours are valid.
    bool isValid() const;

    /// The colour of a state by its exact name: "normal", "hovered", "pressed", "disabled", "focused" or "checked".
    /// Any other name logs a warning and gives an invalid colour.
    QColor getColor(const QString &state) const;

    /// The colour for a widget's state: disabled beats pressed, pressed beats hovered, hovered beats focused,
    /// focused beats checked. A focus colour equal to the normal one counts as none.
    QColor getColor(QStyle::State state) const;

    QString name;
    QColor normal;
    QColor hovered;
    QColor pressed;
    QColor disabled;
    QColor focused;
    QColor checked;
};
