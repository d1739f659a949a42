#pragma once

#include "AccessibleOnDemand.h"
#include "AliasSignals.h"
#include "ControlState.h"
#include "StateColor.h"
#include "ToolTips.h"

#include <QAccessible>

#include <QtQuick/private/qquickaccessibleattached_p.h>
#include <QtQuickTemplates2/private/qquicklabel_p.h>

#include <type_traits>

/// A text in a colour of a colour set, with a tooltip, and known to assistive technology: what Text and Label templates
/// share. The properties are theirs.
template<typename Base> class ThemedText : public Base, public AccessibleOnDemand, private ControlState::User
{
public:
    explicit ThemedText(QQuickItem *parent)
        : Base(parent)
    {
    }

    /// That of the state, unless another is set; both by the same property.
    void setColor(const QColor &color) { m_textColors.setColor(color); }
    void resetColor() { m_textColors.resetColor(); }

    StateColor *textColors() { return &m_textColors; }

    QString toolTipText() const { return m_toolTipText; }

protected:
    /// Whether the text is another now.
    bool changeToolTip(const QString &text)
    {
        if (text == m_toolTipText)
            return false;
        m_toolTipText = text;
        ToolTips::set(this, text);
        if (isExposed())
            setAccessibility();
        return true;
    }

    /// By mouse, in addition to what every item knows.
    virtual QStyle::State pointerState() const { return {}; }

    void updateState()
    {
        QStyle::State state = pointerState();
        state.setFlag(QStyle::State_Enabled, Base::isEnabled());
        state.setFlag(QStyle::State_HasFocus, Base::hasActiveFocus());
        m_state.setState(state);
    }

    void componentComplete() override
    {
        showColors();
        Base::componentComplete();
        setComplete(this);
    }

    void itemChange(QQuickItem::ItemChange change, const QQuickItem::ItemChangeData &data) override
    {
        Base::itemChange(change, data);
        if (change == QQuickItem::ItemEnabledHasChanged || change == QQuickItem::ItemActiveFocusHasChanged)
            updateState();
    }

    void connectNotify(const QMetaMethod &signal) override
    {
        Base::connectNotify(signal);
        connectAlias(this, signal);
    }

    void setAccessibility() override
    {
        QQuickAccessibleAttached *attached = accessibleOf(this);
        // Also where it has that role by itself: with it comes that the text cannot be edited.
        if (attached->role() == QAccessible::NoRole || attached->role() == QAccessible::StaticText)
            attached->setRole(QAccessible::StaticText);
        if (!m_naming && (!namesItself() || !m_toolTipText.isEmpty()))
            m_naming = QObject::connect(this, &Base::textChanged, this, [this] { updateName(); });
        updateName();
    }

private:
    void showColors() override { Base::setColor(m_textColors.color()); }

    /// A label is called by its text, if it has one.
    static constexpr bool namesItself() { return std::is_same_v<Base, QQuickLabel>; }

    void updateName()
    {
        if (!namesItself() || Base::text().isEmpty())
            setName(this, Base::text().isEmpty() ? m_toolTipText : Base::text());
    }

    ControlState m_state{this};
    StateColor m_textColors{&m_state};
    QString m_toolTipText;
    QMetaObject::Connection m_naming;
};
