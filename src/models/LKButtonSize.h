#pragma once

#include <LumakitQmlExport.h>

#include <QObject>
#include <qqmlintegration.h>

/// The size of a button, from the largest to the smallest.
namespace LKButtonSize {
Q_NAMESPACE_EXPORT(LUMAKITQML_EXPORT)
QML_ELEMENT

enum Size : int {
    None,
    XL,
    L,
    M,
    S,
    XS,
    XXS,
    XXXS,
};
Q_ENUM_NS(Size)

} // namespace LKButtonSize
