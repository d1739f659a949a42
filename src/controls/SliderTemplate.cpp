#include "SliderTemplate.h"

#include "AliasSignals.h"
#include "Face.h"
#include "FocusRing.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double Length = 160;

// Halves up, also of negative numbers.
double rounded(double number)
{
    return std::floor(number + 0.5);
}

} // namespace

SliderTemplate::SliderTemplate(QQuickItem *parent)
    : QQuickSlider(parent)
    , m_handle(new Face(this))
    , m_bar(new Face(this))
    , m_fullBar(new Face(m_bar))
    , m_focusColorSetName(u"global-focus-outline"_s)
{
    m_handle->border()->setWidth(1);
    m_fullBar->border()->setWidth(1);
    setHandle(m_handle);
    setBackground(m_bar);
    setPadding(4);
    setStepSize(qQNaN()); // whatever it is set to is a change
    setHoverEnabled(true);
    setWheelEnabled(true);
    setFocusPolicy(Qt::StrongFocus);
}

SliderTemplate::~SliderTemplate()
{
    disconnect(this, nullptr, this, nullptr); // the focus is lost after this
    delete m_shownTooltip;
}

int SliderTemplate::handleWidth() const
{
    return m_handleWidth;
}

void SliderTemplate::setHandleWidth(int width)
{
    assign(m_handleWidth, width, &SliderTemplate::updateLayout);
}

int SliderTemplate::barThickness() const
{
    return m_barThickness;
}

void SliderTemplate::setBarThickness(int thickness)
{
    assign(m_barThickness, thickness, &SliderTemplate::updateLayout);
}

double SliderTemplate::handleRadius() const
{
    return m_handleRadius.value_or(m_handleWidth / 2.0);
}

void SliderTemplate::setHandleRadius(double radius)
{
    assign(m_handleRadius, {radius}, &SliderTemplate::updateLayout);
}

void SliderTemplate::resetHandleRadius()
{
    assign(m_handleRadius, {}, &SliderTemplate::updateLayout);
}

double SliderTemplate::handleX() const
{
    return m_handleX.value_or(handlePlace(true));
}

void SliderTemplate::setHandleX(double x)
{
    assign(m_handleX, {x}, &SliderTemplate::updateLayout);
}

void SliderTemplate::resetHandleX()
{
    assign(m_handleX, {}, &SliderTemplate::updateLayout);
}

double SliderTemplate::handleY() const
{
    return m_handleY.value_or(handlePlace(false));
}

void SliderTemplate::setHandleY(double y)
{
    assign(m_handleY, {y}, &SliderTemplate::updateLayout);
}

void SliderTemplate::resetHandleY()
{
    assign(m_handleY, {}, &SliderTemplate::updateLayout);
}

QString SliderTemplate::tooltip() const
{
    return m_tooltip ? *m_tooltip : locale().toString(value(), 'f', decimals());
}

void SliderTemplate::setTooltip(const QString &text)
{
    assign(m_tooltip, {text}, &SliderTemplate::updateTooltip);
}

void SliderTemplate::resetTooltip()
{
    assign(m_tooltip, {}, &SliderTemplate::updateTooltip);
}

int SliderTemplate::decimals() const
{
    return m_decimals.value_or(range() > 2 ? 0 : 2);
}

void SliderTemplate::setDecimals(int decimals)
{
    assign(m_decimals, {decimals}, &SliderTemplate::updateRange);
}

void SliderTemplate::resetDecimals()
{
    assign(m_decimals, {}, &SliderTemplate::updateRange);
}

double SliderTemplate::keyStep() const
{
    return m_keyStep.value_or(stepSize() > 0 ? stepSize() : range() / 100);
}

void SliderTemplate::setKeyStep(double step)
{
    assign(m_keyStep, {step}, &SliderTemplate::updateRange);
}

void SliderTemplate::resetKeyStep()
{
    assign(m_keyStep, {}, &SliderTemplate::updateRange);
}

double SliderTemplate::pageSize() const
{
    return m_pageSize.value_or(std::max(keyStep(), range() / 10));
}

void SliderTemplate::setPageSize(double size)
{
    assign(m_pageSize, {size}, &SliderTemplate::updateRange);
}

void SliderTemplate::resetPageSize()
{
    assign(m_pageSize, {}, &SliderTemplate::updateRange);
}

QString SliderTemplate::focusColorSetName() const
{
    return m_focusColorSetName;
}

