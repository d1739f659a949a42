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
    : QQuickButton(parent)
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
    QQuickButton::itemChange(change, value);
    if (change == ItemEnabledHasChanged)
        m_eventData.setEnabled(value.boolValue);
    else if (change == ItemActiveFocusHasChanged)
        m_eventData.setActiveFocus(value.boolValue);
}

void ButtonTemplate::focusInEvent(QFocusEvent *event)
{
    QQuickButton::focusInEvent(event);
    if (m_ring)
        return;
    m_ring = new FocusRing(this);
    if (const auto *rectangle = qobject_cast<QQuickRectangle *>(background())) {
        const auto follow = [this, rectangle] { m_ring->setRadius(rectangle->radius()); };
        connect(rectangle, &QQuickRectangle::radiusChanged, m_ring, follow);
        follow();
    }
    m_ring->setTarget(this);
    m_ring->eventFilter(this, event); // this event came before the ring
}

void ButtonTemplate::focusOutEvent(QFocusEvent *event)
{
    if (std::exchange(m_heldKey, 0) != 0)
        setPressed(false); // the key will be released elsewhere
    QQuickButton::focusOutEvent(event);
}

void ButtonTemplate::keyPressEvent(QKeyEvent *event)
{
    if (!isTrigger(event)) {
        QQuickControl::keyPressEvent(event); // a button would take the keys of the platform
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
        QQuickControl::keyReleaseEvent(event);
        return;
    }
    event->accept();
    if (event->isAutoRepeat() || event->key() != m_heldKey)
        return;
    m_heldKey = 0;
    setPressed(false);
    activate();
}

void ButtonTemplate::hoverChange()
{
    QQuickButton::hoverChange();
    m_eventData.setHovered(isHovered());
}

void ButtonTemplate::buttonChange(ButtonChange change)
{
    QQuickButton::buttonChange(change);
    if (change == ButtonCheckedChange)
        m_eventData.setChecked(isChecked());
}

void ButtonTemplate::activate()
{
    if (isCheckable())
        nextCheckState(); // toggles, except the one that is on among exclusive buttons
    else
        QQuickAbstractButtonPrivate::get(this)->trigger(); // by its action if it has one
}
