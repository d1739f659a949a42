#include "WButtonTemplate.h"

#include "Face.h"
#include "FocusRing.h"
#include "ToolTips.h"
#include "WButtonContent.h"

using namespace Qt::StringLiterals;

WButtonTemplate::WButtonTemplate(QQuickItem *parent)
    : FocusableButton(parent)
    , m_focusColorSetName(u"global-focus-outline"_s)
{
    setFocusPolicy(Qt::StrongFocus);
    setHoverEnabled(true);
}

WButtonTemplate::~WButtonTemplate() = default;

StateColor *WButtonTemplate::backgroundColors()
{
    return &m_backgroundColors;
}

StateColor *WButtonTemplate::borderColors()
{
    return &m_borderColors;
}

StateColor *WButtonTemplate::textColors()
{
    return &m_textColors;
}

QString WButtonTemplate::focusColorSetName() const
{
    return m_focusColorSetName;
}

void WButtonTemplate::setFocusColorSetName(const QString &name)
{
    change(m_focusColorSetName, name);
}

QString WButtonTemplate::tooltip() const
{
    return m_tooltip;
}

void WButtonTemplate::setTooltip(const QString &tooltip)
{
    if (tooltip == m_tooltip)
        return;
    m_tooltip = tooltip;
    ToolTips::set(this, tooltip);
    updateName();
    Q_EMIT tooltipChanged();
}

int WButtonTemplate::horizontalAlignment() const
{
    return m_horizontalAlignment;
}

void WButtonTemplate::setHorizontalAlignment(int alignment)
{
    change(m_horizontalAlignment, alignment);
}

int WButtonTemplate::verticalAlignment() const
{
    return m_verticalAlignment;
}

void WButtonTemplate::setVerticalAlignment(int alignment)
{
    change(m_verticalAlignment, alignment);
}

int WButtonTemplate::borderWidth() const
{
    return m_borderWidth;
}

void WButtonTemplate::setBorderWidth(int width)
{
    change(m_borderWidth, width);
}

double WButtonTemplate::radius() const
{
    return m_radius;
}

void WButtonTemplate::setRadius(double radius)
{
    change(m_radius, radius);
}

bool WButtonTemplate::isRectangle() const
{
    return m_isRectangle;
}

void WButtonTemplate::setRectangle(bool isRectangle)
{
    change(m_isRectangle, isRectangle);
}

int WButtonTemplate::elide() const
{
    return m_elide;
}

void WButtonTemplate::setElide(int elide)
{
    change(m_elide, elide);
}

double WButtonTemplate::cornerRadius() const
{
    return m_isRectangle ? m_radius : height() / 2;
}

void WButtonTemplate::accessiblePressAction()
{
    click();
}

void WButtonTemplate::accessibleToggleAction()
{
    click();
}

void WButtonTemplate::componentComplete()
{
    FocusableButton::componentComplete();
    showLooks();
    showColors();
}

void WButtonTemplate::itemChange(ItemChange change, const ItemChangeData &value)
{
    FocusableButton::itemChange(change, value);
    if (change == ItemEnabledHasChanged || change == ItemActiveFocusHasChanged)
        updateState();
}

void WButtonTemplate::keyPressEvent(QKeyEvent *event)
{
    if (!clickByKey(event))
        FocusableButton::keyPressEvent(event);
}

void WButtonTemplate::hoverChange()
{
    FocusableButton::hoverChange();
    updateState();
}

void WButtonTemplate::buttonChange(ButtonChange change)
{
    FocusableButton::buttonChange(change);
    if (change == ButtonTextChange)
        showLooks();
    else if (change == ButtonCheckedChange || change == ButtonPressedChanged)
        updateState();
}

void WButtonTemplate::fontChange(const QFont &newFont, const QFont &oldFont)
{
    FocusableButton::fontChange(newFont, oldFont);
    showLooks();
}

void WButtonTemplate::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    FocusableButton::geometryChange(newGeometry, oldGeometry);
    if (m_isRectangle || newGeometry.height() == oldGeometry.height())
        return;
    showLooks();
    Q_EMIT looksChanged();
}

QString WButtonTemplate::nameWithoutText() const
{
    return m_tooltip;
}

void WButtonTemplate::prepare(FocusRing *ring)
{
    m_ring = ring;
    updateRing();
}

template<typename T> void WButtonTemplate::change(T &member, const T &value)
{
    if (value == member)
        return;
    member = value;
    showLooks();
    Q_EMIT looksChanged();
}

bool WButtonTemplate::hasBorder() const
{
    return !m_borderColors.colorSetName().isEmpty();
}

// What somebody has put in the place of the content looks after itself, likewise the background.
void WButtonTemplate::showLooks()
{
    if (!isComponentComplete())
        return;
    if (auto *content = qobject_cast<WButtonContent *>(contentItem()))
        content->showLooks(*this);
    if (auto *face = qobject_cast<Face *>(background())) {
        face->setRadius(cornerRadius());
        face->border()->setWidth(hasBorder() ? m_borderWidth : 0);
    }
    updateRing();
}

void WButtonTemplate::showColors()
{
    if (!isComponentComplete())
        return;
    if (auto *content = qobject_cast<WButtonContent *>(contentItem()))
        content->setColor(m_textColors.color());
    if (auto *face = qobject_cast<Face *>(background())) {
        face->setColor(m_backgroundColors.color());
        face->border()->setColor(m_borderColors.color());
        face->border()->setWidth(hasBorder() ? m_borderWidth : 0);
    }
}

void WButtonTemplate::updateState()
{
    QStyle::State state = pointerState();
    state.setFlag(QStyle::State_HasFocus, hasActiveFocus());
    state.setFlag(QStyle::State_On, isChecked());
    m_state.setState(state);
}

void WButtonTemplate::updateRing()
{
    if (!m_ring)
        return;
    m_ring->setRadius(cornerRadius());
    m_ring->setColorSetName(m_focusColorSetName);
}
