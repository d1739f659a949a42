#pragma once

#include <WQmlController.h>

#include <functional>

/// A controller that writes what happens to it into a journal shared by all, so that tests can compare the order with
/// that of signals and callbacks.
class TestController : public WQmlController
{
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER m_name)

public:
    using WQmlController::WQmlController;

    void init(const QMap<QString, QVariant> &initialProperties) override;

    QString name() const { return m_name; }
    QVariantMap initialProperties() const { return m_initialProperties; }

    static QStringList &journal();
    /// Runs at the end of each init(); it may delete the controller.
    static std::function<void()> &initHook();
    /// As LumakitTests 1.0.
    static void registerType();

private:
    QString m_name;
    QVariantMap m_initialProperties;
};
