#pragma once

#include <QJSValue>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <QVariantMap>

#include <memory>

/// One of the shared scripts, as QML files that import it see it.
class Script
{
public:
    explicit Script(const QString &name)
        : m_name(name)
    {
    }

    /// Evaluates an expression in a file of its own. The values are known in it by their names. An exception is a
    /// warning, and gives undefined.
    QVariant evaluate(const QString &expression, const QVariantMap &values = {})
    {
        return value(expression, values).toVariant();
    }

    /// Every file that imports the script gets the same instance of it.
    bool isLibrary(const QString &function)
    {
        const QString expression = m_name + u'.' + function;
        const QJSValue first = value(expression);
        return first.isCallable() && first.strictlyEquals(value(expression));
    }

private:
    QJSValue value(const QString &expression, const QVariantMap &values = {})
    {
        QString text = QStringLiteral("import QtQuick\nimport \"qrc:/Qml/%1.js\" as %1\nQtObject {\n").arg(m_name);
        for (const QString &name : values.keys())
            text += QStringLiteral("    property var %1\n").arg(name);
        text += QStringLiteral("    property var result: %1\n}\n").arg(expression);

        QQmlComponent component(&m_engine);
        component.setData(text.toUtf8(), QUrl());
        const std::unique_ptr<QObject> object(component.createWithInitialProperties(values));
        if (!object)
            qWarning("%s", qPrintable(component.errorString()));
        return object ? m_engine.toScriptValue(object->property("result")) : QJSValue();
    }

    QString m_name;
    QQmlEngine m_engine;
};
