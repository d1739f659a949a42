#pragma once

#include "ThemedText.h"

#include <QtQuickTemplates2/private/qquicklabel_p.h>

/// A Label in a colour of a colour set.
class LabelTemplate : public ThemedText<QQuickLabel>
{
    Q_OBJECT
    Q_INTERFACES(AccessibleOnDemand)
    /// That of `textColors`, unless it is set.
    Q_PROPERTY(QColor color READ color WRITE setColor RESET resetColor NOTIFY colorChanged)
    Q_PROPERTY(StateColor *textColors READ textColors CONSTANT)
    /// Shown when the cursor rests on the label; its accessible name where it has no text.
    Q_PROPERTY(QString toolTipText READ toolTipText WRITE setToolTipText NOTIFY toolTipTextChanged)

public:
    explicit LabelTemplate(QQuickItem *parent = nullptr);
    ~LabelTemplate() override;

    void setToolTipText(const QString &text);

Q_SIGNALS:
    void toolTipTextChanged();
};
