#include "ButtonTemplate.h"

#include "FocusRing.h"

#include <QQmlEngine>

#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquickrectangle_p.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p_p.h>

#include <utility>

namespace {

bool isTrigger(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
}

QQuickAccessibleAttached *accessibleAttached(QQuickItem *item)
{
    return qobject_cast<QQuickAccessibleAttached *>(qmlAttachedPropertiesObject<QQuickAccessibleAttached>(item));
}

// Names and roles cost too much to set for every button at once: a button has them from when somebody asks.
QAccessibleInterface *exposeOnQuery(const QString &, QObject *object)
{
    if (auto *button = qobject_cast<ButtonTemplate *>(object))
        button->expose();
    return nullptr; // the interface itself is Qt's
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
    static const bool installed = (QAccessible::installFactory(exposeOnQuery), true);
    Q_UNUSED(installed)
    connect(this, &QQuickAbstractButton::downChanged, this, [this] { m_eventData.setPressed(isDown()); });
}

LKEventData *ButtonTemplate::eventData()
{
    return &m_eventData;
}

void ButtonTemplate::expose()
{
    if (std::exchange(m_exposed, true))
        return; // what follows asks for the interface again
    accessibilityActiveChanged(true);
    QQuickAccessibleAttached *attached = accessibleAttached(this);
    if (attached->role() == QAccessible::NoRole)
        attached->setRole(accessibleRole());
    nameByText();
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
    QQuickButton::hoverChange();
    m_eventData.setHovered(isHovered());
}

void ButtonTemplate::buttonChange(ButtonChange change)
{
    QQuickButton::buttonChange(change);
    if (change == ButtonCheckedChange)
        m_eventData.setChecked(isChecked());
    else if (change == ButtonTextChange && m_exposed)
        nameByText();
}

// A checkable one is no check box: it looks like a button.
QAccessible::Role ButtonTemplate::accessibleRole() const
{
    return QAccessible::Button;
}

// A name that somebody has given stays.
void ButtonTemplate::nameByText()
{
    QQuickAccessibleAttached *attached = accessibleAttached(this);
    if (!attached->wasNameExplicitlySet())
        attached->setNameImplicitly(text());
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
