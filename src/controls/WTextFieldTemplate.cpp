#include "WTextFieldTemplate.h"

#include "AliasSignals.h"
#include "Face.h"
#include "FocusRing.h"

#include <QQmlEngine>

#include <QtQuick/private/qquickaccessibleattached_p.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Prefix = "textinput-"_L1;
constexpr auto ErrorPrefix = "textinput-error-"_L1;

} // namespace

WTextFieldTemplate::WTextFieldTemplate(QQuickItem *parent)
    : QQuickTextField(parent)
    , m_focusColorSetName(u"global-focus-outline"_s)
{
    m_selectionColors.setColorSetName(u"button-primary-background"_s);
    m_selectedTextColors.setColorSetName(u"button-primary-text"_s);
    setHoverEnabled(true);
    connect(this, &QQuickTextInput::readOnlyChanged, this, &WTextFieldTemplate::updateState);
    connect(this, &QQuickTextField::placeholderTextChanged, this, &WTextFieldTemplate::updatePlaceholder);
}

WTextFieldTemplate::~WTextFieldTemplate() = default;

void WTextFieldTemplate::setColor(const QColor &color)
{
    m_textColors.setColor(color);
}

void WTextFieldTemplate::resetColor()
{
    m_textColors.resetColor();
}

void WTextFieldTemplate::setSelectionColor(const QColor &color)
{
    m_selectionColors.setColor(color);
}

void WTextFieldTemplate::resetSelectionColor()
{
    m_selectionColors.resetColor();
}

void WTextFieldTemplate::setSelectedTextColor(const QColor &color)
{
    m_selectedTextColors.setColor(color);
}

void WTextFieldTemplate::resetSelectedTextColor()
{
    m_selectedTextColors.resetColor();
}

StateColor *WTextFieldTemplate::textColors()
{
    return &m_textColors;
}

StateColor *WTextFieldTemplate::borderColors()
{
    return &m_borderColors;
}

StateColor *WTextFieldTemplate::backgroundColors()
{
    return &m_backgroundColors;
}

StateColor *WTextFieldTemplate::placeholderColors()
{
    return &m_placeholderColors;
}

double WTextFieldTemplate::radius() const
{
    return m_radius;
}

void WTextFieldTemplate::setRadius(double radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    showLooks();
    Q_EMIT looksChanged();
}

int WTextFieldTemplate::borderWidth() const
{
    return m_borderWidth;
}

void WTextFieldTemplate::setBorderWidth(int width)
{
    if (width == m_borderWidth)
        return;
    m_borderWidth = width;
    showLooks();
    Q_EMIT looksChanged();
}

QString WTextFieldTemplate::focusColorSetName() const
{
    return m_focusColorSetName;
}

void WTextFieldTemplate::setFocusColorSetName(const QString &name)
{
    if (name == m_focusColorSetName)
        return;
    m_focusColorSetName = name;
    showLooks();
    Q_EMIT looksChanged();
}

bool WTextFieldTemplate::showErrorState() const
{
    return m_showErrorState;
}

void WTextFieldTemplate::setShowErrorState(bool showErrorState)
{
    if (showErrorState == m_showErrorState)
        return;
    m_showErrorState = showErrorState;
    for (StateColor *color : {&m_textColors, &m_borderColors, &m_backgroundColors}) {
        color->exchangePrefix(ErrorPrefix, Prefix);
        if (showErrorState)
            color->exchangePrefix(Prefix, ErrorPrefix);
    }
    Q_EMIT showErrorStateChanged();
}

QQmlComponent *WTextFieldTemplate::placeholder() const
{
    return m_placeholder;
}

void WTextFieldTemplate::setPlaceholder(QQmlComponent *placeholder)
{
    if (placeholder == m_placeholder)
        return;
    delete m_placeholderItem;
    m_placeholder = placeholder;
    updatePlaceholder();
    Q_EMIT placeholderChanged();
}

double WTextFieldTemplate::placeholderWidth() const
{
    return m_placeholderWidth;
}