void SliderTemplate::setFocusColorSetName(const QString &name)
{
    if (name == m_focusColorSetName)
        return;
    m_focusColorSetName = name;
    if (m_ring)
        m_ring->setColorSetName(name);
    Q_EMIT focusColorSetNameChanged();
}

StateColor *SliderTemplate::fullColor()
{
    return &m_fullColor;
}

StateColor *SliderTemplate::emptyColor()
{
    return &m_emptyColor;
}

StateColor *SliderTemplate::handleColor()
{
    return &m_handleColor;
}

StateColor *SliderTemplate::borderColor()
{
    return &m_borderColor;
}

void SliderTemplate::moveTo(double value)
{
    const double before = this->value();
    setValue(stepSize() > 0 ? from() + rounded((value - from()) / stepSize()) * stepSize() : value);
    if (this->value() != before)
        Q_EMIT moved();
}

void SliderTemplate::moveBy(double distance)
{
    moveTo(value() + (from() > to() ? -distance : distance));
}

void SliderTemplate::accessibleIncreaseAction()
{
    if (isEnabled())
        moveBy(keyStep());
}

void SliderTemplate::accessibleDecreaseAction()
{
    if (isEnabled())
        moveBy(-keyStep());
}

void SliderTemplate::connectNotify(const QMetaMethod &signal)
{
    QQuickSlider::connectNotify(signal);
    connectAlias(this, signal);
}

void SliderTemplate::componentComplete()
{
    m_ownsStepSize = !std::isnan(stepSize());
    if (!m_ownsStepSize)
        setStepSize(range() / 100);
    QQuickSlider::componentComplete();
    m_isReady = true;
    connect(this, &QQuickSlider::fromChanged, this, &SliderTemplate::updateRange);
    connect(this, &QQuickSlider::toChanged, this, &SliderTemplate::updateRange);
    connect(this, &QQuickSlider::stepSizeChanged, this, [this] {
        m_ownsStepSize = true;
        Q_EMIT rangeChanged();
    });
    connect(this, &QQuickSlider::valueChanged, this, &SliderTemplate::updateTooltip);
    connect(this, &QQuickSlider::visualPositionChanged, this, &SliderTemplate::updateLayout);
    connect(this, &QQuickSlider::orientationChanged, this, &SliderTemplate::updateLayout);
    connect(this, &QQuickSlider::pressedChanged, this, &SliderTemplate::updateState);
    connect(this, &QQuickControl::visualFocusChanged, this, &SliderTemplate::updateTooltip);
    updateLayout();
    updateState();
    showColors();
    Q_EMIT rangeChanged();
}

void SliderTemplate::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickSlider::itemChange(change, value);
    if (change == ItemEnabledHasChanged || change == ItemActiveFocusHasChanged)
        updateState();
}

void SliderTemplate::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickSlider::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        updateLayout();
}

void SliderTemplate::paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding)
{
    QQuickSlider::paddingChange(newPadding, oldPadding);
    updateLayout();
}

void SliderTemplate::mirrorChange()
{
    QQuickSlider::mirrorChange();
    updateLayout();
}

void SliderTemplate::hoverChange()
{
    QQuickSlider::hoverChange();
    updateState();
}

void SliderTemplate::localeChange(const QLocale &newLocale, const QLocale &oldLocale)
{
    QQuickSlider::localeChange(newLocale, oldLocale);
    updateTooltip();
}

void SliderTemplate::focusInEvent(QFocusEvent *event)
{
    QQuickSlider::focusInEvent(event);
    if (m_ring)
        return;
    m_ring = FocusRing::create(this, event);
    m_ring->setAround(handle());
    m_ring->setRadius(handleRadius());
    m_ring->setColorSetName(m_focusColorSetName);
}

void SliderTemplate::keyPressEvent(QKeyEvent *event)
{
    const double right = isHorizontal() && isMirrored() ? -keyStep() : keyStep();
    switch (event->key()) {
    case Qt::Key_Home:
        moveTo(from());
        break;
    case Qt::Key_End:
        moveTo(to());
        break;
    case Qt::Key_PageUp:
        moveBy(pageSize());
        break;
    case Qt::Key_PageDown:
        moveBy(-pageSize());
        break;
    case Qt::Key_Up:
        moveBy(keyStep());
        break;
    case Qt::Key_Down:
        moveBy(-keyStep());
        break;
    case Qt::Key_Left:
        moveBy(-right);
        break;
    case Qt::Key_Right:
        moveBy(right);
        break;
    default:
        QQuickSlider::keyPressEvent(event);
        return;
    }
    event->accept();
}

