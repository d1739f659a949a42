#pragma once

#include "ControlState.h"
#include "FocusableButton.h"
#include "StateColor.h"

#include <QPointer>

#include <QtQuickTemplates2/private/qquickcheckbox_p.h>

class Face;
class ImageTemplate;

/// The logic of the check boxes and the box itself: colours by the state, the icon in the box, keys, tooltip, focus
/// ring.
///
/// While the box is not empty, colour sets "checkbox-unchecked-..." make room for "checkbox-checked-..."; others stay.
class WCheckBoxTemplate : public FocusableButton<QQuickCheckBox>, private ControlState::User
{
    Q_OBJECT
    Q_INTERFACES(AccessibleOnDemand)
    Q_PROPERTY(StateColor *indicatorColors READ indicatorColors CONSTANT)
    Q_PROPERTY(StateColor *borderColors READ borderColors CONSTANT)
    Q_PROPERTY(StateColor *textColors READ textColors CONSTANT)
    Q_PROPERTY(StateColor *checkIconColors READ checkIconColors CONSTANT)
    /// Of the box, pixels; likewise its corners.
    Q_PROPERTY(int checkboxSize READ checkboxSize WRITE setCheckboxSize NOTIFY looksChanged)
    Q_PROPERTY(int checkboxRadius READ checkboxRadius WRITE setCheckboxRadius NOTIFY looksChanged)
    /// What stands in the box while it is not empty.
    Q_PROPERTY(QString checkIconName READ checkIconName WRITE setCheckIconName NOTIFY looksChanged)
    /// Of the focus ring.
    Q_PROPERTY(QString focusColorSetName READ focusColorSetName WRITE setFocusColorSetName NOTIFY looksChanged)
    /// Shown when the cursor or the keyboard's focus rests on the box; its accessible name where it has no text.
    Q_PROPERTY(QString tooltip READ tooltip WRITE setTooltip NOTIFY tooltipChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY checkStateChanged)

public:
    explicit WCheckBoxTemplate(QQuickItem *parent = nullptr);
    ~WCheckBoxTemplate() override;

    StateColor *indicatorColors();
    StateColor *borderColors();
    StateColor *textColors();
    StateColor *checkIconColors();

    int checkboxSize() const;
    void setCheckboxSize(int size);

    int checkboxRadius() const;
    void setCheckboxRadius(int radius);

    QString checkIconName() const;
    void setCheckIconName(const QString &name);

    QString focusColorSetName() const;
    void setFocusColorSetName(const QString &name);

    QString tooltip() const;
    void setTooltip(const QString &tooltip);

    bool isEmpty() const;

    /// What assistive technology calls.
    Q_INVOKABLE void accessiblePressAction();
    Q_INVOKABLE void accessibleToggleAction();

Q_SIGNALS:
    void tooltipChanged();
    void looksChanged();

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding) override;
    void mirrorChange() override;
    void keyPressEvent(QKeyEvent *event) override;
    void hoverChange() override;
    void buttonChange(ButtonChange change) override;
    QString nameWithoutText() const override;
    void prepare(FocusRing *ring) override;
    void setAccessibility() override;

private:
    template<typename T> void change(T &member, const T &value);
    void showColors() override;
    void showCheckState();
    void showLooks();

    ControlState m_state{this};
    StateColor m_indicatorColors{&m_state};
    StateColor m_borderColors{&m_state};
    StateColor m_textColors{&m_state};
    StateColor m_checkIconColors{&m_state};
    QPointer<Face> m_box;
    QPointer<ImageTemplate> m_icon;
    QPointer<FocusRing> m_ring;
    QString m_checkIconName;
    QString m_focusColorSetName;
    QString m_tooltip;
    int m_checkboxSize = 20;
    int m_checkboxRadius = 4;
    bool m_isReady = false;
};
