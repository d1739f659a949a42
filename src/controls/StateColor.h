#pragma once

#include "WColorSet.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QVariant>

class ControlState;

/// A colour of a colour set, for a theme and the state of a control.
class StateColor : public QObject
{
    Q_OBJECT
    /// The application's theme mode unless it is set; `undefined` goes back to that. A change of it looks the colour
    /// set up again. All colours of a control share it; likewise the target.
    Q_PROPERTY(QVariant themeType READ themeType WRITE setThemeType RESET resetThemeType NOTIFY themeTypeChanged)
    /// What counts in place of the control: an object with any of `enabled`, `readOnly`, `pressed`, `hovered`,
    /// `activeFocus` and `checked`. Of a JavaScript object the values count that it has when it is set. null for none.
    Q_PROPERTY(QVariant target READ target WRITE setTarget NOTIFY targetChanged)
    /// Empty for none.
    Q_PROPERTY(QString colorSetName READ colorSetName WRITE setColorSetName NOTIFY colorSetNameChanged)
    /// The WColorSet of that name, unless another is set; `undefined` goes back to that.
    Q_PROPERTY(QVariant colorSet READ colorSet WRITE setColorSet RESET resetColorSet NOTIFY colorSetChanged)
    /// That of the set for the state, transparent without a valid set; unless another is set. `undefined` goes back.
    Q_PROPERTY(QColor color READ color WRITE setColor RESET resetColor NOTIFY colorChanged)

public:
    /// Which flags pick the colour.
    enum Rule {
        Control, ///< Disabled beats pressed, pressed hovered, hovered focused, focused checked.
        TextField, ///< Likewise without pressed; a read-only one is always normal.
        Normal, ///< None: always normal.
    };

    explicit StateColor(ControlState *state, Rule rule = Control);
    ~StateColor() override;

    QVariant themeType() const;
    void setThemeType(const QVariant &themeType);
    void resetThemeType();

    QVariant target() const;
    void setTarget(const QVariant &target);

    QString colorSetName() const;
    void setColorSetName(const QString &name);

    /// A name that begins with one prefix begins with the other from now on.
    void exchangePrefix(QLatin1StringView from, QLatin1StringView to);

    QVariant colorSet() const;
    void setColorSet(const QVariant &colorSet);
    void resetColorSet();

    QColor color() const;
    void setColor(const QColor &color);
    void resetColor();

    /// After a change of the state. Whether the colour is another.
    bool refreshColor();
    /// Looks the colour set up again. Whether the colour is another.
    bool onThemeTypeChanged();

Q_SIGNALS:
    void themeTypeChanged();
    void targetChanged();
    void colorSetNameChanged();
    void colorSetChanged();
    void colorChanged();

private:
    bool refreshColorSet();
    void show(bool isOther);
    const WColorSet &currentSet() const;
    QColor currentColor() const;

    ControlState *m_state;
    QString m_colorSetName;
    // Looked up when somebody asks: what a component is given last is all that counts.
    mutable WColorSet m_colorSet;
    mutable QColor m_color;
    mutable bool m_hasColorSet = false;
    mutable bool m_hasColor = false;
    bool m_ownsColorSet = false;
    bool m_ownsColor = false;
    Rule m_rule;
};
