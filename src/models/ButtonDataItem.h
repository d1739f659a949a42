#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <QString>

/// What a compact list needs of a button.
struct LUMAKITQML_EXPORT ButtonDataItem
{
    Q_GADGET
    Q_PROPERTY(bool visible MEMBER visible)
    Q_PROPERTY(bool enabled MEMBER enabled)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString tooltip MEMBER tooltip)

public:
    /// Neither visible nor enabled, without texts.
    ButtonDataItem() = default;
    ButtonDataItem(bool isVisible, bool isEnabled, const QString &itemText, const QString &itemTooltip)
        : visible(isVisible)
        , enabled(isEnabled)
        , text(itemText)
        , tooltip(itemTooltip)
    {
    }

    bool operator==(const ButtonDataItem &other) const = default;

    bool visible = false;
    bool enabled = false;
    QString text;
    QString tooltip;
};
