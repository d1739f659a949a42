#pragma once

#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>
#include <QStringList>

/// What a class declares itself to the meta-object system, a line an entry, in declaration order.
namespace MetaDescription {

inline QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// "QString theme, themeChanged" and, for a property that cannot be written, "bool isValid, read-only".
inline QStringList properties(const QMetaObject &meta)
{
    QStringList lines;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QString line = text(property.typeName()) + u' ' + text(property.name());
        if (!property.isReadable())
            line += QLatin1StringView(", unreadable");
        if (!property.isWritable())
            line += QLatin1StringView(", read-only");
        if (property.hasNotifySignal())
            line += QLatin1StringView(", ") + QString::fromLatin1(property.notifySignal().name());
        lines << line;
    }
    return lines;
}

/// "void themeChanged(QString)" and the like.
inline QStringList methods(const QMetaObject &meta, QMetaMethod::MethodType type)
{
    QStringList lines;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == type)
            lines << text(method.typeName()) + u' ' + QString::fromLatin1(method.methodSignature());
    }
    return lines;
}

inline QStringList signalsOf(const QMetaObject &meta)
{
    return methods(meta, QMetaMethod::Signal);
}

inline QStringList slotsOf(const QMetaObject &meta)
{
    return methods(meta, QMetaMethod::Slot);
}

inline QStringList invokables(const QMetaObject &meta)
{
    return methods(meta, QMetaMethod::Method);
}

/// "FontType: Default 0, MessagingView 1".
inline QStringList enums(const QMetaObject &meta)
{
    QStringList lines;
    for (int i = meta.enumeratorOffset(); i < meta.enumeratorCount(); ++i) {
        const QMetaEnum enumerator = meta.enumerator(i);
        QStringList values;
        for (int key = 0; key < enumerator.keyCount(); ++key)
            values << text(enumerator.key(key)) + u' ' + QString::number(enumerator.value(key));
        lines << text(enumerator.name()) + QLatin1StringView(": ") + values.join(QLatin1StringView(", "));
    }
    return lines;
}

} // namespace MetaDescription
