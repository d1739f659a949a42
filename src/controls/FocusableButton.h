#pragma once

#include "AccessibleOnDemand.h"
#include "AliasSignals.h"
#include "FocusRing.h"

#include <QStyle>

#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuickTemplates2/private/qquickbutton_p.h>

#include <type_traits>

/// What the templates of buttons and check boxes share: a focus ring and an accessible node from when they are needed.
template<typename Base> class FocusableButton : public Base, public AccessibleOnDemand
{
public:
    using ButtonChange = typename Base::ButtonChange;

    explicit FocusableButton(QQuickItem *parent)
        : Base(parent)
    {
    }

protected:
    /// What a button without a text is called.
    virtual QString nameWithoutText() const { return {}; }

    /// Called for the new ring.
    virtual void prepare(FocusRing *ring) = 0;

    /// After a change of what the button is called without a text.
    void updateName()
    {
        if (isExposed())
            setName(this, Base::text().isEmpty() ? nameWithoutText() : Base::text());
    }

    /// What the button knows of its state; without focus and checked.
    QStyle::State pointerState() const
    {
        QStyle::State state;
        state.setFlag(QStyle::State_Enabled, Base::isEnabled());
        state.setFlag(QStyle::State_Sunken, Base::isPressed());
        state.setFlag(QStyle::State_MouseOver, Base::isHovered());
        return state;
    }

    /// Return and Enter click as Space does; a key that is held down does so once. Whether it was one of them.
    bool clickByKey(QKeyEvent *event)
    {
        const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (!isReturn && !(event->key() == Qt::Key_Space && event->isAutoRepeat()))
            return false;
        event->accept();
        if (!event->isAutoRepeat())
            Base::click();
        return true;
    }

    // A key that is held down is released again and again on some platforms; other keys are not the button's.
    void keyReleaseEvent(QKeyEvent *event) override
    {
        if (event->isAutoRepeat() && event->key() == Qt::Key_Space)
            event->accept();
        else
            Base::keyReleaseEvent(event);
    }

    void componentComplete() override
    {
        Base::componentComplete();
        setComplete(this);
    }

    void focusInEvent(QFocusEvent *event) override
    {
        Base::focusInEvent(event);
        if (m_ring)
            return;
        m_ring = FocusRing::create(this, event);
        prepare(m_ring);
    }

    void buttonChange(ButtonChange change) override
    {
        Base::buttonChange(change);
        if (!isExposed())
            return;
        if (change == Base::ButtonTextChange)
            updateName();
        else if (change == Base::ButtonCheckableChange)
            accessibleOf(this)->set_checkable(Base::isCheckable());
        else if (change == Base::ButtonCheckedChange)
            accessibleOf(this)->set_checked(Base::isChecked());
    }

    // A checkable button is no check box: it looks like a button.
    QAccessible::Role accessibleRole() const override
    {
        return std::is_same_v<Base, QQuickButton> ? QAccessible::Button : Base::accessibleRole();
    }

    void accessibilityActiveChanged(bool active) override
    {
        Base::accessibilityActiveChanged(active);
        updateName(); // to the base it is the text in any case
    }

    void connectNotify(const QMetaMethod &signal) override
    {
        Base::connectNotify(signal);
        connectAlias(this, signal);
    }

    void setAccessibility() override
    {
        accessibilityActiveChanged(true);
        QQuickAccessibleAttached *attached = accessibleOf(this);
        if (attached->role() == QAccessible::NoRole)
            attached->setRole(accessibleRole());
        attached->set_checkable(Base::isCheckable());
        attached->set_checked(Base::isChecked());
    }

private:
    FocusRing *m_ring = nullptr;
};
