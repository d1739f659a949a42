#include "TestController.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

void TestController::init(const QMap<QString, QVariant> &initialProperties)
{
    m_initialProperties = initialProperties;
    journal() << "init "_L1 + initialProperties.keys().join(u',');
    if (initHook())
        initHook()();
}

QStringList &TestController::journal()
{
    static QStringList instance;
    return instance;
}

std::function<void()> &TestController::initHook()
{
    static std::function<void()> instance;
    return instance;
}

void TestController::registerType()
{
    qmlRegisterType<TestController>("LumakitTests", 1, 0, "TestController");
}
