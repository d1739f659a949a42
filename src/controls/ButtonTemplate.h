#pragma once

#include "FocusableButton.h"
#include "LKEventData.h"

/// The logic of the LK buttons: keys, state and focus ring; QML gives the looks.
///
/// On the release of Space, Enter or Return, which is no repetition, a checkable button toggles and emits toggled(),
/// any other emits clicked().
class ButtonTemplate : public FocusableButton<QQuickButton>
{
    Q_OBJECT
    Q_INTERFACES(AccessibleOnDemand)
    /// The button's state, for its button data.
    Q_PROPERTY(LKEventData *eventData READ eventData CONSTANT)

public:
    explicit ButtonTemplate(QQuickItem *parent = nullptr);

    LKEventData *eventData();

    /// What assistive technology calls; both do what a key does.
    Q_INVOKABLE void accessiblePressAction();
    Q_INVOKABLE void accessibleToggleAction();

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void hoverChange() override;
    void buttonChange(ButtonChange change) override;
    void prepare(FocusRing *ring) override;

private:
    void activate();

    LKEventData m_eventData;
    int m_heldKey = 0;
};
