#pragma once

#include <QStyle>
#include <QVarLengthArray>
#include <QVariant>

#include <memory>

class StateColor;

/// What the colours of a control depend on: the theme, and the state of the control or of another object.
class ControlState
{
public:
    /// What shows the colours.
    class User
    {
    public:
        /// One of the colours, or more, are others now.
        virtual void showColors() = 0;

    protected:
        User() = default;
        ~User() = default;
        Q_DISABLE_COPY_MOVE(User)
    };

    /// The state of a user, which outlives it.
    explicit ControlState(User *user);
    ~ControlState();
    Q_DISABLE_COPY_MOVE(ControlState)

    /// The application's theme mode unless it is set; an invalid value goes back to that.
    QVariant themeType() const;
    /// Looks all colour sets up again.
    void setThemeType(const QVariant &themeType);

    /// What counts in place of the control: an object with any of `enabled`, `readOnly`, `pressed`, `hovered`,
    /// `activeFocus` and `checked`. Of a JavaScript object the values count that it has when it is set. Null for none.
    QVariant target() const;
    void setTarget(const QVariant &target);

    /// Enabled, ReadOnly, Sunken, MouseOver, HasFocus and On.
    QStyle::State state() const;
    /// The state of the control itself.
    void setState(QStyle::State state);

    /// Called by the colours themselves, which the state outlives no longer than their last change.
    void add(StateColor *color);
    void showColors();

private:
    class Target;

    void refreshColorSets();
    void refreshColors();
    static void onThemeModeChanged();

    User *m_user;
    QVariant m_themeType;
    std::unique_ptr<Target> m_target;
    QVarLengthArray<StateColor *, 4> m_colors;
    QStyle::State m_ownState = QStyle::State_Enabled;

    // All states, for a change of the theme; a connection for each would cost more than the rest of it.
    ControlState *m_previous;
    ControlState *m_next = nullptr;
};
