#pragma once

#include <QMetaMethod>

#include <QtCore/private/qmetaobject_p.h>
#include <QtQml/private/qqmlproperty_p.h>

/// Called from connectNotify(). Qt passes the signal of an alias's target on for QML only; then for C++ as well.
inline void connectAlias(QObject *object, const QMetaMethod &signal)
{
    if (signal.isValid())
        QQmlPropertyPrivate::flushSignal(object, QMetaObjectPrivate::signalIndex(signal));
}
