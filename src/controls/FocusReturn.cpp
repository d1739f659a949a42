#include "FocusReturn.h"

#include <QPointer>
#include <QQuickWindow>

#include <memory>

namespace {

// What had the focus, for as long as the popup is shown.
class FormerFocus : public QObject
{
    Q_OBJECT

public:
    explicit FormerFocus(QQuickItem *popup)
        : QObject(popup)
        , m_popup(popup)
        , m_window(popup->window())
        , m_item(m_window->activeFocusItem())
    {
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this, &FormerFocus::follow);
    }

    void giveBack()
    {
        if (m_isTaken && m_item && m_item->window() == m_window && m_item->isVisible() && m_item->isEnabled())
            m_item->forceActiveFocus(Qt::PopupFocusReason);
    }

private:
    // A popup that lets go leaves the focus to a scope, the window's content; who takes it has it himself.
    void follow()
    {
        const QQuickItem *item = m_window->activeFocusItem();
        if (item && (item == m_popup || m_popup->isAncestorOf(item)))
            m_isTaken = true;
        else if (item && !item->isFocusScope())
            m_isTaken = false;
    }

    QQuickItem *m_popup;
    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_item;
    bool m_isTaken = false;
};

FormerFocus *formerFocus(const QQuickItem *popup)
{
    return popup ? popup->findChild<FormerFocus *>(Qt::FindDirectChildrenOnly) : nullptr;
}

} // namespace

void FocusReturn::remember(QQuickItem *popup) const
{
    delete formerFocus(popup);
    if (popup && popup->window())
        new FormerFocus(popup);
}

void FocusReturn::giveBack(QQuickItem *popup) const
{
    const std::unique_ptr<FormerFocus> former(formerFocus(popup));
    if (former)
        former->giveBack();
}

#include "FocusReturn.moc"
