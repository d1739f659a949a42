#pragma once

#include "WQmlBalloon.h"
#include "WQmlController.h"

#include <QPointer>
#include <QVariant>
#include <qqmlintegration.h>

class WPopupQuickView;

/// The controller of a popup: the state of its arrow, which the popup's balloon binds to, its model, and the theme type
/// that its QML looks colours up with.
class LUMAKITQML_EXPORT WQmlPopupController : public WQmlController
{
    Q_OBJECT
    QML_ELEMENT
    /// A model that is an object is deleted with the controller.
    Q_PROPERTY(bool takesModelOwnership MEMBER m_takesModelOwnership NOTIFY takesModelOwnershipChanged)
    /// How far the arrow slides along its edge, pixels.
    Q_PROPERTY(int arrowOffset MEMBER m_arrowOffset NOTIFY arrowOffsetChanged)
    Q_PROPERTY(int arrowSize MEMBER m_arrowSize NOTIFY arrowSizeChanged)
    Q_PROPERTY(WQmlBalloon::ArrowAlignment arrowAlignment MEMBER m_arrowAlignment NOTIFY arrowAlignmentChanged)
    Q_PROPERTY(WQmlBalloon::ArrowAnchor arrowAnchor MEMBER m_arrowAnchor NOTIFY arrowAnchorChanged)
    Q_PROPERTY(QVariant model MEMBER m_model NOTIFY modelChanged)
    Q_PROPERTY(QString themeType MEMBER m_themeType NOTIFY themeTypeChanged)

public:
    explicit WQmlPopupController(QObject *parent = nullptr);
    ~WQmlPopupController() override;

    int arrowOffset() const;
    void setArrowOffset(int offset);

    int arrowSize() const;
    void setArrowSize(int size);

    WQmlBalloon::ArrowAlignment arrowAlignment();

    WQmlBalloon::ArrowAnchor arrowAnchor();
    void setArrowAnchor(WQmlBalloon::ArrowAnchor anchor);

    void setModel(const QVariant &model);
    /// Emits themeTypeChanged(), even when the type stays the same.
    void setThemeType(const QString &themeType);

    /// Follows the flips and slides of this view, and of no other.
    void setPopupQuickView(WPopupQuickView *view);

Q_SIGNALS:
    void arrowOffsetChanged();
    void arrowSizeChanged();
    void arrowAlignmentChanged();
    void arrowAnchorChanged();
    void modelChanged();
    void takesModelOwnershipChanged();
    void themeTypeChanged();

public Q_SLOTS:
    /// Takes over how far the popup view has its arrow slide.
    void adjustArrowOffset();
    void flipArrow(Qt::ArrowType arrow);

private:
    bool m_takesModelOwnership = false;
    int m_arrowOffset = 0;
    int m_arrowSize = 0;
    WQmlBalloon::ArrowAlignment m_arrowAlignment = WQmlBalloon::CenterAlignment;
    WQmlBalloon::ArrowAnchor m_arrowAnchor = WQmlBalloon::Top;
    QVariant m_model;
    QPointer<QObject> m_modelObject;
    QString m_themeType;
    QPointer<WPopupQuickView> m_popupQuickView;
};
