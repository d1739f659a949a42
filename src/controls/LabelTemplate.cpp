#include "LabelTemplate.h"

LabelTemplate::LabelTemplate(QQuickItem *parent)
    : ThemedText(parent)
{
}

LabelTemplate::~LabelTemplate() = default;

void LabelTemplate::setToolTipText(const QString &text)
{
    if (changeToolTip(text))
        Q_EMIT toolTipTextChanged();
}
