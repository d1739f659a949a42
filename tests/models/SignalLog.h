#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QStringList>

/// Records the names of an object's own signals in the order in which they come, those of QObject left out.
class SignalLog : public QObject
{
public:
    explicit SignalLog(QObject *sender)
        : m_meta(sender->metaObject())
    {
        const int offset = staticMetaObject.methodCount();
        for (int i = offset; i < m_meta->methodCount(); ++i) {
            if (m_meta->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(sender, i, this, i, Qt::DirectConnection);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        const int own = QObject::qt_metacall(call, id, arguments);
        if (own >= 0 && call == QMetaObject::InvokeMetaMethod)
            m_names << QString::fromLatin1(m_meta->method(id).name());
        return -1;
    }

    /// What came since the last call.
    QStringList take() { return std::exchange(m_names, {}); }

private:
    const QMetaObject *m_meta;
    QStringList m_names;
};
