#pragma once

#include <LumakitQmlExport.h>

/// Makes the library known to QML as the module LumakitQml 1.0.
///
/// Registration is for the whole process and for good. A host calls both functions once, before it loads QML that
/// imports the module.
namespace LKQmlRegister {

/// The C++ types, their enums, and the singletons, of which each engine creates its own on first use.
LUMAKITQML_EXPORT void registerLKQmlDataTypes();

/// The component files at qrc:/Qml that are types of the module.
LUMAKITQML_EXPORT void registerLKQmlComponents();

} // namespace LKQmlRegister
