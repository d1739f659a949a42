#include "WQmlPopupController.h"

#include "WPopupQuickView.h"

using namespace Qt::StringLiterals;

WQmlPopupController::WQmlPopupController(QObject *parent)
    : WQmlController(parent)
    , m_themeType(u"global"_s)
{
    // The value does not notice when the object that it holds is deleted by somebody else.
    connect(this, &WQmlPopupController::modelChanged, this, [this] { m_modelObject = m_model.value<QObject *>(); });
}

WQmlPopupController::~WQmlPopupController()
{
    if (m_takesModelOwnership && m_modelObject)
        m_modelObject->deleteLater();
}

int WQmlPopupController::arrowOffset() const
{
    return m_arrowOffset;
}

void WQmlPopupController::setArrowOffset(int offset)
{
    if (offset == m_arrowOffset)
        return;
    m_arrowOffset = offset;
    Q_EMIT arrowOffsetChanged();
}

int WQmlPopupController::arrowSize() const
{
    return m_arrowSize;
}

void WQmlPopupController::setArrowSize(int size)
{
    if (size == m_arrowSize)
        return;
    m_arrowSize = size;
    Q_EMIT arrowSizeChanged();
}

WQmlBalloon::ArrowAlignment WQmlPopupController::arrowAlignment()
{
    return m_arrowAlignment;
}

WQmlBalloon::ArrowAnchor WQmlPopupController::arrowAnchor()
{
    return m_arrowAnchor;
}

void WQmlPopupController::setArrowAnchor(WQmlBalloon::ArrowAnchor anchor)
{
    if (anchor == m_arrowAnchor)
        return;
    m_arrowAnchor = anchor;
    Q_EMIT arrowAnchorChanged();
}

void WQmlPopupController::setModel(const QVariant &model)
{
    if (model == m_model)
        return;
    m_model = model;
    Q_EMIT modelChanged();
}

void WQmlPopupController::setThemeType(const QString &themeType)
{
    // Not compared: whoever sets the type again wants the colours looked up again.
    m_themeType = themeType;
    Q_EMIT themeTypeChanged();
}

void WQmlPopupController::setPopupQuickView(WPopupQuickView *view)
{
    if (view == m_popupQuickView)
        return;
    if (m_popupQuickView)
        m_popupQuickView->disconnect(this);
    m_popupQuickView = view;
    if (!view)
        return;
    connect(view, &WPopupQuickView::arrowFlipped, this, &WQmlPopupController::flipArrow);
    connect(view, &WPopupQuickView::arrowOrthogonalChanged, this, &WQmlPopupController::adjustArrowOffset);
}

void WQmlPopupController::adjustArrowOffset()
{
    if (m_popupQuickView)
        setArrowOffset(m_popupQuickView->adjustArrowOffset(WQmlBalloon::arrowTypeFromArrowAnchor(arrowAnchor())));
}

void WQmlPopupController::flipArrow(Qt::ArrowType arrow)
{
    setArrowAnchor(WQmlBalloon::arrowAnchorFromArrowType(arrow));
}
