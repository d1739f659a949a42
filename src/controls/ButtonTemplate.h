#pragma once

#include "LKEventData.h"

#include <QtQuickTemplates2/private/qquickbutton_p.h>

class FocusRing;

/// The logic of the LK buttons: keys, state and focus ring; QML gives the looks.
///
/// On the release of Space, Enter or Return, which is no repetition, a checkable button toggles and emits toggled(),
/// any other emits clicked().
class ButtonTemplate : public QQuickButton
{
    Q_OBJECT
    /// The button's state, for its button data.
    Q_PROPERTY(LKEventData *eventData READ eventData CONSTANT)

public:
    explicit ButtonTemplate(QQuickItem *parent = nullptr);

    LKEventData *eventData();

    /// Shows the button to assistive technology, whether or not there is any.
    void expose();
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
    QAccessible::Role accessibleRole() const override;

private:
    void activate();
    void nameByText();

    LKEventData m_eventData;
    FocusRing *m_ring = nullptr;
    int m_heldKey = 0;
    bool m_exposed = false;
};
