#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <qqmlintegration.h>

/// What an icon-only button does; it chooses the icon and the colours.
namespace LKButtonType {
Q_NAMESPACE_EXPORT(LUMAKITQML_EXPORT)
QML_ELEMENT

enum Type : int {
    None,
    Settings,
    Favorite,
    Attachment,
    Emoji,
    Link,
    Pen,
};
Q_ENUM_NS(Type)

} // namespace LKButtonType
