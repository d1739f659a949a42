#include "WCheckBoxTemplate.h"

#include "DevicePixels.h"
#include "Face.h"
#include "ImageTemplate.h"
#include "ToolTips.h"

#include <QQmlEngine>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Unchecked = "checkbox-unchecked-"_L1;
constexpr auto Checked = "checkbox-checked-"_L1;

} // namespace

WCheckBoxTemplate::WCheckBoxTemplate(QQuickItem *parent)
    : FocusableButton(parent)
    , m_box(new Face(this))
    , m_focusColorSetName(u"global-focus-outline"_s)
{
    m_box->border()->setWidth(1);
    setIndicator(m_box);
    setFocusPolicy(Qt::StrongFocus);
    setHoverEnabled(true);
    connect(this, &QQuickCheckBox::checkStateChanged, this, &WCheckBoxTemplate::showCheckState);
}

WCheckBoxTemplate::~WCheckBoxTemplate() = default;

StateColor *WCheckBoxTemplate::indicatorColors()
{
    return &m_indicatorColors;
}

StateColor *WCheckBoxTemplate::borderColors()
{
    return &m_borderColors;
}

StateColor *WCheckBoxTemplate::textColors()
{
    return &m_textColors;
}

StateColor *WCheckBoxTemplate::checkIconColors()
{
    return &m_checkIconColors;
}

int WCheckBoxTemplate::checkboxSize() const
{
    return m_checkboxSize;
}

void WCheckBoxTemplate::setCheckboxSize(int size)
{
    change(m_checkboxSize, size);
}

int WCheckBoxTemplate::checkboxRadius() const
{
    return m_checkboxRadius;
}

void WCheckBoxTemplate::setCheckboxRadius(int radius)
{
    change(m_checkboxRadius, radius);
}

QString WCheckBoxTemplate::checkIconName() const
{
    if (!m_checkIconName.isNull())
        return m_checkIconName;
    return checkState() == Qt::PartiallyChecked ? u"minus-bold"_s : u"check-bold"_s;
}

// Empty, too, is a name: that of no icon.
void WCheckBoxTemplate::setCheckIconName(const QString &name)
{
    change(m_checkIconName, name.isNull() ? u""_s : name);
}

QString WCheckBoxTemplate::focusColorSetName() const
{
    return m_focusColorSetName;
}

void WCheckBoxTemplate::setFocusColorSetName(const QString &name)
{
    change(m_focusColorSetName, name);
}

QString WCheckBoxTemplate::tooltip() const
{
    return m_tooltip;
}

void WCheckBoxTemplate::setTooltip(const QString &tooltip)
{
    if (tooltip == m_tooltip)
        return;
    m_tooltip = tooltip;
    ToolTips::set(this, tooltip);
    updateName();
    Q_EMIT tooltipChanged();
}

bool WCheckBoxTemplate::isEmpty() const
{
    return checkState() == Qt::Unchecked;
}

void WCheckBoxTemplate::accessiblePressAction()
{
    click();
}

void WCheckBoxTemplate::accessibleToggleAction()
{
    click();
}

void WCheckBoxTemplate::componentComplete()
{
    FocusableButton::componentComplete();
    m_isReady = true;
    showCheckState();
    showColors();
}

void WCheckBoxTemplate::itemChange(ItemChange change, const ItemChangeData &value)
{
    FocusableButton::itemChange(change, value);
    if (change == ItemEnabledHasChanged)
        m_state.setState(pointerState());
    else if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        showLooks();
}

void WCheckBoxTemplate::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    FocusableButton::geometryChange(newGeometry, oldGeometry);
    showLooks();
}

void WCheckBoxTemplate::paddingChange(const QMarginsF &newPadding, const QMarginsF &oldPadding)
{
    FocusableButton::paddingChange(newPadding, oldPadding);
    showLooks();
}

void WCheckBoxTemplate::mirrorChange()
{
    FocusableButton::mirrorChange();
    showLooks();
}

void WCheckBoxTemplate::keyPressEvent(QKeyEvent *event)
{
    if (!clickByKey(event))
        FocusableButton::keyPressEvent(event);
}

void WCheckBoxTemplate::hoverChange()
{
    FocusableButton::hoverChange();
    m_state.setState(pointerState());
}

void WCheckBoxTemplate::buttonChange(ButtonChange change)
{
    FocusableButton::buttonChange(change);
    if (change == ButtonPressedChanged)
        m_state.setState(pointerState());
}

QString WCheckBoxTemplate::nameWithoutText() const
{
    return m_tooltip;
}

void WCheckBoxTemplate::prepare(FocusRing *ring)
{
    m_ring = ring;
    ring->setAround(indicator());
    showLooks();
}

void WCheckBoxTemplate::setAccessibility()
{
    FocusableButton::setAccessibility();
    accessibleOf(this)->set_checkStateMixed(checkState() == Qt::PartiallyChecked);
}

template<typename T> void WCheckBoxTemplate::change(T &member, const T &value)
{
    if (value == member)
        return;
    member = value;
    showLooks();
    Q_EMIT looksChanged();
}

void WCheckBoxTemplate::showColors()
{
    if (!m_box)
        return;
    m_box->setColor(m_indicatorColors.color());
    m_box->border()->setColor(m_borderColors.color());
    if (m_icon)
        m_icon->iconColors()->setColor(m_checkIconColors.color());
}

void WCheckBoxTemplate::showCheckState()
{
    if (!m_isReady)
        return;
    for (StateColor *color : {&m_indicatorColors, &m_borderColors, &m_textColors})
        color->exchangePrefix(isEmpty() ? Checked : Unchecked, isEmpty() ? Unchecked : Checked);
    if (isExposed())
        accessibleOf(this)->set_checkStateMixed(checkState() == Qt::PartiallyChecked);
    showLooks();
    Q_EMIT looksChanged();
}

// The box on whole pixels of the device, the icon in its middle.
void WCheckBoxTemplate::showLooks()
{
    if (!m_isReady || !m_box)
        return;
    const double y = topPadding() + (availableHeight() - m_checkboxSize) / 2;
    m_box->setImplicitWidth(m_checkboxSize);
    m_box->setImplicitHeight(m_checkboxSize);
    m_box->setPosition({isMirrored() ? width() - m_checkboxSize - rightPadding() : leftPadding(),
                        DevicePixels::rounded(std::round(y), DevicePixels::ratioOf(this))});
    m_box->setRadius(m_checkboxRadius);

    if (isEmpty()) {
        delete m_icon;
    } else {
        if (!m_icon) {
            m_icon = new ImageTemplate(m_box);
            QQmlEngine::setContextForObject(m_icon, qmlContext(this));
            m_icon->setFillMode(QQuickImage::PreserveAspectFit);
            m_icon->setIcon(true);
            m_icon->iconColors()->setColor(m_checkIconColors.color());
        }
        const double side = std::max(0, m_checkboxSize - 4);
        m_icon->setSize({side, side});
        m_icon->setPosition({(m_checkboxSize - side) / 2, (m_checkboxSize - side) / 2});
        m_icon->setSvgName(checkIconName());
    }
    if (m_ring) {
        m_ring->setRadius(m_checkboxRadius);
        m_ring->setColorSetName(m_focusColorSetName);
    }
}