void WTextFieldTemplate::connectNotify(const QMetaMethod &signal)
{
    QQuickTextField::connectNotify(signal);
    connectAlias(this, signal);
}

void WTextFieldTemplate::componentComplete()
{
    updatePlaceholder();
    updateState();
    showLooks();
    showColors();
    QQuickTextField::componentComplete();
    setComplete(this);
}

void WTextFieldTemplate::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickTextField::itemChange(change, value);
    if (change == ItemEnabledHasChanged || change == ItemActiveFocusHasChanged)
        updateState();
}

void WTextFieldTemplate::focusInEvent(QFocusEvent *event)
{
    QQuickTextField::focusInEvent(event);
    if (m_ring)
        return;
    m_ring = FocusRing::create(this, event);
    showLooks();
}

void WTextFieldTemplate::hoverEnterEvent(QHoverEvent *event)
{
    QQuickTextField::hoverEnterEvent(event);
    updateState();
}

void WTextFieldTemplate::hoverLeaveEvent(QHoverEvent *event)
{
    QQuickTextField::hoverLeaveEvent(event);
    updateState();
}

void WTextFieldTemplate::setAccessibility()
{
    QQuickAccessibleAttached *attached = accessibleOf(this);
    if (attached->role() == QAccessible::NoRole)
        attached->setRole(QAccessible::EditableText);
    updateAccessibility();
}

void WTextFieldTemplate::showColors()
{
    QQuickTextField::setColor(m_textColors.color());
    QQuickTextField::setSelectionColor(m_selectionColors.color());
    QQuickTextField::setSelectedTextColor(m_selectedTextColors.color());
    if (auto *face = qobject_cast<Face *>(background())) {
        face->setColor(m_backgroundColors.color());
        face->border()->setColor(m_borderColors.color());
        face->border()->setWidth(m_borderColors.colorSetName().isEmpty() ? 0 : m_borderWidth);
    }
}

void WTextFieldTemplate::showLooks()
{
    if (auto *face = qobject_cast<Face *>(background())) {
        face->setRadius(m_radius);
        face->border()->setWidth(m_borderColors.colorSetName().isEmpty() ? 0 : m_borderWidth);
    }
    if (m_ring) {
        m_ring->setRadius(m_radius);
        m_ring->setColorSetName(m_focusColorSetName);
    }
}

void WTextFieldTemplate::updateState()
{
    QStyle::State state;
    state.setFlag(QStyle::State_Enabled, isEnabled());
    state.setFlag(QStyle::State_ReadOnly, isReadOnly());
    state.setFlag(QStyle::State_MouseOver, isHovered());
    state.setFlag(QStyle::State_HasFocus, hasActiveFocus());
    m_state.setState(state);
    updateAccessibility();
}

void WTextFieldTemplate::updatePlaceholder()
{
    updateAccessibility();
    if (placeholderText().isEmpty() || m_placeholderItem || !m_placeholder)
        return;
    m_placeholderItem = qobject_cast<QQuickItem *>(m_placeholder->createWithInitialProperties(
        {{u"parent"_s, QVariant::fromValue<QQuickItem *>(this)}}, m_placeholder->creationContext()));
    if (!m_placeholderItem)
        return;
    m_placeholderItem->setParent(this);
    QQmlEngine::setObjectOwnership(m_placeholderItem, QQmlEngine::CppOwnership);
    connect(m_placeholderItem, &QQuickItem::implicitWidthChanged, this, &WTextFieldTemplate::updatePlaceholderWidth);
    updatePlaceholderWidth();
}

// A text tells of its width also when that is as before.
void WTextFieldTemplate::updatePlaceholderWidth()
{
    const double width = m_placeholderItem ? m_placeholderItem->implicitWidth() : 0;
    if (width == m_placeholderWidth)
        return;
    m_placeholderWidth = width;
    Q_EMIT placeholderWidthChanged();
}

void WTextFieldTemplate::updateAccessibility()
{
    if (!isExposed())
        return;
    setName(this, placeholderText());
    accessibleOf(this)->set_readOnly(isReadOnly());
}
