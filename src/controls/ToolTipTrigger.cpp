#include "ToolTipTrigger.h"

#include "ToolTipUtils.h"

#include <QFocusEvent>

#include <QtQuick/private/qquicktext_p.h>

#include <chrono>

using namespace std::chrono_literals;

namespace {
constexpr auto Delay = 500ms;
}

ToolTipTrigger::ToolTipTrigger(QObject *parent)
    : QObject(parent)
{
}

ToolTipTrigger::~ToolTipTrigger()
{
    hide();
}

QString ToolTipTrigger::text() const
{
    return m_text;
}

void ToolTipTrigger::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    if (m_shown) // on screen: replaced at once, or hidden when there is no text any more
        ToolTipUtils().tooltip(true, text, m_target, true);
    watch();
    Q_EMIT textChanged();
}

QQuickItem *ToolTipTrigger::target() const
{
    return m_target;
}

void ToolTipTrigger::setTarget(QQuickItem *target)
{
    if (target == m_target)
        return;
    hide();
    if (m_target && m_watching) {
        m_target->removeEventFilter(this);
        m_target->disconnect(this);
    }
    m_watching = false;
    m_target = target;
    watch();
    Q_EMIT targetChanged();
}

bool ToolTipTrigger::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
        m_timer.start(Delay, this);
        break;
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            m_timer.start(Delay, this);
        break;
    }
    case QEvent::HoverLeave:
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ToolTipTrigger::classBegin() { }

void ToolTipTrigger::componentComplete()
{
    if (!m_target)
        setTarget(qobject_cast<QQuickItem *>(parent()));
}

void ToolTipTrigger::timerEvent(QTimerEvent *)
{
    m_timer.stop();
    if (!m_target || !m_target->isVisible() || m_text.isEmpty())
        return;
    m_shown = true;
    ToolTipUtils().tooltip(true, m_text, m_target, true);
}

void ToolTipTrigger::watch()
{
    if (m_watching || !m_target || m_text.isEmpty())
        return;
    m_watching = true;
    acceptHover();
    m_target->installEventFilter(this);
    // A text takes hover events for its links only, and decides that anew with every text and when it is complete.
    QMetaObject::invokeMethod(this, &ToolTipTrigger::acceptHover, Qt::QueuedConnection);
    if (const auto *text = qobject_cast<QQuickText *>(m_target))
        connect(text, &QQuickText::textChanged, this, &ToolTipTrigger::acceptHover);
}

void ToolTipTrigger::acceptHover()
{
    if (m_target)
        m_target->setAcceptHoverEvents(true);
}

void ToolTipTrigger::hide()
{
    m_timer.stop();
    if (std::exchange(m_shown, false))
        ToolTipUtils().hideTooltip();
}
