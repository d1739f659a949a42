#include "WButtonContent.h"

#include "WButtonTemplate.h"

WButtonContent::WButtonContent(QQuickItem *parent)
    : QQuickText(parent)
{
    setTextFormat(PlainText);
}

void WButtonContent::showLooks(const WButtonTemplate &button)
{
    setText(button.text());
    setFont(button.font());
    setElideMode(TextElideMode(button.elide()));
    setHAlign(HAlignment(button.horizontalAlignment()));
    setVAlign(VAlignment(button.verticalAlignment()));
}

// Before the text lays itself out: once is enough.
void WButtonContent::componentComplete()
{
    if (const auto *button = qobject_cast<WButtonTemplate *>(parentItem()))
        showLooks(*button);
    QQuickText::componentComplete();
}
