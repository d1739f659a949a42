#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <QPoint>
#include <QQuickItem>
#include <qqmlintegration.h>

/// Shows the desktop's own tooltip, which may stick out of the window. QML knows it as the singleton `ToolTipUtils`.
/// The text is plain: it is shown as it stands.
class LUMAKITQML_EXPORT ToolTipUtils : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit ToolTipUtils(QObject *parent = nullptr);
    ~ToolTipUtils() override;

    /// At a global position, its lines wrapped. With `show` false or without a text the tooltip is hidden.
    Q_INVOKABLE void tooltip(bool show, const QString &text, const QPoint &location);
    /// At the cursor when that is over the item, else at the item's centre. With `show` false, without an item or a
    /// text, or for an item that is fully transparent the tooltip is hidden.
    Q_INVOKABLE void tooltip(bool show, const QString &text, QQuickItem *item, bool isWordWrappedEnabled);
    Q_INVOKABLE void hideTooltip();
};
