#include "WPopupQuickView.h"

#include "PopupPlacement.h"
#include "WApplication.h"
#include "WQmlController.h"
#include "WQmlPopupController.h"

#include <QDebug>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>
#include <QWidget>

WPopupQuickView::WPopupQuickView(QWindow *parent)
    : WQuickView(parent)
{
}

WPopupQuickView::WPopupQuickView(WQmlEngine *engine, QWindow *parent, const ViewOptions &options)
    : WQuickView(engine, parent, options)
{
    setFlag(Qt::Popup);
    setColor(Qt::transparent);
}

WPopupQuickView::~WPopupQuickView()
{
    if (!m_activationItem)
        return;
    if (QQuickWindow *window = m_activationItem->window())
        window->requestActivate();
    if (!m_activationPropertyName.isEmpty()
        && !m_activationItem->setProperty(m_activationPropertyName.toLocal8Bit(), false))
        qWarning() << "~WPopupQuickView - unable to set property" << m_activationPropertyName;
}

void WPopupQuickView::showAtRect(const QRectF &rect, Qt::ArrowType arrow)
{
    setActivationRectAndShow(rect, arrow);
}

void WPopupQuickView::showAtWidget(QWidget *widget, Qt::ArrowType arrow)
{
    setActivationRectAndShow(widget, arrow);
}

void WPopupQuickView::setActivationRectAndShow(const QRectF &rect, Qt::ArrowType arrow)
{
    m_activationRect = rect;
    for (const auto signal : {&QWindow::heightChanged, &QWindow::widthChanged, &QWindow::xChanged, &QWindow::yChanged})
        disconnect(this, signal, this, nullptr);

    // Always from the direction that the caller asked for: a popup that has shrunk flips back.
    const auto place = [this, arrow] {
        const QPointer<WPopupQuickView> guard = this;
        showFrom(arrow);
        if (guard) // a listener to the flip may have closed it
            Q_EMIT arrowOrthogonalChanged();
    };
    if (arrow == Qt::UpArrow || arrow == Qt::DownArrow) {
        connect(this, &QWindow::widthChanged, this, place);
        connect(this, &QWindow::xChanged, this, &WPopupQuickView::arrowOrthogonalChanged);
    } else if (arrow == Qt::LeftArrow || arrow == Qt::RightArrow) {
        connect(this, &QWindow::heightChanged, this, place);
        connect(this, &QWindow::yChanged, this, &WPopupQuickView::arrowOrthogonalChanged);
    }
    place();
}

void WPopupQuickView::setActivationRectAndShow(QWidget *widget, Qt::ArrowType arrow)
{
    setActivationRectAndShow(widget ? QRectF(widget->geometry()) : QRectF(), arrow);
}

QRectF WPopupQuickView::activationRect() const
{
    return m_activationRect;
}

int WPopupQuickView::adjustArrowOffset(Qt::ArrowType arrow)
{
    const auto [screenRect, popupRect] = getScreenAndPopupViewRects(arrow);
    return PopupPlacement::arrowSlide(screenRect, popupRect, arrow);
}

QPointF WPopupQuickView::getPointFromRect(const QRectF &rect, Qt::ArrowType arrow) const
{
    return PopupPlacement::positionBeside(rect, arrow, size());
}

QPointF WPopupQuickView::getPointFromWidget(QWidget *widget, Qt::ArrowType arrow) const
{
    return getPointFromRect(widget ? QRectF(widget->geometry()) : QRectF(), arrow);
}

void WPopupQuickView::setPositionFromWidget(const QWidget *widget, Alignment alignment)
{
    const QPoint centre = widget->mapToGlobal(widget->rect().center());
    const QScreen *widgetScreen = QGuiApplication::screenAt(centre);
    if (widgetScreen && alignment == BottomAlignment)
        setPosition(PopupPlacement::positionUnder(centre, widget->height(), width(), widgetScreen->geometry()));
    else
        setPosition(centre + QPoint(-(width() / 2), widget->height() / 2));
}

void WPopupQuickView::setupActivationItem(QQuickItem *item, const QString &propertyName)
{
    const auto mark = [](QQuickItem *target, const QString &name, bool open) {
        if (target && !name.isEmpty() && !target->setProperty(name.toLocal8Bit(), open))
            qWarning() << "WPopupQuickView::setupActivationItem - unable to set property" << name;
    };
    mark(m_activationItem, m_activationPropertyName, false);
    m_activationItem = item;
    m_activationPropertyName = propertyName;
    mark(item, propertyName, true);
}

bool WPopupQuickView::hasActivationItem(QQuickItem *item) const
{
    return m_activationItem == item;
}

void WPopupQuickView::setControllerView()
{
    if (auto *controller = qobject_cast<WQmlPopupController *>(findController().data()))
        controller->setPopupQuickView(this);
}

void WPopupQuickView::showFrom(Qt::ArrowType arrow)
{
    if (shouldFlipArrow(arrow)) {
        arrow = flipArrow(arrow);
        const QPointer<WPopupQuickView> guard = this;
        Q_EMIT arrowFlipped(arrow);
        if (!guard)
            return;
    }
    const QPoint point = getPointFromActivationRect(arrow).toPoint();
    if (WApplication::isInFocus())
        showAt(point, QGuiApplication::screenAt(point));
}

Qt::ArrowType WPopupQuickView::flipArrow(Qt::ArrowType arrow)
{
    return PopupPlacement::opposite(arrow);
}

bool WPopupQuickView::shouldFlipArrow(Qt::ArrowType arrow)
{
    const auto [screenRect, popupRect] = getScreenAndPopupViewRects(arrow);
    return PopupPlacement::shouldFlip(screenRect, popupRect, arrow);
}

QPointF WPopupQuickView::getPointFromActivationRect(Qt::ArrowType arrow)
{
    return getPointFromRect(m_activationRect, arrow);
}

std::pair<QRectF, QRectF> WPopupQuickView::getScreenAndPopupViewRects(Qt::ArrowType arrow)
{
    const QPointF point = getPointFromActivationRect(arrow);
    const QScreen *target = QGuiApplication::screenAt(point.toPoint());
    if (!target)
        target = screen();
    return {target ? QRectF(target->availableGeometry()) : QRectF(), QRectF(point, QSizeF(size()))};
}
