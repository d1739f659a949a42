#include "GreetingController.h"

using namespace Qt::StringLiterals;

QString GreetingController::text() const
{
    return m_text;
}

void GreetingController::init(const QMap<QString, QVariant> &initialProperties)
{
    m_text = tr("Hello, %1!").arg(initialProperties.value(u"name"_s).toString());
    Q_EMIT textChanged();
}
