#pragma once

#include <QObject>

class QQuickAccessibleAttached;
class QQuickItem;
class QString;

/// An item that assistive technology knows from when somebody asks: names and roles of all items at once would cost
/// more than the items.
class AccessibleOnDemand
{
public:
    virtual ~AccessibleOnDemand();

    /// Makes the item known, or what is known of it up to date.
    void expose();
    bool isExposed() const;
    bool isComplete() const;

protected:
    AccessibleOnDemand();

    /// To be called when the component is complete. From then on it can be exposed; it is at once, if there is
    /// somebody, or if QML has said something of it: Qt does not ask a second time.
    void setComplete(const QQuickItem *item);
    /// Sets role and name, where QML has not, and keeps the name up to date.
    virtual void setAccessibility() = 0;

    static QQuickAccessibleAttached *accessibleOf(QQuickItem *item);
    /// Does nothing to a name that somebody has given.
    static void setName(QQuickItem *item, const QString &name);

private:
    bool m_complete = false;
    bool m_exposed = false;
};

Q_DECLARE_INTERFACE(AccessibleOnDemand, "LumakitQml.AccessibleOnDemand")