template<typename T> void SliderTemplate::assign(T &member, const T &value, void (SliderTemplate::*changed)())
{
    if (member == value)
        return;
    member = value;
    (this->*changed)();
}

double SliderTemplate::handlePlace(bool horizontally) const
{
    const double part = horizontally == isHorizontal() ? visualPosition() : 0.5;
    return horizontally ? leftPadding() + rounded(part * (availableWidth() - m_handleWidth))
                        : topPadding() + rounded(part * (availableHeight() - m_handleWidth));
}

double SliderTemplate::range() const
{
    return std::abs(to() - from());
}

void SliderTemplate::updateLayout()
{
    if (!m_isReady)
        return;
    updateImplicitSize();
    m_handle->setImplicitWidth(m_handleWidth);
    m_handle->setImplicitHeight(m_handleWidth);
    m_handle->setPosition({handleX(), handleY()});
    m_handle->setRadius(handleRadius());
    if (m_ring)
        m_ring->setRadius(handleRadius());

    const auto middle = [this](double room) { return rounded((room - m_barThickness) / 2); };
    if (isHorizontal()) {
        const double full = rounded(position() * availableWidth());
        m_bar->setPosition({leftPadding(), topPadding() + middle(availableHeight())});
        m_bar->setSize({availableWidth(), double(m_barThickness)});
        m_fullBar->setPosition({isMirrored() ? availableWidth() - full : 0, 0});
        m_fullBar->setSize({full, double(m_barThickness)});
    } else {
        const double full = rounded(position() * availableHeight());
        m_bar->setPosition({leftPadding() + middle(availableWidth()), topPadding()});
        m_bar->setSize({double(m_barThickness), availableHeight()});
        m_fullBar->setPosition({0, availableHeight() - full});
        m_fullBar->setSize({double(m_barThickness), full});
    }
    m_bar->setRadius(m_barThickness / 2.0);
    m_fullBar->setRadius(m_barThickness / 2.0);
    Q_EMIT layoutChanged();
}

// A size that somebody has set stays.
void SliderTemplate::updateImplicitSize()
{
    const double thickness = std::max(m_handleWidth, m_barThickness);
    const QSizeF size((isHorizontal() ? Length : thickness) + leftPadding() + rightPadding(),
                      (isHorizontal() ? thickness : Length) + topPadding() + bottomPadding());
    const QSizeF before = std::exchange(m_implicitSize, size);
    setImplicitSize(implicitWidth() == before.width() ? size.width() : implicitWidth(),
                    implicitHeight() == before.height() ? size.height() : implicitHeight());
}

void SliderTemplate::updateRange()
{
    if (!m_isReady)
        return;
    if (!m_ownsStepSize) {
        setStepSize(range() / 100);
        m_ownsStepSize = false;
    }
    Q_EMIT rangeChanged();
    updateTooltip();
}

void SliderTemplate::showColors()
{
    if (!m_isReady)
        return;
    m_handle->setColor(m_handleColor.color());
    m_handle->border()->setColor(m_borderColor.color());
    m_bar->setColor(m_emptyColor.color());
    m_fullBar->setColor(m_fullColor.color());
    m_fullBar->border()->setColor(m_borderColor.color());
}

void SliderTemplate::updateState()
{
    if (!m_isReady)
        return;
    QStyle::State state;
    state.setFlag(QStyle::State_Enabled, isEnabled());
    state.setFlag(QStyle::State_Sunken, isPressed());
    state.setFlag(QStyle::State_MouseOver, isHovered());
    state.setFlag(QStyle::State_HasFocus, hasActiveFocus());
    m_state.setState(state);
    updateTooltip();
}

void SliderTemplate::updateTooltip()
{
    if (!m_isReady)
        return;
    Q_EMIT tooltipChanged();
    const bool isWanted = isPressed() || hasVisualFocus();
    if (!isWanted && !m_shownTooltip)
        return;
    const QString text = tooltip();
    if (!isWanted || text.isEmpty()) {
        if (m_shownTooltip)
            m_shownTooltip->deleteLater();
        m_shownTooltip = nullptr;
    } else if (m_shownTooltip) {
        m_shownTooltip->setProperty("text", text);
    } else if (handle()) {
        QQmlComponent component(qmlEngine(this), QUrl(u"qrc:/Qml/WToolTip.qml"_s));
        m_shownTooltip = component.createWithInitialProperties(
            {{u"parent"_s, QVariant::fromValue(handle())}, {u"text"_s, text}, {u"visible"_s, true}}, qmlContext(this));
        if (m_shownTooltip)
            m_shownTooltip->setParent(handle());
    }
}
