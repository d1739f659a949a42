#pragma once

#include "WObject.h"

#include <QPointer>
#include <QString>
#include <qqmlintegration.h>

class LKEventData;

/// The icon of a button, which may be another one while the button is checked. When the event data changes, its owner
/// calls the slot.
class LUMAKITQML_EXPORT LKIconData : public WObject
{
    Q_OBJECT
    QML_ANONYMOUS
    /// The name of the icon to show now; empty for none.
    Q_PROPERTY(QString icon READ icon NOTIFY iconChanged)

public:
    explicit LKIconData(QObject *parent = nullptr);
    ~LKIconData() override;

    QString icon() const;
    /// The names at rest and while checked; without the second the first serves both.
    void setIcons(const QString &icon, const QString &checkedIcon = QString());

    LKEventData *eventData() const;
    /// The flags that choose the icon; not owned. Emits eventDataChanged() for another object and chooses the icon
    /// again in any case.
    void setEventData(LKEventData *eventData);

public Q_SLOTS:
    /// Chooses the icon again, after a change of a flag.
    void onEventDataChanged();

Q_SIGNALS:
    void iconChanged();
    void eventDataChanged();

private:
    QString m_icon;
    QString m_restIcon;
    QString m_checkedIcon;
    QPointer<LKEventData> m_eventData;
};
