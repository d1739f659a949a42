#pragma once

#include <QObject>
#include <QQuickItem>

/// Gives the focus back from what pops up. A singleton of LumakitQml.Private.
class FocusReturn : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Call it before the popup's item takes the focus.
    Q_INVOKABLE void remember(QQuickItem *popup) const;
    /// If the popup has had the focus and it did not go elsewhere, what had it before has it again, if that can be
    /// used.
    Q_INVOKABLE void giveBack(QQuickItem *popup) const;
};
