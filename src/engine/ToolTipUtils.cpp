#include "ToolTipUtils.h"

#include "FontUtils.h"

#include <QCursor>
#include <QToolTip>

namespace {

void showAt(const QPoint &position, const QString &text, bool wrap)
{
    QToolTip::showText(position, FontUtils::toHtml(text, FontUtils::SegoeUIWithEmoji, wrap), nullptr, {}, -1);
}

} // namespace

ToolTipUtils::ToolTipUtils(QObject *parent)
    : QObject(parent)
{
}

ToolTipUtils::~ToolTipUtils() = default;

void ToolTipUtils::tooltip(bool show, const QString &text, const QPoint &location)
{
    if (show && !text.isEmpty())
        showAt(location, text, true);
    else
        hideTooltip();
}

void ToolTipUtils::tooltip(bool show, const QString &text, QQuickItem *item, bool isWordWrappedEnabled)
{
    if (!show || !item || text.isEmpty() || !(item->opacity() > 0)) {
        hideTooltip();
        return;
    }
    const QRect rect(item->mapToGlobal(QPointF()).toPoint(), item->size().toSize());
    const QPoint cursor = QCursor::pos();
    showAt(rect.contains(cursor) ? cursor : rect.center(), text, isWordWrappedEnabled);
}

void ToolTipUtils::hideTooltip()
{
    QToolTip::hideText();
}
