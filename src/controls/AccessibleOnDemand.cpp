#include "AccessibleOnDemand.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuick/private/qquickitem_p.h>

namespace {

QAccessibleInterface *exposeOnQuery(const QString &, QObject *object)
{
    auto *item = qobject_cast<AccessibleOnDemand *>(object);
    if (item && item->isComplete() && !item->isExposed())
        item->expose();
    return nullptr; // the interface itself is Qt's
}

void exposeBelow(const QQuickItem *parent)
{
    const auto children = parent->childItems();
    for (QQuickItem *child : children) {
        if (auto *item = qobject_cast<AccessibleOnDemand *>(child))
            item->expose();
        exposeBelow(child);
    }
}

void exposeAll()
{
    const auto windows = QGuiApplication::allWindows();
    for (const QWindow *window : windows) {
        if (const auto *scene = qobject_cast<const QQuickWindow *>(window))
            exposeBelow(scene->contentItem());
    }
}

// The technology that arrives later walks the items, and passes over what is not known to it.
class Activation : public QAccessible::ActivationObserver
{
public:
    Activation()
    {
        QAccessible::installFactory(exposeOnQuery);
        QAccessible::installActivationObserver(this);
    }

    ~Activation() { QAccessible::removeActivationObserver(this); }

    Q_DISABLE_COPY_MOVE(Activation)

    void accessibilityActiveChanged(bool active) override
    {
        if (!active)
            return;
        exposeAll();
        // Once more when Qt's own labels have named themselves by their text, also those without any.
        QMetaObject::invokeMethod(qGuiApp, exposeAll, Qt::QueuedConnection);
    }
};

} // namespace

AccessibleOnDemand::AccessibleOnDemand()
{
    static Activation activation;
}

AccessibleOnDemand::~AccessibleOnDemand() = default;

void AccessibleOnDemand::expose()
{
    m_exposed = true; // first: what follows asks for the interface again
    setAccessibility();
}

bool AccessibleOnDemand::isComplete() const
{
    return m_complete;
}

void AccessibleOnDemand::setComplete(const QQuickItem *item)
{
    m_complete = true;
    if (QAccessible::isActive() || QQuickItemPrivate::get(item)->isAccessible)
        expose();
}

bool AccessibleOnDemand::isExposed() const
{
    return m_exposed;
}

QQuickAccessibleAttached *AccessibleOnDemand::accessibleOf(QQuickItem *item)
{
    return qobject_cast<QQuickAccessibleAttached *>(qmlAttachedPropertiesObject<QQuickAccessibleAttached>(item));
}

void AccessibleOnDemand::setName(QQuickItem *item, const QString &name)
{
    QQuickAccessibleAttached *attached = accessibleOf(item);
    if (!attached->wasNameExplicitlySet())
        attached->setNameImplicitly(name);
}
