#pragma once

#include <QFont>
#include <QObject>

/// The fonts of the tokens for the library's own QML, under the module LumakitQml.Private.
class FontTokens : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The font of a token, by the name of WFont::Token, with its family named: controls would take one that is not
    /// set from their style. The factor is what the size depends on; a binding that names it runs again when it
    /// changes.
    Q_INVOKABLE QFont font(const QString &token, double fontScaleFactor) const;
};
