#include "ButtonTemplate.h"

#include "FocusRing.h"

#include <QQmlEngine>

#include <QtQuick/private/qquickrectangle_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p_p.h>

#include <utility>

namespace {

bool isTrigger(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
}

} // namespace

ButtonTemplate::ButtonTemplate(QQuickItem *parent)
    : FocusableButton(parent)
{
    QQmlEngine::setObjectOwnership(&m_eventData, QQmlEngine::CppOwnership);
    m_eventData.setEnabled(isEnabled());
    setFocusPolicy(Qt::TabFocus);
    setHoverEnabled(true);
    setPadding(6);
    setHorizontalPadding(8);
    setSpacing(6);
    connect(this, &QQuickAbstractButton::downChanged, this, [this] { m_eventData.setPressed(isDown()); });
}

LKEventData *ButtonTemplate::eventData()
{
    return &m_eventData;
}

void ButtonTemplate::accessiblePressAction()
{
    activate();
}

void ButtonTemplate::accessibleToggleAction()
{
    activate();
}

void ButtonTemplate::itemChange(ItemChange change, const ItemChangeData &value)
{
    FocusableButton::itemChange(change, value);
    if (change == ItemEnabledHasChanged)
        m_eventData.setEnabled(value.boolValue);
    else if (change == ItemActiveFocusHasChanged)
        m_eventData.setActiveFocus(value.boolValue);
}

// Around the background, whatever its radius.
void ButtonTemplate::prepare(FocusRing *ring)
{
    const auto *rectangle = qobject_cast<QQuickRectangle *>(background());
    if (!rectangle)
        return;
    const auto follow = [ring, rectangle] { ring->setRadius(rectangle->radius()); };
    connect(rectangle, &QQuickRectangle::radiusChanged, ring, follow);
    follow();
}

void ButtonTemplate::focusOutEvent(QFocusEvent *event)
{
    if (std::exchange(m_heldKey, 0) != 0)
        setPressed(false); // the key will be released elsewhere
    FocusableButton::focusOutEvent(event);
}

void ButtonTemplate::keyPressEvent(QKeyEvent *event)
{
    if (!isTrigger(event)) {
        // A button would take the keys of the platform.
        QQuickControl::keyPressEvent(event); // NOLINT(bugprone-parent-virtual-call)
        return;
    }
    event->accept();
    if (event->isAutoRepeat())
        return;
    m_heldKey = event->key();
    setPressed(true);
}

void ButtonTemplate::keyReleaseEvent(QKeyEvent *event)
{
    if (!isTrigger(event)) {
        QQuickControl::keyReleaseEvent(event); // NOLINT(bugprone-parent-virtual-call)
        return;
    }
    event->accept();
    if (event->isAutoRepeat())
        return;
    // A key that went down elsewhere acts here as well: the focus shows where, and each release acts once.
    if (std::exchange(m_heldKey, 0) != 0)
        setPressed(false);
    activate();
}

void ButtonTemplate::hoverChange()
{
    FocusableButton::hoverChange();
    m_eventData.setHovered(isHovered());
}

void ButtonTemplate::buttonChange(ButtonChange change)
{
    FocusableButton::buttonChange(change);
    if (change == ButtonCheckedChange)
        m_eventData.setChecked(isChecked());
}

void ButtonTemplate::activate()
{
    if (!isEnabled())
        return; // assistive technology asks nevertheless
    if (isCheckable())
        nextCheckState(); // toggles, except the one that is on among exclusive buttons
    else
        QQuickAbstractButtonPrivate::get(this)->trigger(); // by its action if it has one
}
