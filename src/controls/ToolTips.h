#pragma once

#include <QObject>
#include <QQuickItem>

/// Gives items their tooltips on demand: most never have one, and an object for each would cost more than the rest of a
/// label. A singleton of LumakitQml.Private.
class ToolTips : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The item's tooltip, plain; an empty text takes it away.
    Q_INVOKABLE static void set(QQuickItem *item, const QString &text);
};
