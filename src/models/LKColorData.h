#pragma once

#include "WColorSet.h"
#include "WObject.h"

#include <QColor>
#include <QPointer>
#include <QString>
#include <qqmlintegration.h>

#include <memory>

class LKEventData;

/// One colour of a button: that of a colour set for the current state. Disabled beats pressed, pressed beats hovered,
/// hovered beats checked, checked beats focused.
///
/// It follows its tokens. When the event data or the theme changes, its owner calls the slots.
class LUMAKITQML_EXPORT LKColorData : public WObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("")
    /// The name of the colour set; an unknown one logs a warning and makes the colour transparent.
    Q_PROPERTY(QString token READ token WRITE setToken NOTIFY tokenChanged)
    /// The name of the colour set that takes its place while the button is checked; empty for none.
    Q_PROPERTY(QString activeToken READ activeToken WRITE setActiveToken NOTIFY activeTokenChanged)
    /// Transparent without event data or without a valid colour set.
    Q_PROPERTY(QColor color READ color NOTIFY colorChanged)

public:
    explicit LKColorData(QObject *parent = nullptr);
    ~LKColorData() override;

    QString token() const;
    void setToken(const QString &token);

    QString activeToken() const;
    void setActiveToken(const QString &activeToken);

    QColor color() const;

    LKEventData *eventData() const;
    /// The flags that choose the colour; not owned. Emits eventDataChanged() for another object and chooses the colour
    /// again in any case.
    void setEventData(LKEventData *eventData);

public Q_SLOTS:
    /// Chooses the colour again, after a change of a flag.
    void onEventDataChanged();
    /// Looks the colour sets up again, after a change of the theme.
    void onColorDataChanged();

Q_SIGNALS:
    void tokenChanged();
    void activeTokenChanged();
    void colorChanged();
    void eventDataChanged();

private:
    void lookUpActiveColorSet();
    void setColor(const QColor &color);

    QString m_token;
    QString m_activeToken;
    QColor m_color = Qt::transparent;
    WColorSet m_colorSet;
    std::unique_ptr<WColorSet> m_activeColorSet; // most have none
    QPointer<LKEventData> m_eventData;
};
