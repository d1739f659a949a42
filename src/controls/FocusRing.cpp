#include "FocusRing.h"

#include "DevicePixels.h"
#include "IWApplication.h"
#include "WThemeUtils.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double Thickness = 2;

class RingItem : public QQuickPaintedItem
{
public:
    using QQuickPaintedItem::QQuickPaintedItem;

    struct Ring
    {
        QColor color;
        QSizeF size;
        double thickness = 0;
        double radius = 0;

        bool operator==(const Ring &) const = default;
    };

    void setRing(const Ring &ring)
    {
        if (ring == m_ring)
            return;
        m_ring = ring;
        update();
    }

    void paint(QPainter *painter) override
    {
        const double half = m_ring.thickness / 2;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(m_ring.color, m_ring.thickness));
        painter->drawRoundedRect(QRectF(QPointF(), m_ring.size).adjusted(half, half, -half, -half), m_ring.radius,
                                 m_ring.radius);
    }

private:
    Ring m_ring;
};

// The size of a painted item that is drawn pixel by pixel: whole, and so in pixels of the device, if its ratio has
// steps of 5 %.
QSizeF paintedSize(const QSizeF &size, double ratio)
{
    constexpr double Step = 20;
    if (DevicePixels::isWhole(ratio))
        return size;
    return {std::ceil(size.width() / Step) * Step, std::ceil(size.height() / Step) * Step};
}

bool isFromKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

// The focus comes back to where it was.
bool isReturning(Qt::FocusReason reason)
{
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

} // namespace

FocusRing::FocusRing(QObject *parent)
    : QObject(parent)
    , m_colorSetName(u"global-focus-outline"_s)
{
}

FocusRing::~FocusRing()
{
    delete m_ring;
}

FocusRing *FocusRing::create(QQuickItem *target, QFocusEvent *event)
{
    auto *ring = new FocusRing(target);
    ring->setTarget(target);
    ring->eventFilter(target, event);
    return ring;
}

QQuickItem *FocusRing::target() const
{
    return m_target;
}

void FocusRing::setTarget(QQuickItem *target)
{
    if (target == m_target)
        return;
    hide();
    if (m_target)
        m_target->removeEventFilter(this);
    m_target = target;
    if (target)
        target->installEventFilter(this);
    Q_EMIT targetChanged();
}

QQuickItem *FocusRing::around() const
{
    return m_around ? m_around : m_target;
}

void FocusRing::setAround(QQuickItem *item)
{
    if (item == m_around)
        return;
    m_around = item;
    if (isActive()) {
        hide();
        show();
    }
    Q_EMIT aroundChanged();
}

double FocusRing::radius() const
{
    return m_radius;
}

void FocusRing::setRadius(double radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    updateRing();
    Q_EMIT radiusChanged();
}

double FocusRing::offset() const
{
    return m_offset;
}

void FocusRing::setOffset(double offset)
{
    if (offset == m_offset)
        return;
    m_offset = offset;
    updateRing();
    Q_EMIT offsetChanged();
}

QString FocusRing::colorSetName() const
{
    return m_colorSetName;
}

void FocusRing::setColorSetName(const QString &name)
{
    if (name == m_colorSetName)
        return;
    m_colorSetName = name;
    updateRing();
    Q_EMIT colorSetNameChanged();
}

bool FocusRing::isActive() const
{
    return m_ring != nullptr;
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (isFromKeyboard(reason))
            show();
        else if (!isReturning(reason))
            hide();
        break;
    }
    case QEvent::FocusOut:
        if (!isReturning(static_cast<QFocusEvent *>(event)->reason()))
            hide();
        break;
    case QEvent::MouseButtonPress:
        hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void FocusRing::classBegin() { }

void FocusRing::componentComplete()
{
    if (!m_target)
        setTarget(qobject_cast<QQuickItem *>(parent()));
}

void FocusRing::show()
{
    QQuickItem *item = around();
    if (m_ring || !item)
        return;
    m_ring = new RingItem(item);
    for (const auto signal :
         {&QQuickItem::widthChanged, &QQuickItem::heightChanged, &QQuickItem::xChanged, &QQuickItem::yChanged})
        connect(item, signal, m_ring, [this] { updateRing(); });
    if (auto *application = qobject_cast<IWApplication *>(QCoreApplication::instance()))
        connect(application, &IWApplication::themeModeChanged, m_ring, [this] { updateRing(); });
    updateRing();
    Q_EMIT activeChanged();
}

void FocusRing::hide()
{
    if (!m_ring)
        return;
    m_ring->setVisible(false);
    m_ring->deleteLater();
    m_ring = nullptr;
    Q_EMIT activeChanged();
}

void FocusRing::updateRing()
{
    if (!m_ring)
        return;
    const QQuickItem *item = m_ring->parentItem();
    const double ratio = DevicePixels::ratioOf(item);
    const double thickness = DevicePixels::rounded(Thickness, ratio);
    const double offset = DevicePixels::rounded(m_offset, ratio);
    const double margin = offset + thickness;
    const QPointF place = item->mapToScene({});
    const QRectF inner = DevicePixels::rounded(QRectF(place, item->size()), ratio).translated(-place);
    const QRectF outer = inner.adjusted(-margin, -margin, margin, margin);
    m_ring->setPosition(outer.topLeft());
    m_ring->setSize(paintedSize(outer.size(), ratio));
    const QColor color = WThemeUtils::findColorSet(m_colorSetName).normal;
    static_cast<RingItem *>(m_ring.data())
        ->setRing({.color = color.isValid() ? color : QColor(Qt::transparent), // no colour set, no ring
                   .size = outer.size(),
                   .thickness = thickness,
                   .radius = std::max(0.0, m_radius + offset + thickness / 2)});
}
