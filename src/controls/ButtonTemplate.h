#pragma once

#include "LKEventData.h"

#include <QtQuickTemplates2/private/qquickbutton_p.h>

class FocusRing;

/// The logic of the LK buttons: keys, state and focus ring; QML gives the looks.
///
/// On the release of Space, Enter or Return, which is no repetition, a checkable button toggles and emits toggled(), any
/// other emits clicked(). The key must have gone down on the button too: one that is held while the focus moves presses
/// nothing.
class ButtonTemplate : public QQuickButton
{
    Q_OBJECT
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
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void hoverChange() override;
    void buttonChange(ButtonChange change) override;

private:
    void activate();

    LKEventData m_eventData;
    FocusRing *m_ring = nullptr;
    int m_heldKey = 0;
};
