#pragma once

#include "ControlState.h"
#include "FocusableButton.h"
#include "StateColor.h"

#include <QPointer>

/// The logic of the W buttons: colours by their state, keys, tooltip, focus ring. A WButtonContent
/// and a Face show it.
class WButtonTemplate : public FocusableButton<QQuickButton>, private ControlState::User
{
    Q_OBJECT
    Q_INTERFACES(AccessibleOnDemand)
    Q_PROPERTY(StateColor *backgroundColors READ backgroundColors CONSTANT)
    Q_PROPERTY(StateColor *borderColors READ borderColors CONSTANT)
    Q_PROPERTY(StateColor *textColors READ textColors CONSTANT)
    /// Of the focus ring.
    Q_PROPERTY(QString focusColorSetName READ focusColorSetName WRITE setFocusColorSetName NOTIFY looksChanged)
    /// Shown when the cursor or the keyboard's focus rests on the button; its accessible name where it has no text.
    Q_PROPERTY(QString tooltip READ tooltip WRITE setTooltip NOTIFY tooltipChanged)
    /// Of the text; Text.AlignHCenter and so on.
    Q_PROPERTY(int horizontalAlignment READ horizontalAlignment WRITE setHorizontalAlignment NOTIFY looksChanged)
    Q_PROPERTY(int verticalAlignment READ verticalAlignment WRITE setVerticalAlignment NOTIFY looksChanged)
    /// Pixels; without a colour set there is no border.
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY looksChanged)
    /// The corners of a rectangle, pixels; a button that is no rectangle has round ends.
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY looksChanged)
    Q_PROPERTY(bool isRectangle READ isRectangle WRITE setRectangle NOTIFY looksChanged)
    /// Of what the button is in its present size.
    Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY looksChanged)
    /// Of the text; Text.ElideRight and so on.
    Q_PROPERTY(int elide READ elide WRITE setElide NOTIFY looksChanged)

public:
    explicit WButtonTemplate(QQuickItem *parent = nullptr);
    ~WButtonTemplate() override;

    StateColor *backgroundColors();
    StateColor *borderColors();
    StateColor *textColors();

    QString focusColorSetName() const;
    void setFocusColorSetName(const QString &name);

    QString tooltip() const;
    void setTooltip(const QString &tooltip);

    int horizontalAlignment() const;
    void setHorizontalAlignment(int alignment);

    int verticalAlignment() const;
    void setVerticalAlignment(int alignment);

    int borderWidth() const;
    void setBorderWidth(int width);

    double radius() const;
    void setRadius(double radius);

    bool isRectangle() const;
    void setRectangle(bool isRectangle);

    int elide() const;
    void setElide(int elide);

    double cornerRadius() const;

    /// What assistive technology calls, where the role is one that is pressed.
    Q_INVOKABLE void accessiblePressAction();
    Q_INVOKABLE void accessibleToggleAction();

Q_SIGNALS:
    void tooltipChanged();
    /// Anything but a colour is shown in another way than before.
    void looksChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hoverChange() override;
    void buttonChange(ButtonChange change) override;
    void fontChange(const QFont &newFont, const QFont &oldFont) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    QString nameWithoutText() const override;
    void prepare(FocusRing *ring) override;

private:
    void showColors() override;
    void showLooks();
    bool hasBorder() const;
    template<typename T> void change(T &member, const T &value);
    void updateState();
    void updateRing();

    ControlState m_state{this};
    StateColor m_backgroundColors{&m_state};
    StateColor m_borderColors{&m_state};
    StateColor m_textColors{&m_state};
    QString m_focusColorSetName;
    QString m_tooltip;
    double m_radius = 4;
    int m_borderWidth = 1;
    int m_horizontalAlignment = Qt::AlignHCenter;
    int m_verticalAlignment = Qt::AlignVCenter;
    int m_elide = Qt::ElideRight;
    bool m_isRectangle = true;
    QPointer<FocusRing> m_ring;
};
