#pragma once

#include <WQmlController.h>

/// The native side of StarterGreeting.qml.
class GreetingController : public WQmlController
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY textChanged)

public:
    using WQmlController::WQmlController;

    QString text() const;

    /// Takes "name": whom to greet.
    void init(const QMap<QString, QVariant> &initialProperties) override;

Q_SIGNALS:
    void textChanged();

private:
    QString m_text;
};
