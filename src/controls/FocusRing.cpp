#include "FocusRing.h"

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

    void setRing(const QColor &color, double radius)
    {
        m_color = color.isValid() ? color : QColor(Qt::transparent); // no colour set, no ring
        m_radius = radius;
        update();
    }

    void paint(QPainter *painter) override
    {
        constexpr double Half = Thickness / 2;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(m_color, Thickness));
        painter->drawRoundedRect(QRectF(QPointF(), size()).adjusted(Half, Half, -Half, -Half), m_radius, m_radius);
    }

private:
    QColor m_color;
    double m_radius = 0;
};

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
    connect(item, &QQuickItem::widthChanged, m_ring, [this] { updateRing(); });
    connect(item, &QQuickItem::heightChanged, m_ring, [this] { updateRing(); });
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
    const double margin = m_offset + Thickness;
    const QSizeF inner = m_ring->parentItem()->size();
    m_ring->setPosition({-margin, -margin});
    m_ring->setSize(inner + QSizeF(2 * margin, 2 * margin));
    static_cast<RingItem *>(m_ring.data())
        ->setRing(WThemeUtils::findColorSet(m_colorSetName).normal,
                  std::max(0.0, m_radius + m_offset + Thickness / 2));
}
