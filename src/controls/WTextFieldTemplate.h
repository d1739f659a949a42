#pragma once

#include "AccessibleOnDemand.h"
#include "ControlState.h"
#include "StateColor.h"

#include <QPointer>
#include <QQmlComponent>

#include <QtQuickTemplates2/private/qquicktextfield_p.h>

class FocusRing;

/// The logic of the W text field: colours by its state, placeholder, focus ring. A Face shows its frame.
class WTextFieldTemplate : public QQuickTextField, public AccessibleOnDemand, private ControlState::User
{
    Q_OBJECT
    Q_INTERFACES(AccessibleOnDemand)
    /// That of `textColors`, unless it is set.
    Q_PROPERTY(QColor color READ color WRITE setColor RESET resetColor NOTIFY colorChanged)
    /// Those of a primary button, unless they are set.
    Q_PROPERTY(QColor selectionColor READ selectionColor WRITE setSelectionColor RESET resetSelectionColor NOTIFY
                   selectionColorChanged)
    Q_PROPERTY(QColor selectedTextColor READ selectedTextColor WRITE setSelectedTextColor RESET resetSelectedTextColor
                   NOTIFY selectedTextColorChanged)
    Q_PROPERTY(StateColor *textColors READ textColors CONSTANT)
    Q_PROPERTY(StateColor *borderColors READ borderColors CONSTANT)
    Q_PROPERTY(StateColor *backgroundColors READ backgroundColors CONSTANT)
    Q_PROPERTY(StateColor *placeholderColors READ placeholderColors CONSTANT)
    /// The frame's corners, pixels.
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY looksChanged)
    /// Pixels; without a colour set there is no border.
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY looksChanged)
    /// Of the focus ring.
    Q_PROPERTY(QString focusColorSetName READ focusColorSetName WRITE setFocusColorSetName NOTIFY looksChanged)
    /// What is written is wrong: frame and text say so, by the colour sets "textinput-error-..." in place of
    /// "textinput-..."; others stay.
    Q_PROPERTY(bool showErrorState READ showErrorState WRITE setShowErrorState NOTIFY showErrorStateChanged)
    /// Made when there is a text for it.
    Q_PROPERTY(QQmlComponent *placeholder READ placeholder WRITE setPlaceholder NOTIFY placeholderChanged)
    /// Of what the placeholder wants, pixels; 0 without one.
    Q_PROPERTY(double placeholderWidth READ placeholderWidth NOTIFY placeholderWidthChanged)

public:
    explicit WTextFieldTemplate(QQuickItem *parent = nullptr);
    ~WTextFieldTemplate() override;

    void setColor(const QColor &color);
    void resetColor();
    void setSelectionColor(const QColor &color);
    void resetSelectionColor();
    void setSelectedTextColor(const QColor &color);
    void resetSelectedTextColor();

    StateColor *textColors();
    StateColor *borderColors();
    StateColor *backgroundColors();
    StateColor *placeholderColors();

    double radius() const;
    void setRadius(double radius);

    int borderWidth() const;
    void setBorderWidth(int width);

    QString focusColorSetName() const;
    void setFocusColorSetName(const QString &name);

    bool showErrorState() const;
    void setShowErrorState(bool showErrorState);

    QQmlComponent *placeholder() const;
    void setPlaceholder(QQmlComponent *placeholder);
    double placeholderWidth() const;

Q_SIGNALS:
    void looksChanged();
    void showErrorStateChanged();
    void placeholderChanged();
    void placeholderWidthChanged();

protected:
    void componentComplete() override;
    void connectNotify(const QMetaMethod &signal) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void focusInEvent(QFocusEvent *event) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void setAccessibility() override;

private:
    void showColors() override;
    void showLooks();
    void updateState();
    void updatePlaceholder();
    void updatePlaceholderWidth();
    void updateAccessibility();

    ControlState m_state{this};
    StateColor m_textColors{&m_state, StateColor::TextField};
    StateColor m_borderColors{&m_state, StateColor::TextField};
    StateColor m_backgroundColors{&m_state, StateColor::TextField};
    StateColor m_placeholderColors{&m_state, StateColor::TextField};
    StateColor m_selectionColors{&m_state, StateColor::Normal};
    StateColor m_selectedTextColors{&m_state, StateColor::Normal};
    QPointer<QQmlComponent> m_placeholder;
    QPointer<QQuickItem> m_placeholderItem;
    QPointer<FocusRing> m_ring;
    QString m_focusColorSetName;
    QMetaObject::Connection m_naming;
    double m_placeholderWidth = 0;
    double m_radius = 4;
    int m_borderWidth = 1;
    bool m_showErrorState = false;
};
