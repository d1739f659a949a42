#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <qqmlintegration.h>

/// What a button with a text is for; it chooses the colours.
namespace LKButtonStyle {
Q_NAMESPACE_EXPORT(LUMAKITQML_EXPORT)
QML_ELEMENT

enum Style : int {
    None,
    Primary,
    Secondary,
    Ghost,
    CancelGhost,
    MessageGhost,
    Join,
    OutlineJoin,
    Cancel,
    OutlineCancel,
    Message,
    TeachingPrimary,
    TeachingSecondary,
};
Q_ENUM_NS(Style)

} // namespace LKButtonStyle
