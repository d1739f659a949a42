#include "ToolTips.h"

#include "ToolTipTrigger.h"

void ToolTips::set(QQuickItem *item, const QString &text)
{
    if (!item)
        return;
    auto *trigger = item->findChild<ToolTipTrigger *>(Qt::FindDirectChildrenOnly);
    if (!trigger) {
        if (text.isEmpty())
            return;
        trigger = new ToolTipTrigger(item);
        trigger->setTarget(item);
    }
    trigger->setText(text);
}
