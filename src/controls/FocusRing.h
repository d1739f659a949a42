#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QQuickPaintedItem>

class QFocusEvent;

/// Draws a ring outside a control while that has the focus by the keyboard. Without the focus there is no item.
class FocusRing : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    /// What gets the focus; the item that the ring is declared in, if none is set.
    Q_PROPERTY(QQuickItem *target READ target WRITE setTarget NOTIFY targetChanged)
    /// What the ring goes around; the target, if none is set.
    Q_PROPERTY(QQuickItem *around READ around WRITE setAround NOTIFY aroundChanged)
    /// The corner radius of the item that the ring goes around, pixels.
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
    /// The gap between the item's edge and the ring, pixels; negative draws the ring inside.
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY offsetChanged)
    Q_PROPERTY(QString colorSetName READ colorSetName WRITE setColorSetName NOTIFY colorSetNameChanged)
    /// The ring is there.
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)

public:
    explicit FocusRing(QObject *parent = nullptr);
    ~FocusRing() override;

    /// A ring for an item that has not needed one before it got this event.
    static FocusRing *create(QQuickItem *target, QFocusEvent *event);

    QQuickItem *target() const;
    void setTarget(QQuickItem *target);

    QQuickItem *around() const;
    void setAround(QQuickItem *item);

    double radius() const;
    void setRadius(double radius);

    double offset() const;
    void setOffset(double offset);

    QString colorSetName() const;
    void setColorSetName(const QString &name);

    bool isActive() const;

    bool eventFilter(QObject *watched, QEvent *event) override;
    void classBegin() override;
    void componentComplete() override;

Q_SIGNALS:
    void targetChanged();
    void aroundChanged();
    void radiusChanged();
    void offsetChanged();
    void colorSetNameChanged();
    void activeChanged();

private:
    void show();
    void hide();
    void updateRing();

    QPointer<QQuickItem> m_target;
    QPointer<QQuickItem> m_around;
    QPointer<QQuickPaintedItem> m_ring;
    QString m_colorSetName;
    double m_radius = 0;
    double m_offset = 2;
};
