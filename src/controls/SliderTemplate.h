#pragma once

#include "ControlState.h"
#include "StateColor.h"

#include <QPointer>

#include <QtQuickTemplates2/private/qquickslider_p.h>

#include <optional>

class Face;
class FocusRing;

/// The sliders: a bar, full up to the handle, and a handle with a focus ring and, while it is dragged or has the
/// keyboard's focus, a tooltip. The arrows, PageUp, PageDown, Home and End move the handle; like assistive technology
/// they do not undo a binding of the value.
///
/// Most properties have a default that follows others: until they are set, and again when they are set to undefined.
class SliderTemplate : public QQuickSlider, private ControlState::User
{
    Q_OBJECT
    /// Pixels.
    Q_PROPERTY(int handleWidth READ handleWidth WRITE setHandleWidth NOTIFY layoutChanged)
    Q_PROPERTY(int barThickness READ barThickness WRITE setBarThickness NOTIFY layoutChanged)
    /// Half the handle's width by default.
    Q_PROPERTY(double handleRadius READ handleRadius WRITE setHandleRadius RESET resetHandleRadius NOTIFY layoutChanged)
    /// Where the handle stands: at the value, by default.
    Q_PROPERTY(double handleX READ handleX WRITE setHandleX RESET resetHandleX NOTIFY layoutChanged)
    Q_PROPERTY(double handleY READ handleY WRITE setHandleY RESET resetHandleY NOTIFY layoutChanged)
    /// The value, by default; nothing is shown, if empty.
    Q_PROPERTY(QString tooltip READ tooltip WRITE setTooltip RESET resetTooltip NOTIFY tooltipChanged)
    /// Of the value in the tooltip. By default 2, but 0 for a range of more than 2.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals RESET resetDecimals NOTIFY rangeChanged)
    /// How far an arrow goes: the step size by default, a hundredth of the range if there is none.
    Q_PROPERTY(double keyStep READ keyStep WRITE setKeyStep RESET resetKeyStep NOTIFY rangeChanged)
    /// How far PageUp and PageDown go: a tenth of the range by default, but at least what an arrow does.
    Q_PROPERTY(double pageSize READ pageSize WRITE setPageSize RESET resetPageSize NOTIFY rangeChanged)
    /// What assistive technology tells of the range.
    Q_PROPERTY(double minimumValue READ from NOTIFY rangeChanged)
    Q_PROPERTY(double maximumValue READ to NOTIFY rangeChanged)
    Q_PROPERTY(
        QString focusColorSetName READ focusColorSetName WRITE setFocusColorSetName NOTIFY focusColorSetNameChanged)
    /// The bar up to the handle and beyond it, the handle, and the line around it and the full bar.
    Q_PROPERTY(StateColor *fullColor READ fullColor CONSTANT)
    Q_PROPERTY(StateColor *emptyColor READ emptyColor CONSTANT)
    Q_PROPERTY(StateColor *handleColor READ handleColor CONSTANT)
    Q_PROPERTY(StateColor *borderColor READ borderColor CONSTANT)

public:
    explicit SliderTemplate(QQuickItem *parent = nullptr);
    ~SliderTemplate() override;

    int handleWidth() const;
    void setHandleWidth(int width);

    int barThickness() const;
    void setBarThickness(int thickness);

    double handleRadius() const;
    void setHandleRadius(double radius);
    void resetHandleRadius();

    double handleX() const;
    void setHandleX(double x);
    void resetHandleX();

    double handleY() const;
    void setHandleY(double y);
    void resetHandleY();

    QString tooltip() const;
    void setTooltip(const QString &text);
    void resetTooltip();

    int decimals() const;
    void setDecimals(int decimals);
    void resetDecimals();

    double keyStep() const;
    void setKeyStep(double step);
    void resetKeyStep();

    double pageSize() const;
    void setPageSize(double size);
    void resetPageSize();

    QString focusColorSetName() const;
    void setFocusColorSetName(const QString &name);

    StateColor *fullColor();
    StateColor *emptyColor();
    StateColor *handleColor();
    StateColor *borderColor();

    /// As the user would: along the steps, and with moved().
    Q_INVOKABLE void moveTo(double value);
    /// Towards the end of the range, back if negative.
    Q_INVOKABLE void moveBy(double distance);
    /// What assistive technology calls.
    Q_INVOKABLE void accessibleIncreaseAction();
    Q_INVOKABLE void accessibleDecreaseAction();

Q_SIGNALS:
    void layoutChanged();
    void rangeChanged();
    void tooltipChanged();
    void focusColorSetNameChanged();

protected:
    void componentComplete() override;
    void connectNotify(const QMetaMethod &signal) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding) override;
    void mirrorChange() override;
    void hoverChange() override;
    void localeChange(const QLocale &newLocale, const QLocale &oldLocale) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    template<typename T> void assign(T &member, const T &value, void (SliderTemplate::*changed)());
    double handlePlace(bool horizontally) const;
    double range() const;
    void updateLayout();
    void updateImplicitSize();
    void updateRange();
    void showColors() override;
    void updateState();
    void updateTooltip();

    ControlState m_state{this};
    StateColor m_fullColor{&m_state};
    StateColor m_emptyColor{&m_state};
    StateColor m_handleColor{&m_state};
    StateColor m_borderColor{&m_state};
    Face *m_handle;
    Face *m_bar;
    Face *m_fullBar;
    QPointer<QObject> m_shownTooltip;
    FocusRing *m_ring = nullptr;
    QString m_focusColorSetName;
    std::optional<QString> m_tooltip;
    std::optional<double> m_handleRadius;
    std::optional<double> m_handleX;
    std::optional<double> m_handleY;
    std::optional<double> m_keyStep;
    std::optional<double> m_pageSize;
    std::optional<int> m_decimals;
    QSizeF m_implicitSize{0, 0};
    int m_handleWidth = 16;
    int m_barThickness = 4;
    bool m_isReady = false; // everything that QML gives is here
    bool m_ownsStepSize = false;
};
